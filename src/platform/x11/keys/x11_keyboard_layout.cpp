#include "platform/x11/keys/x11_keyboard_layout.h"

#include "platform/desktop/virtual_key_codes.h"
#include "platform/x11/base/x11_qt.h"
#include "platform/xkb/xkb_keys.h"

#include <xkbcommon/xkbcommon-x11.h>

#include <optional>
#include <utility>

namespace corvane {

namespace {

/// A key in the layout that is in use.
struct KeyInLayout {
    xkb_keys::Keymap keymap;
    xkb_keycode_t key = 0;
    xkb_layout_index_t layout = 0;
};

/// None where the server does not say.
std::optional<KeyInLayout> find(KeyPosition position)
{
    const auto native = virtual_key_codes::toNative(position);
    xcb_connection_t *const connection = x11_qt::connection();
    if (!native || connection == nullptr || xcb_connection_has_error(connection) != 0
        || xkb_x11_setup_xkb_extension(
               connection, XKB_X11_MIN_MAJOR_XKB_VERSION, XKB_X11_MIN_MINOR_XKB_VERSION,
               XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS, nullptr, nullptr, nullptr, nullptr)
            == 0)
        return std::nullopt;
    const std::int32_t device = xkb_x11_get_core_keyboard_device_id(connection);
    const xkb_keys::Context context(xkb_context_new(XKB_CONTEXT_NO_FLAGS));
    if (!context || device < 0)
        return std::nullopt;
    xkb_keys::Keymap keymap(xkb_x11_keymap_new_from_device(context.get(), connection, device,
                                                           XKB_KEYMAP_COMPILE_NO_FLAGS));
    if (!keymap)
        return std::nullopt;
    const xkb_keys::State state(xkb_x11_state_new_from_device(keymap.get(), connection, device));
    if (!state)
        return std::nullopt;
    const auto key = static_cast<xkb_keycode_t>(*native);
    const xkb_layout_index_t layout = xkb_state_key_get_layout(state.get(), key);
    return KeyInLayout{std::move(keymap), key, layout};
}

} // namespace

QString X11KeyboardLayout::charactersOf(KeyPosition position) const
{
    const auto found = find(position);
    return found ? xkb_keys::textOf(found->keymap.get(), found->key, found->layout) : QString();
}

KeyName X11KeyboardLayout::nameOf(KeyPosition position, bool isShifted) const
{
    const auto found = find(position);
    return found ? xkb_keys::nameOf(found->keymap.get(), found->key, found->layout, isShifted)
                 : KeyName();
}

bool X11KeyboardLayout::changesKeys(KeySymbol symbol) const
{
    return xkb_keys::changesKeys(symbol);
}

} // namespace corvane
