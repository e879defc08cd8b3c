#include "platform/desktop/keys.h"
#include "platform/desktop/virtual_key_codes.h"
#include "platform/qt/desktop/panel_event_translation.h"

#include <QKeyEvent>
#include <QPointingDevice>
#include <QWheelEvent>

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

#include <set>
#include <utility>

namespace corvane::test {

namespace {

/// The window system's numbers are higher than the kernel's by that.
constexpr std::uint32_t evdevOffset = 8;

KeyPosition positionOf(std::uint32_t evdevCode)
{
    return virtual_key_codes::fromNative(NativeKey{evdevCode + evdevOffset});
}

QKeyEvent press(int key, std::uint32_t scanCode = 0, Qt::KeyboardModifiers modifiers = {})
{
    return QKeyEvent(QEvent::KeyPress, key, modifiers, scanCode, 0, 0);
}

TypedKey typedBy(int key, std::uint32_t scanCode = 0)
{
    const QKeyEvent event = press(key, scanCode);
    return keyEventFrom(event).key;
}

QWheelEvent wheel(QPoint pixels, QPoint angle, Qt::KeyboardModifiers modifiers = {},
                  Qt::ScrollPhase phase = Qt::NoScrollPhase)
{
    return QWheelEvent({}, {}, pixels, angle, Qt::NoButton, modifiers, phase, false,
                       Qt::MouseEventNotSynthesized, QPointingDevice::primaryPointingDevice());
}

} // namespace

TEST(VirtualKeyCodes, goBothWays)
{
    std::set<KeyPosition> seen;
    for (std::uint32_t number = 0; number < 256 + evdevOffset; ++number) {
        const auto position = virtual_key_codes::fromNative(NativeKey{number});
        if (position == KeyPosition::Unknown)
            continue;
        EXPECT_TRUE(seen.insert(position).second) << number;
        EXPECT_EQ(virtual_key_codes::toNative(position), NativeKey{number});
    }
    EXPECT_GE(seen.size(), 100U);
    EXPECT_FALSE(virtual_key_codes::toNative(KeyPosition::Unknown));
}

TEST(VirtualKeyCodes, eachKeyHasTheCodeThatIsStoredForItsPlace)
{
    constexpr std::pair<std::uint32_t, std::uint32_t> places[]
        = {{KEY_1, 18},          {KEY_2, 19},         {KEY_3, 20},          {KEY_4, 21},
           {KEY_5, 23},          {KEY_6, 22},         {KEY_7, 26},          {KEY_8, 28},
           {KEY_9, 25},          {KEY_0, 29},         {KEY_MINUS, 27},      {KEY_EQUAL, 24},
           {KEY_Q, 12},          {KEY_W, 13},         {KEY_E, 14},          {KEY_R, 15},
           {KEY_T, 17},          {KEY_Y, 16},         {KEY_U, 32},          {KEY_I, 34},
           {KEY_O, 31},          {KEY_P, 35},         {KEY_LEFTBRACE, 33},  {KEY_RIGHTBRACE, 30},
           {KEY_A, 0},           {KEY_S, 1},          {KEY_D, 2},           {KEY_F, 3},
           {KEY_G, 5},           {KEY_H, 4},          {KEY_J, 38},          {KEY_K, 40},
           {KEY_L, 37},          {KEY_SEMICOLON, 41}, {KEY_APOSTROPHE, 39}, {KEY_GRAVE, 50},
           {KEY_Z, 6},           {KEY_X, 7},          {KEY_C, 8},           {KEY_V, 9},
           {KEY_B, 11},          {KEY_N, 45},         {KEY_M, 46},          {KEY_COMMA, 43},
           {KEY_DOT, 47},        {KEY_SLASH, 44},     {KEY_BACKSLASH, 42},  {KEY_102ND, 10},
           {KEY_ENTER, 36},      {KEY_TAB, 48},       {KEY_SPACE, 49},      {KEY_BACKSPACE, 51},
           {KEY_ESC, 53},        {KEY_DELETE, 117},   {KEY_HOME, 115},      {KEY_END, 119},
           {KEY_PAGEUP, 116},    {KEY_PAGEDOWN, 121}, {KEY_LEFT, 123},      {KEY_RIGHT, 124},
           {KEY_DOWN, 125},      {KEY_UP, 126},       {KEY_INSERT, 114},    {KEY_F1, 122},
           {KEY_F2, 120},        {KEY_F3, 99},        {KEY_F4, 118},        {KEY_F5, 96},
           {KEY_F6, 97},         {KEY_F7, 98},        {KEY_F8, 100},        {KEY_F9, 101},
           {KEY_F10, 109},       {KEY_F11, 103},      {KEY_F12, 111},       {KEY_F13, 105},
           {KEY_F14, 107},       {KEY_F15, 113},      {KEY_F16, 106},       {KEY_F17, 64},
           {KEY_F18, 79},        {KEY_F19, 80},       {KEY_F20, 90},        {KEY_KP0, 82},
           {KEY_KP1, 83},        {KEY_KP2, 84},       {KEY_KP3, 85},        {KEY_KP4, 86},
           {KEY_KP5, 87},        {KEY_KP6, 88},       {KEY_KP7, 89},        {KEY_KP8, 91},
           {KEY_KP9, 92},        {KEY_KPDOT, 65},     {KEY_KPASTERISK, 67}, {KEY_KPPLUS, 69},
           {KEY_NUMLOCK, 71},    {KEY_KPSLASH, 75},   {KEY_KPENTER, 76},    {KEY_KPMINUS, 78},
           {KEY_KPEQUAL, 81},    {KEY_KPCOMMA, 95},   {KEY_VOLUMEUP, 72},   {KEY_VOLUMEDOWN, 73},
           {KEY_MUTE, 74},       {KEY_LEFTMETA, 55},  {KEY_RIGHTMETA, 54},  {KEY_LEFTSHIFT, 56},
           {KEY_RIGHTSHIFT, 60}, {KEY_CAPSLOCK, 57},  {KEY_LEFTALT, 58},    {KEY_RIGHTALT, 61},
           {KEY_LEFTCTRL, 59},   {KEY_RIGHTCTRL, 62}, {KEY_YEN, 93},        {KEY_RO, 94},
           {KEY_COMPOSE, 110}};
    for (const auto &[place, code] : places)
        EXPECT_EQ(positionOf(place), KeyPosition{code}) << place;
    int known = 0;
    for (std::uint32_t evdev = 0; evdev < 256; ++evdev)
        known += positionOf(evdev) == KeyPosition::Unknown ? 0 : 1;
    EXPECT_EQ(known, static_cast<int>(std::size(places))) << "one that is not in the table";
}

TEST(VirtualKeyCodes, lettersStandWhereAnAnsiKeyboardHasThem)
{
    EXPECT_EQ(virtual_key_codes::forLatinLetter(U'C'), TypedKey::C);
    EXPECT_EQ(virtual_key_codes::forLatinLetter(U'A'), TypedKey::A);
    EXPECT_EQ(virtual_key_codes::forLatinLetter(U'M'), TypedKey{46});
    EXPECT_EQ(virtual_key_codes::forLatinLetter(U'P'), TypedKey{35});
    EXPECT_EQ(virtual_key_codes::forLatinLetter(U'1'), TypedKey::Unknown);
    std::set<TypedKey> codes;
    for (char32_t letter = U'A'; letter <= U'Z'; ++letter)
        codes.insert(virtual_key_codes::forLatinLetter(letter));
    EXPECT_EQ(codes.size(), 26U);
    EXPECT_FALSE(codes.contains(TypedKey::Unknown));
}

TEST(PanelKeys, aLetterIsTheKeyThatTypesIt)
{
    // Dvorak's C lies on the key that types I elsewhere.
    EXPECT_EQ(typedBy(Qt::Key_C, 31), TypedKey::C);
    // A layout without Latin letters: by position.
    EXPECT_EQ(typedBy(0x6d3, 54), TypedKey::C);
}

TEST(PanelKeys, namedKeysAreKnownByTheirNames)
{
    EXPECT_EQ(typedBy(Qt::Key_Space), TypedKey::Space);
    EXPECT_EQ(typedBy(Qt::Key_Backspace), TypedKey::DeleteBackward);
    EXPECT_EQ(typedBy(Qt::Key_Delete), TypedKey::DeleteForward);
    // Caps Lock made an Escape key.
    EXPECT_EQ(typedBy(Qt::Key_Escape, 66), TypedKey::Escape);
    EXPECT_EQ(typedBy(Qt::Key_Left), TypedKey::LeftArrow);
    EXPECT_EQ(typedBy(Qt::Key_Right), TypedKey::RightArrow);
    EXPECT_EQ(typedBy(Qt::Key_Down), TypedKey::DownArrow);
    EXPECT_EQ(typedBy(Qt::Key_unknown, 0), TypedKey::Unknown);
    EXPECT_EQ(typedBy(Qt::Key_unknown, 255), TypedKey::Unknown);
}

TEST(PanelKeys, controlAndSuperAreCommand)
{
    const auto modifiers = [](Qt::KeyboardModifiers held) {
        const QKeyEvent event = press(Qt::Key_C, 54, held);
        return keyEventFrom(event).modifiers;
    };
    EXPECT_EQ(modifiers(Qt::ControlModifier), Modifier::Command | Modifier::Control);
    EXPECT_EQ(modifiers(Qt::MetaModifier), Modifiers(Modifier::Command));
    EXPECT_EQ(modifiers(Qt::AltModifier | Qt::ShiftModifier), Modifier::Option | Modifier::Shift);
    EXPECT_EQ(modifiers(Qt::KeypadModifier), Modifiers());
}

TEST(PanelScroll, oneNotchIsFour)
{
    EXPECT_EQ(scrollEventFrom(wheel({}, {120, 0}), 7)->deltaX, 4);
    EXPECT_EQ(scrollEventFrom(wheel({}, {-15, 0}), 7)->deltaX, -0.5);
    EXPECT_FALSE(scrollEventFrom(wheel({}, {120, 0}), 7)->hasPreciseDeltas);
    EXPECT_EQ(scrollEventFrom(wheel({}, {120, 0}), 7)->time, 7);
}

TEST(PanelScroll, aVerticalWheelIsHorizontalWithShiftOnly)
{
    EXPECT_FALSE(scrollEventFrom(wheel({}, {0, 120}), 0));
    EXPECT_EQ(scrollEventFrom(wheel({}, {0, 120}, Qt::ShiftModifier), 0)->deltaX, 4);
    EXPECT_EQ(scrollEventFrom(wheel({}, {-120, 0}, Qt::ShiftModifier), 0)->deltaX, -4);
}

TEST(PanelScroll, touchpadsScrollInPointsAndPhases)
{
    const auto moved = scrollEventFrom(wheel({9, 2}, {18, 4}, {}, Qt::ScrollUpdate), 0);
    EXPECT_TRUE(moved->hasPreciseDeltas);
    EXPECT_EQ(moved->deltaX, 9);
    EXPECT_EQ(moved->phase, ScrollEvent::Phase::Changed);
    EXPECT_EQ(scrollEventFrom(wheel({}, {}, {}, Qt::ScrollEnd), 0)->phase,
              ScrollEvent::Phase::Ended);
}

} // namespace corvane::test
