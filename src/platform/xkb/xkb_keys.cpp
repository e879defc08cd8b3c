#include "platform/xkb/xkb_keys.h"

#include <xkbcommon/xkbcommon-keysyms.h>

#include <algorithm>
#include <array>

namespace corvane::xkb_keys {

namespace {

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

} // namespace

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

KeyName nameOf(xkb_keymap *keymap, xkb_keycode_t key, xkb_layout_index_t layout, bool isShifted)
{
    const xkb_keysym_t *symbols = nullptr;
    const xkb_level_index_t level = isShifted ? 1 : 0;
    if (xkb_keymap_key_get_syms_by_level(keymap, key, layout, level, &symbols) != 1)
        return {};
    std::array<char, 64> name{};
    xkb_keysym_get_name(*symbols, name.data(), name.size());
    return {.text = textOf(*symbols), .symbol = QString::fromLatin1(name.data())};
}

bool changesKeys(KeySymbol symbol)
{
    struct Range {
        std::uint32_t first;
        std::uint32_t last;
    };
    constexpr std::array ranges = {
        // Levels and layouts, shifted to, latched or locked.
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

} // namespace corvane::xkb_keys
