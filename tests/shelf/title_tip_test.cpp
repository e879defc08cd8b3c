#include "core/display_text.h"
#include "fakes/fake_motion_preference.h"
#include "fakes/fake_panel_window.h"
#include "fakes/fake_screens.h"
#include "fakes/fake_text_measurer.h"
#include "fakes/fake_tip_window.h"
#include "fakes/test_clock.h"
#include "platform/qt/pictures/qt_text_measurer.h"
#include "shelf/drawing/theme.h"
#include "shelf/title_tip.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <cmath>
#include <map>

namespace corvane::test {

namespace {

using Pointer = TitleTip::Pointer;

class TitleTipTest : public testing::Test {
protected:
    static QImage paintedAt(TextLayer &layer, int width)
    {
        constexpr int height = 20;
        layer.setFrame({0, 0, static_cast<double>(width), height});
        QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::black);
        QPainter painter(&image);
        painter.translate(0, height);
        painter.scale(1, -1);
        layer.render(painter, 1);
        return image;
    }

    TitleTipTest()
    {
        panel.setFrame({300, 738, 400, 62});
        otherPanel.setFrame({100, 596, 800, 132});
    }

    TitleTip::Title titleOf(const QString &text, double x = 100)
    {
        QUuid &item = m_items[text];
        if (item.isNull())
            item = QUuid::createUuid();
        return {item, text, QFont(), 54, {x, 0, 58, 62}};
    }
    TitleTip::Title cut() { return titleOf(QStringLiteral("a title that is cut")); }
    TitleTip::Title anotherCut() { return titleOf(QStringLiteral("another that is cut"), 164); }
    TitleTip::Title whole() { return titleOf(QStringLiteral("whole"), 228); }

    void pointAt(const std::optional<TitleTip::Title> &title)
    {
        tip.follow(panel, title, Pointer::Moved);
    }
    void wait() { clock.advance(TitleTip::restDelay + 0.01); }
    void showTipOf(const TitleTip::Title &title)
    {
        pointAt(title);
        wait();
        ASSERT_EQ(shown(), title.text);
    }
    /// The text of the tip, or nothing.
    QString shown() const
    {
        EXPECT_EQ(windows.isShown(), tip.card() != nullptr);
        return tip.card() ? tip.card()->lines().join(u' ') : QString();
    }

    QSizeF sizeOfCard() const { return tip.card() ? tip.card()->size() : QSizeF(); }

    TestClock clock;
    FakeMotionPreference motion;
    FakeTextMeasurer measurer;
    FakeScreens screens;
    std::shared_ptr<Screen> screen = screens.attach(QRectF(0, 0, 1000, 800));
    Theme theme{QFont(), 96};
    FakePanelWindow panel;
    FakePanelWindow otherPanel;
    FakeTipWindows windows;
    TitleTip tip{{{clock, motion, theme, measurer}, screens, {&panel, &otherPanel}, [this] {
                      return windows.make();
                  }}};

private:
    std::map<QString, QUuid> m_items;
};

} // namespace

TEST_F(TitleTipTest, TheWholeTitleIsShownOnceThePointerHasRestedOnIt)
{
    pointAt(cut());
    clock.advance(TitleTip::restDelay - 0.05);
    EXPECT_EQ(shown(), QString());
    clock.advance(0.05);
    EXPECT_EQ(shown(), cut().text);
}

TEST_F(TitleTipTest, APointerThatMovesDoesNotRest)
{
    for (int i = 0; i < 20; ++i) {
        pointAt(cut());
        clock.advance(0.2);
    }
    EXPECT_EQ(shown(), QString());
    clock.advance(TitleTip::restDelay - 0.2);
    EXPECT_EQ(shown(), cut().text);
}

TEST_F(TitleTipTest, ATitleThatIsNotCutHasNone)
{
    pointAt(whole());
    wait();
    EXPECT_EQ(shown(), QString());
}

TEST_F(TitleTipTest, ATitleThatJustFitsIsNotCut)
{
    TitleTip::Title title = cut();
    title.width = static_cast<double>(title.text.size()) * measurer.advance;
    pointAt(title);
    wait();
    EXPECT_EQ(shown(), QString());
    pointAt({});
    title.width -= 1;
    pointAt(title);
    wait();
    EXPECT_EQ(shown(), title.text);
}

TEST_F(TitleTipTest, NothingWaitsAndNoWindowIsMadeBeforeThePointerIsOnACutTitle)
{
    pointAt(whole());
    pointAt({});
    tip.dismiss();
    tip.setDragged(false);
    tip.keepInFront();
    EXPECT_EQ(clock.pendingCount(), 0U);
    EXPECT_EQ(windows.made, 0);
}

TEST_F(TitleTipTest, OnlyOnePieceOfWorkWaitsHoweverOftenThePointerMoves)
{
    for (int i = 0; i < 100; ++i) {
        pointAt(i % 2 ? cut() : anotherCut());
        EXPECT_EQ(clock.pendingCount(), 1U);
        clock.advance(0.001);
    }
}

TEST_F(TitleTipTest, ItEndsByItselfThoughNobodyTellsThatThePointerHasLeft)
{
    showTipOf(cut());
    clock.advance(TitleTip::longestShown - 0.1);
    EXPECT_EQ(shown(), cut().text);
    clock.advance(0.1);
    EXPECT_EQ(shown(), QString());
    clock.advance(60);
    EXPECT_EQ(shown(), QString());
    EXPECT_EQ(clock.pendingCount(), 0U);
}

TEST_F(TitleTipTest, TheNextOneHasAsLongAsTheFirst)
{
    showTipOf(cut());
    clock.advance(TitleTip::longestShown - 1);
    pointAt(anotherCut());
    clock.advance(TitleTip::longestShown - 1);
    EXPECT_EQ(shown(), anotherCut().text);
}

TEST_F(TitleTipTest, AllTipsShareOneWindow)
{
    showTipOf(cut());
    pointAt({});
    clock.advance(5);
    showTipOf(anotherCut());
    EXPECT_EQ(windows.made, 1);
}

TEST_F(TitleTipTest, ItIsBelowItsCellOnItsScreen)
{
    showTipOf(cut());
    EXPECT_EQ(windows.last->placement.screen, screen);
    const QRectF frame = frameOf(windows.last->placement);
    // The cell is 400 to 458 on the screen, and ends at 738.
    EXPECT_NEAR(midX(frame), 429, 0.5);
    EXPECT_EQ(maxY(frame), 738 - TitleTip::gap);
    EXPECT_EQ(frame.size(), sizeOfCard());
}

TEST_F(TitleTipTest, ItKeepsAwayFromTheOtherPanelWhileThatIsShown)
{
    otherPanel.visible = true;
    panel.visible = true;
    showTipOf(cut());
    EXPECT_FALSE(frameOf(windows.last->placement).intersects(otherPanel.frame()));
    EXPECT_FALSE(frameOf(windows.last->placement).intersects(panel.frame()));
}

TEST_F(TitleTipTest, ItIsAsMuchLargerAsItsPanel)
{
    panel.contentScale = 1.5;
    panel.setFrame({300, 707, 600, 93});
    showTipOf(cut());
    EXPECT_EQ(windows.last->placement.scale, 1.5);
    const QRectF frame = frameOf(windows.last->placement);
    EXPECT_NEAR(midX(frame), 300 + 1.5 * 129, 1);
    EXPECT_EQ(maxY(frame), 707 - 1.5 * TitleTip::gap);
    EXPECT_EQ(frame.width(), std::ceil(sizeOfCard().width() * 1.5));
}

TEST_F(TitleTipTest, ItIsOnTheScreenOfItsPanel)
{
    const auto right = screens.attach(QRectF(1000, 0, 1000, 800));
    panel.setFrame({1300, 738, 400, 62});
    showTipOf(cut());
    EXPECT_EQ(windows.last->placement.screen, right);
}

TEST_F(TitleTipTest, WithoutAScreenThereIsNone)
{
    screens.detach(screen);
    pointAt(cut());
    wait();
    EXPECT_EQ(shown(), QString());
    EXPECT_EQ(windows.made, 0);
}

TEST_F(TitleTipTest, ItEndsWhenThePointerLeaves)
{
    showTipOf(cut());
    pointAt({});
    EXPECT_EQ(shown(), QString());
    wait();
    EXPECT_EQ(shown(), QString());
}

TEST_F(TitleTipTest, ItEndsWhenThePointerComesToAWholeTitle)
{
    showTipOf(cut());
    pointAt(whole());
    EXPECT_EQ(shown(), QString());
}

TEST_F(TitleTipTest, APointerThatLeavesBeforeItHasRestedShowsNothing)
{
    pointAt(cut());
    clock.advance(0.3);
    pointAt({});
    wait();
    EXPECT_EQ(shown(), QString());
}

TEST_F(TitleTipTest, ItStaysWhileThePointerMovesOnItsCell)
{
    showTipOf(cut());
    pointAt(cut());
    EXPECT_EQ(shown(), cut().text);
}

TEST_F(TitleTipTest, FromTipToTipThePointerNeedNotRest)
{
    showTipOf(cut());
    pointAt(anotherCut());
    EXPECT_EQ(shown(), anotherCut().text);
}

TEST_F(TitleTipTest, TheGapBetweenTwoCellsIsCrossedOnTheWayFromTipToTip)
{
    showTipOf(cut());
    pointAt({});
    clock.advance(TitleTip::passage - 0.05);
    pointAt(anotherCut());
    EXPECT_EQ(shown(), anotherCut().text);
}

TEST_F(TitleTipTest, AfterAWhileBesideTheCellsThePointerHasToRestAgain)
{
    showTipOf(cut());
    pointAt({});
    clock.advance(TitleTip::passage + 0.05);
    pointAt(anotherCut());
    EXPECT_EQ(shown(), QString());
    wait();
    EXPECT_EQ(shown(), anotherCut().text);
}

TEST_F(TitleTipTest, WhatTheUserDoesEndsItUntilThePointerHasBeenElsewhere)
{
    showTipOf(cut());
    tip.dismiss();
    EXPECT_EQ(shown(), QString());
    pointAt(cut());
    wait();
    EXPECT_EQ(shown(), QString());
    pointAt({});
    showTipOf(cut());
}

TEST_F(TitleTipTest, WhatTheUserDoesBeforeItComesKeepsItAway)
{
    pointAt(cut());
    tip.dismiss();
    wait();
    EXPECT_EQ(shown(), QString());
}

TEST_F(TitleTipTest, AfterItWasDismissedTheNextTitleHasToBeRestedOn)
{
    showTipOf(cut());
    tip.dismiss();
    pointAt(anotherCut());
    EXPECT_EQ(shown(), QString());
    wait();
    EXPECT_EQ(shown(), anotherCut().text);
}

TEST_F(TitleTipTest, ADismissedCellThatMovesStaysWithoutATip)
{
    showTipOf(cut());
    tip.dismiss();
    tip.follow(panel, titleOf(cut().text, 130), Pointer::Still);
    wait();
    EXPECT_EQ(shown(), QString());
}

TEST_F(TitleTipTest, AnItemThatComesUnderAPointerAtRestHasItsTipAfterTheUsualTime)
{
    showTipOf(cut());
    tip.follow(panel, anotherCut(), Pointer::Still);
    EXPECT_EQ(shown(), QString());
    wait();
    EXPECT_EQ(shown(), anotherCut().text);
}

TEST_F(TitleTipTest, ItEndsWhenItsCellMovesAndComesAgainWhereTheCellIs)
{
    showTipOf(cut());
    tip.follow(panel, titleOf(cut().text, 130), Pointer::Still);
    EXPECT_EQ(shown(), QString());
    wait();
    EXPECT_EQ(shown(), cut().text);
    EXPECT_NEAR(midX(frameOf(windows.last->placement)), 459, 0.5);
}

TEST_F(TitleTipTest, ItEndsWhenItsItemIsGone)
{
    showTipOf(cut());
    tip.follow(panel, {}, Pointer::Still);
    EXPECT_EQ(shown(), QString());
}

TEST_F(TitleTipTest, ThereIsNoneWhileSomethingIsDragged)
{
    showTipOf(cut());
    tip.setDragged(true);
    EXPECT_EQ(shown(), QString());
    pointAt(cut());
    pointAt(anotherCut());
    wait();
    EXPECT_EQ(shown(), QString());
    tip.setDragged(false);
    showTipOf(cut());
}

TEST_F(TitleTipTest, ADragThatBeginsBeforeItComesKeepsItAway)
{
    pointAt(cut());
    tip.setDragged(true);
    wait();
    EXPECT_EQ(shown(), QString());
}

TEST_F(TitleTipTest, WhatAnotherPanelSaysDoesNotEndIt)
{
    showTipOf(cut());
    tip.follow(otherPanel, {}, Pointer::Still);
    EXPECT_EQ(shown(), cut().text);
    tip.follow(otherPanel, anotherCut(), Pointer::Moved);
    EXPECT_EQ(shown(), anotherCut().text);
    pointAt({});
    EXPECT_EQ(shown(), anotherCut().text);
}

TEST_F(TitleTipTest, AnItemOfAPanelThatThePointerIsNotOnHasNone)
{
    showTipOf(cut());
    tip.follow(otherPanel, anotherCut(), Pointer::Still);
    EXPECT_EQ(shown(), cut().text);
    wait();
    EXPECT_EQ(shown(), cut().text);
}

TEST_F(TitleTipTest, ItIsRaisedOnlyWhileItIsShown)
{
    showTipOf(cut());
    tip.keepInFront();
    EXPECT_EQ(windows.last->raises, 1);
    pointAt({});
    tip.keepInFront();
    EXPECT_EQ(windows.last->raises, 1);
}

TEST_F(TitleTipTest, ATitleIsTakenForCutExactlyWhereItsLayerCutsIt)
{
    const QtTextMeasurer realMeasurer;
    TitleTip real{{{clock, motion, theme, realMeasurer}, screens, {&panel, &otherPanel}, [this] {
                       return windows.make();
                   }}};
    LayerTree tree(clock, motion);
    TextLayer layer(tree);
    layer.setFont(theme.typography.tile);
    for (const char *text :
         {"Quarterly report.pdf", "Grüße an 你好", "تقرير الربع.pdf", "a\u202Eb"}) {
        TitleTip::Title title = titleOf(QString::fromUtf8(text));
        title.font = layer.font();
        layer.setString(title.text);
        const QImage uncut = paintedAt(layer, 400);
        const double fitting = std::floor(realMeasurer.width(displayText(title.text), title.font));
        for (title.width = fitting - 3; title.width < fitting + 4; ++title.width) {
            const auto width = static_cast<int>(title.width);
            const bool isCut = paintedAt(layer, width) != uncut.copy(0, 0, width, uncut.height());
            real.follow(panel, title, Pointer::Moved);
            wait();
            EXPECT_EQ(real.card() != nullptr, isCut) << text << " at " << width;
            real.follow(panel, {}, Pointer::Moved);
        }
    }
}

TEST_F(TitleTipTest, ItEndsWithItsOwnerThoughItWasAwaited)
{
    {
        TitleTip other{{{clock, motion, theme, measurer}, screens, {&panel, &otherPanel}, [this] {
                            return windows.make();
                        }}};
        other.follow(panel, cut(), Pointer::Moved);
    }
    wait();
    EXPECT_EQ(windows.made, 0);
}

} // namespace corvane::test
