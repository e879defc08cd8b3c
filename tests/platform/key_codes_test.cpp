#include "platform/keyboard.h"
#include "platform/qt/panel_event_translation.h"
#include "platform/virtual_key_codes.h"

#include <QKeyEvent>
#include <QPointingDevice>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <set>

namespace corvane::test {

namespace {

QKeyEvent press(int key, std::uint32_t scanCode = 0, Qt::KeyboardModifiers modifiers = {})
{
    return QKeyEvent(QEvent::KeyPress, key, modifiers, scanCode, 0, 0);
}

std::uint32_t codeOf(int key, std::uint32_t scanCode = 0)
{
    const QKeyEvent event = press(key, scanCode);
    return keyEventFrom(event).keyCode;
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
    std::set<std::uint32_t> seen;
    for (std::uint32_t evdev = 0; evdev < 256; ++evdev) {
        const auto code = virtual_key_codes::fromEvdev(evdev);
        if (code == key_code::unknown)
            continue;
        EXPECT_TRUE(seen.insert(code).second) << evdev;
        EXPECT_EQ(virtual_key_codes::toEvdev(code), evdev);
    }
    EXPECT_GE(seen.size(), 100U);
    EXPECT_FALSE(virtual_key_codes::toEvdev(key_code::unknown));
}

TEST(VirtualKeyCodes, lettersStandWhereAnAnsiKeyboardHasThem)
{
    EXPECT_EQ(virtual_key_codes::forLatinLetter(U'C'), key_code::c);
    EXPECT_EQ(virtual_key_codes::forLatinLetter(U'A'), 0U);
    EXPECT_EQ(virtual_key_codes::forLatinLetter(U'M'), 46U);
    EXPECT_EQ(virtual_key_codes::forLatinLetter(U'P'), 35U);
    EXPECT_EQ(virtual_key_codes::forLatinLetter(U'1'), key_code::unknown);
    std::set<std::uint32_t> codes;
    for (char32_t letter = U'A'; letter <= U'Z'; ++letter)
        codes.insert(virtual_key_codes::forLatinLetter(letter));
    EXPECT_EQ(codes.size(), 26U);
    EXPECT_FALSE(codes.contains(key_code::unknown));
}

TEST(PanelKeys, aLetterIsTheKeyThatTypesIt)
{
    // Dvorak's C lies on the key that types I elsewhere.
    EXPECT_EQ(codeOf(Qt::Key_C, 31), key_code::c);
    // A layout without Latin letters: by position.
    EXPECT_EQ(codeOf(0x6d3, 54), key_code::c);
}

TEST(PanelKeys, namedKeysAreKnownByTheirNames)
{
    EXPECT_EQ(codeOf(Qt::Key_Space), key_code::space);
    EXPECT_EQ(codeOf(Qt::Key_Backspace), key_code::deleteBackward);
    EXPECT_EQ(codeOf(Qt::Key_Delete), key_code::deleteForward);
    // Caps Lock made an Escape key.
    EXPECT_EQ(codeOf(Qt::Key_Escape, 66), key_code::escape);
    EXPECT_EQ(codeOf(Qt::Key_Left), key_code::leftArrow);
    EXPECT_EQ(codeOf(Qt::Key_Right), key_code::rightArrow);
    EXPECT_EQ(codeOf(Qt::Key_Down), key_code::downArrow);
    EXPECT_EQ(codeOf(Qt::Key_unknown, 0), key_code::unknown);
    EXPECT_EQ(codeOf(Qt::Key_unknown, 255), key_code::unknown);
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
