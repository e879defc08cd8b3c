#include "platform/desktop/virtual_key_codes.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace corvane::virtual_key_codes {

namespace {

/// The window system's number of a key is the kernel's plus this.
constexpr std::uint32_t nativeOffset = 8;

struct Pair {
    std::uint32_t virtualCode;
    std::uint32_t evdevCode;
};

// In the order of evdev codes, that is, of the rows of a keyboard.
constexpr std::array pairs = {
    // Escape, digit row, minus, equals, backspace
    Pair{53, 1}, Pair{18, 2}, Pair{19, 3}, Pair{20, 4}, Pair{21, 5}, Pair{23, 6}, Pair{22, 7},
    Pair{26, 8}, Pair{28, 9}, Pair{25, 10}, Pair{29, 11}, Pair{27, 12}, Pair{24, 13}, Pair{51, 14},
    // Tab, Q to P, brackets, return
    Pair{48, 15}, Pair{12, 16}, Pair{13, 17}, Pair{14, 18}, Pair{15, 19}, Pair{17, 20},
    Pair{16, 21}, Pair{32, 22}, Pair{34, 23}, Pair{31, 24}, Pair{35, 25}, Pair{33, 26},
    Pair{30, 27}, Pair{36, 28},
    // Left control, A to L, semicolon, quote, grave, left shift, backslash
    Pair{59, 29}, Pair{0, 30}, Pair{1, 31}, Pair{2, 32}, Pair{3, 33}, Pair{5, 34}, Pair{4, 35},
    Pair{38, 36}, Pair{40, 37}, Pair{37, 38}, Pair{41, 39}, Pair{39, 40}, Pair{50, 41},
    Pair{56, 42}, Pair{42, 43},
    // Z to M, comma, period, slash, right shift
    Pair{6, 44}, Pair{7, 45}, Pair{8, 46}, Pair{9, 47}, Pair{11, 48}, Pair{45, 49}, Pair{46, 50},
    Pair{43, 51}, Pair{47, 52}, Pair{44, 53}, Pair{60, 54},
    // Keypad multiply, left alt, space, caps lock
    Pair{67, 55}, Pair{58, 56}, Pair{49, 57}, Pair{57, 58},
    // F1 to F10
    Pair{122, 59}, Pair{120, 60}, Pair{99, 61}, Pair{118, 62}, Pair{96, 63}, Pair{97, 64},
    Pair{98, 65}, Pair{100, 66}, Pair{101, 67}, Pair{109, 68},
    // Num lock stands where a keypad has its clear key
    Pair{71, 69},
    // Keypad 7 8 9 - 4 5 6 + 1 2 3 0 .
    Pair{89, 71}, Pair{91, 72}, Pair{92, 73}, Pair{78, 74}, Pair{86, 75}, Pair{87, 76},
    Pair{88, 77}, Pair{69, 78}, Pair{83, 79}, Pair{84, 80}, Pair{85, 81}, Pair{82, 82},
    Pair{65, 83},
    // The ISO keyboard's additional key, F11, F12, the additional key of Japanese keyboards
    Pair{10, 86}, Pair{103, 87}, Pair{111, 88}, Pair{94, 89},
    // Keypad enter, right control, keypad divide, right alt
    Pair{76, 96}, Pair{62, 97}, Pair{75, 98}, Pair{61, 100},
    // Home, up, page up, left, right, end, down, page down, insert, delete
    Pair{115, 102}, Pair{126, 103}, Pair{116, 104}, Pair{123, 105}, Pair{124, 106}, Pair{119, 107},
    Pair{125, 108}, Pair{121, 109}, Pair{114, 110}, Pair{117, 111},
    // Mute, quieter, louder, keypad equals, keypad comma, yen, both supers, menu
    Pair{74, 113}, Pair{73, 114}, Pair{72, 115}, Pair{81, 117}, Pair{95, 121}, Pair{93, 124},
    Pair{55, 125}, Pair{54, 126}, Pair{110, 127},
    // F13 to F20
    Pair{105, 183}, Pair{107, 184}, Pair{113, 185}, Pair{106, 186}, Pair{64, 187}, Pair{79, 188},
    Pair{80, 189}, Pair{90, 190}};

// Within a row of letters evdev codes are consecutive.
struct LetterRow {
    std::u32string_view letters;
    std::uint32_t firstEvdevCode;
};
constexpr std::array letterRows
    = {LetterRow{U"QWERTYUIOP", 16}, LetterRow{U"ASDFGHJKL", 30}, LetterRow{U"ZXCVBNM", 44}};

KeyPosition fromEvdev(std::uint32_t evdevCode)
{
    const auto *found = std::ranges::find(pairs, evdevCode, &Pair::evdevCode);
    return found == pairs.end() ? KeyPosition::Unknown : KeyPosition{found->virtualCode};
}

} // namespace

KeyPosition fromNative(NativeKey key)
{
    const auto code = static_cast<std::uint32_t>(key);
    return code < nativeOffset ? KeyPosition::Unknown : fromEvdev(code - nativeOffset);
}

std::optional<NativeKey> toNative(KeyPosition position)
{
    const auto *found
        = std::ranges::find(pairs, static_cast<std::uint32_t>(position), &Pair::virtualCode);
    if (found == pairs.end())
        return std::nullopt;
    return NativeKey{found->evdevCode + nativeOffset};
}

TypedKey forLatinLetter(char32_t letter)
{
    for (const LetterRow &row : letterRows) {
        const auto place = row.letters.find(letter);
        if (place != std::u32string_view::npos)
            return typedOnAnsiKeyboard(
                fromEvdev(row.firstEvdevCode + static_cast<std::uint32_t>(place)));
    }
    return TypedKey::Unknown;
}

} // namespace corvane::virtual_key_codes
