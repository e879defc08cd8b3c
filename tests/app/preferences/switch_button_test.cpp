#include "app/preferences/switch_button.h"
#include "app/widget_hands.h"
#include "fakes/fake_motion_preference.h"

#include <QImage>
#include <QPalette>

#include <gtest/gtest.h>

namespace corvane::test {
namespace {

struct SwitchButtonTest : testing::Test {
    SwitchButtonTest()
    {
        QPalette palette(Qt::black);
        palette.setColor(QPalette::Window, Qt::black);
        button.setPalette(palette);
        button.resize(button.sizeHint());
    }

    QImage picture() { return button.grab().toImage(); }
    /// Whether the knob stands at one end, -1 for the left and 1 for the right.
    bool knobIsAt(int end)
    {
        const int reach = button.height() / 2;
        const int x = end < 0 ? reach : button.width() - reach;
        return picture().pixelColor(x, button.height() / 2) == QColor(Qt::white);
    }

    FakeMotionPreference motion;
    SwitchButton button{QStringLiteral("name"), QStringLiteral("description"), WindowLook(),
                        motion};
};

TEST_F(SwitchButtonTest, TheKnobSlidesFromWhereItWas)
{
    button.show();
    button.setChecked(true);
    EXPECT_TRUE(knobIsAt(-1));
    EXPECT_FALSE(knobIsAt(1));
}

TEST_F(SwitchButtonTest, TheKnobIsThereAtOnceWhereLessMovementIsWanted)
{
    motion.reduces = true;
    button.show();
    button.setChecked(true);
    EXPECT_TRUE(knobIsAt(1));
    button.setChecked(false);
    EXPECT_TRUE(knobIsAt(-1));
}

TEST_F(SwitchButtonTest, WhatNobodySeesDoesNotSlide)
{
    button.setChecked(true);
    EXPECT_TRUE(knobIsAt(1));
}

TEST_F(SwitchButtonTest, FromRightToLeftOnIsAtTheLeft)
{
    button.setLayoutDirection(Qt::RightToLeft);
    EXPECT_TRUE(knobIsAt(1));
    button.setChecked(true);
    EXPECT_TRUE(knobIsAt(-1));
}

TEST_F(SwitchButtonTest, TheRingOfTheKeyboardIsAsRoundAsTheSwitch)
{
    motion.reduces = true;
    button.show();
    ASSERT_TRUE(activate(button));
    button.setFocus(Qt::TabFocusReason);
    button.setAttribute(Qt::WA_KeyboardFocusChange);
    const QImage with = picture();
    button.setAttribute(Qt::WA_KeyboardFocusChange, false);
    const QImage without = picture();
    const QPoint middle(button.width() / 2, 0);
    EXPECT_NE(with.pixel(middle), without.pixel(middle));
    // The arc of half the height crosses the diagonal at three tenths of that.
    for (int i = 0; i < button.height() / 9; ++i)
        EXPECT_EQ(with.pixel(i, i), without.pixel(i, i)) << i;
}

} // namespace
} // namespace corvane::test
