#include "platform/x11/keys/x11_modifiers.h"

#include "platform/desktop/stored_modifiers.h"
#include "platform/x11/base/x11_connection.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <initializer_list>
#include <span>

namespace corvane {

namespace {

namespace symbols {
constexpr xcb_keysym_t numLock = 0xff7f;
constexpr xcb_keysym_t scrollLock = 0xff14;
constexpr xcb_keysym_t altLeft = 0xffe9;
constexpr xcb_keysym_t altRight = 0xffea;
constexpr xcb_keysym_t superLeft = 0xffeb;
constexpr xcb_keysym_t superRight = 0xffec;
} // namespace symbols

/// The mapping's two tables: the keys of each modifier, and the symbols of each key.
class Mapping {
public:
    explicit Mapping(X11Connection &asked)
    {
        xcb_connection_t *const connection = asked.get();
        const auto *setup = xcb_get_setup(connection);
        m_firstKey = setup->min_keycode;
        const auto count = static_cast<std::uint8_t>(setup->max_keycode - setup->min_keycode + 1);
        // Both requests are sent before the first answer is awaited.
        const auto modifiers = xcb_get_modifier_mapping(connection);
        const auto keyboard = xcb_get_keyboard_mapping(connection, m_firstKey, count);
        m_modifiers = asked.reply<xcb_get_modifier_mapping_reply_t>(modifiers);
        m_keyboard = asked.reply<xcb_get_keyboard_mapping_reply_t>(keyboard);
    }

    bool isComplete() const { return m_modifiers && m_keyboard; }

    /// The bit of the first of the modifiers Mod1 to Mod5 that a key with one of the symbols sets.
    std::uint16_t bitOf(std::initializer_list<xcb_keysym_t> wanted) const
    {
        constexpr std::size_t firstNumbered = XCB_MAP_INDEX_1;
        constexpr std::size_t count = 8;
        for (std::size_t modifier = firstNumbered; modifier < count; ++modifier) {
            for (const xcb_keycode_t key : keysOf(modifier)) {
                if (std::ranges::find_first_of(symbolsOf(key), wanted) != symbolsOf(key).end())
                    return static_cast<std::uint16_t>(1U << modifier);
            }
        }
        return 0;
    }

    std::bitset<256> keys() const
    {
        std::bitset<256> all;
        const xcb_keycode_t *const codes = xcb_get_modifier_mapping_keycodes(m_modifiers.get());
        const int count = xcb_get_modifier_mapping_keycodes_length(m_modifiers.get());
        for (const xcb_keycode_t key : std::span(codes, static_cast<std::size_t>(count)))
            all.set(key, key >= m_firstKey);
        return all;
    }

private:
    std::span<const xcb_keycode_t> keysOf(std::size_t modifier) const
    {
        const std::size_t width = m_modifiers->keycodes_per_modifier;
        return {xcb_get_modifier_mapping_keycodes(m_modifiers.get()) + modifier * width, width};
    }
    std::span<const xcb_keysym_t> symbolsOf(xcb_keycode_t key) const
    {
        // Unused entries are zero.
        if (key < m_firstKey)
            return {};
        const std::size_t width = m_keyboard->keysyms_per_keycode;
        const auto first = static_cast<std::size_t>(key - m_firstKey) * width;
        const auto length
            = static_cast<std::size_t>(xcb_get_keyboard_mapping_keysyms_length(m_keyboard.get()));
        if (first + width > length)
            return {};
        return {xcb_get_keyboard_mapping_keysyms(m_keyboard.get()) + first, width};
    }

    xcb_keycode_t m_firstKey = 0;
    X11Reply<xcb_get_modifier_mapping_reply_t> m_modifiers;
    X11Reply<xcb_get_keyboard_mapping_reply_t> m_keyboard;
};

} // namespace

std::optional<X11Modifiers> X11Modifiers::read(X11Connection &connection)
{
    if (!connection.isConnected())
        return std::nullopt;
    const Mapping mapping(connection);
    if (!mapping.isComplete())
        return std::nullopt;
    return X11Modifiers{mapping.bitOf({symbols::superLeft, symbols::superRight}),
                        mapping.bitOf({symbols::altLeft, symbols::altRight}),
                        mapping.bitOf({symbols::numLock}), mapping.bitOf({symbols::scrollLock}),
                        mapping.keys()};
}

bool X11Modifiers::areMoreThanTyping(std::uint32_t modifiers)
{
    return (modifiers & stored_modifiers::moreThanTyping) != 0;
}

std::optional<std::uint16_t> X11Modifiers::maskFor(std::uint32_t modifiers) const
{
    struct Pair {
        std::uint32_t stored;
        std::uint16_t bit;
    };
    const std::array<Pair, 4> pairs = {{{stored_modifiers::command, super},
                                        {stored_modifiers::shift, XCB_MOD_MASK_SHIFT},
                                        {stored_modifiers::option, alt},
                                        {stored_modifiers::control, XCB_MOD_MASK_CONTROL}}};
    std::uint32_t rest = modifiers;
    std::uint16_t mask = 0;
    for (const auto &[stored, bit] : pairs) {
        if ((modifiers & stored) == 0)
            continue;
        if (bit == 0)
            return std::nullopt;
        rest &= ~stored;
        mask |= bit;
    }
    return rest == 0 ? std::optional(mask) : std::nullopt;
}

std::vector<std::uint16_t> X11Modifiers::lockVariants() const
{
    std::vector<std::uint16_t> variants = {0};
    for (const std::uint16_t lock : {std::uint16_t{XCB_MOD_MASK_LOCK}, numLock, scrollLock}) {
        // A lock modifier with the same bit as another modifier cannot be ignored.
        const bool isUsable = lock != 0 && (lock & significant()) == 0
            && std::ranges::find(variants, lock) == variants.end();
        if (!isUsable)
            continue;
        for (std::size_t i = 0, count = variants.size(); i < count; ++i)
            variants.push_back(static_cast<std::uint16_t>(variants[i] | lock));
    }
    return variants;
}

std::uint16_t X11Modifiers::significant() const
{
    return static_cast<std::uint16_t>(XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_CONTROL | super | alt);
}

} // namespace corvane
