#include "platform/x11/keys/x11_keyboard_layout.h"

#include "platform/desktop/virtual_key_codes.h"
#include "platform/x11/base/x11_qt.h"

#include <xkbcommon/xkbcommon-keysyms.h>
#include <xkbcommon/xkbcommon-x11.h>

#include <algorithm>
#include <array>
#include <memory>

namespace corvane {

namespace {

template<auto unreference>
struct Unreference {
    template<typename Object>
    void operator()(Object *object) const
    {
        unreference(object);
    }
};
using XkbContext = std::unique_ptr<xkb_context, Unreference<xkb_context_unref>>;
using XkbKeymap = std::unique_ptr<xkb_keymap, Unreference<xkb_keymap_unref>>;
using XkbState = std::unique_ptr<xkb_state, Unreference<xkb_state_unref>>;

/// The accent that a dead key puts on the next letter; 0 for every other key.
char32_t accentOf(xkb_keysym_t symbol)
{
    switch (symbol) {
    case XKB_KEY_dead_grave:
        return U'`';
    case XKB_KEY_dead_acute:
        return U'´';
    case XKB_KEY_dead_circumflex:
        return U'^';
    case XKB_KEY_dead_tilde:
        return U'~';
    case XKB_KEY_dead_macron:
        return U'¯';
    case XKB_KEY_dead_breve:
        return U'˘';
    case XKB_KEY_dead_abovedot:
        return U'˙';
    case XKB_KEY_dead_diaeresis:
        return U'¨';
    case XKB_KEY_dead_abovering:
        return U'˚';
    case XKB_KEY_dead_doubleacute:
        return U'˝';
    case XKB_KEY_dead_caron:
        return U'ˇ';
    case XKB_KEY_dead_cedilla:
        return U'¸';
    case XKB_KEY_dead_ogonek:
        return U'˛';
    default:
        return 0;
    }
}

QString textOf(xkb_keysym_t symbol)
{
    const char32_t accent = accentOf(symbol);
    const char32_t character = accent != 0 ? accent : xkb_keysym_to_utf32(symbol);
    return QChar::isPrint(character) ? QString::fromUcs4(&character, 1) : QString();
}

/// What the key types at the lowest level at which it types something: keypad digits are not at the
/// first.
QString textOf(xkb_keymap *keymap, xkb_keycode_t key, xkb_layout_index_t layout)
{
    const xkb_level_index_t levels = xkb_keymap_num_levels_for_key(keymap, key, layout);
    for (xkb_level_index_t level = 0; level < levels; ++level) {
        const xkb_keysym_t *symbols = nullptr;
        if (xkb_keymap_key_get_syms_by_level(keymap, key, layout, level, &symbols) != 1)
            continue;
        if (QString text = textOf(*symbols); !text.isEmpty())
            return text;
    }
    return {};
}

} // namespace

QString X11KeyboardLayout::charactersOf(KeyPosition position) const
{
    const auto native = virtual_key_codes::toNative(position);
    xcb_connection_t *const connection = x11_qt::connection();
    if (!native || connection == nullptr || xcb_connection_has_error(connection) != 0
        || xkb_x11_setup_xkb_extension(
               connection, XKB_X11_MIN_MAJOR_XKB_VERSION, XKB_X11_MIN_MINOR_XKB_VERSION,
               XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS, nullptr, nullptr, nullptr, nullptr)
            == 0)
        return {};
    const std::int32_t device = xkb_x11_get_core_keyboard_device_id(connection);
    const XkbContext context(xkb_context_new(XKB_CONTEXT_NO_FLAGS));
    if (!context || device < 0)
        return {};
    const XkbKeymap keymap(xkb_x11_keymap_new_from_device(context.get(), connection, device,
                                                          XKB_KEYMAP_COMPILE_NO_FLAGS));
    if (!keymap)
        return {};
    const XkbState state(xkb_x11_state_new_from_device(keymap.get(), connection, device));
    if (!state)
        return {};
    const auto key = static_cast<xkb_keycode_t>(*native);
    return textOf(keymap.get(), key, xkb_state_key_get_layout(state.get(), key));
}

bool X11KeyboardLayout::changesKeys(KeySymbol symbol) const
{
    struct Range {
        std::uint32_t first;
        std::uint32_t last;
    };
    constexpr std::array ranges = {
        // Keys that shift, latch or lock levels and layouts.
        Range{XKB_KEY_ISO_Lock, XKB_KEY_ISO_Last_Group_Lock},
        Range{XKB_KEY_ISO_Level5_Shift, XKB_KEY_ISO_Level5_Lock},
        // Compose, and the keys of Japanese and Korean keyboards that switch the input method.
        Range{XKB_KEY_Multi_key, XKB_KEY_Hangul_Special},
        Range{XKB_KEY_Shift_L, XKB_KEY_Hyper_R},
        Range{XKB_KEY_Mode_switch, XKB_KEY_Num_Lock},
        Range{XKB_KEY_Scroll_Lock, XKB_KEY_Scroll_Lock},
    };
    return std::ranges::any_of(ranges,
                               [number = static_cast<std::uint32_t>(symbol)](const Range &range) {
                                   return number >= range.first && number <= range.last;
                               });
}

} // namespace corvane
