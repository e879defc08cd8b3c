// Tips of the shelf and of the bar, as both are used.

#include "fakes/fake_drag_desktop.h"
#include "fakes/fake_tip_window.h"
#include "fakes/shelf_model.h"
#include "input/monitored_clicks.h"
#include "platform/base/geometry.h"
#include "shelf/bar/view_all_controller.h"

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

const QString cutTitle = QStringLiteral("a title of many letters.txt");
const QString otherCutTitle = QStringLiteral("another one of many letters.txt");

class PanelTips : public testing::Test, protected ShelfModel {
protected:
    PanelTips()
    {
        pointer.position = QPointF(700, 900);
        settings.setInViewCount(3);
        barContext.tip = &tip;
        bar.emplace(ViewAllController::Context{barContext, store, quickActions, clicks, feedback});
        HUDController::Context context = controllerContext();
        context.viewAll = &*bar;
        context.view.tip = &tip;
        hud.emplace(context);
    }

    void hold(const QStringList &titles)
    {
        QList<DropItem> items;
        for (const QString &title : titles)
            items << ShelfDesk::textItem(title);
        store.accept(items);
        desk.clock.advance(2);
    }

    ShelfView &shelf() { return dynamic_cast<ShelfView &>(*desk.panel.content); }
    const ViewAllView &tiles() const { return bar->view(); }
    /// In the panel's coordinates; at rest its body fills it.
    QRectF cell(std::size_t nth) { return shelf().look().layout.cells.at(nth).root; }
    QRectF tile(std::size_t nth) const { return tiles().layout().tiles.at(nth).root; }
    static QRectF onScreen(const QRectF &rect, const FakePanelWindow &panel)
    {
        return rect.translated(panel.frame().topLeft());
    }
    void pointAtCell(std::size_t nth) { shelf().mouseMoved({cell(nth).center()}); }
    void pointAtTile(std::size_t nth) { barPanel.content->mouseMoved({tile(nth).center()}); }
    void wait() { desk.clock.advance(TitleTip::restDelay + 0.01); }
    void showCell(std::size_t nth)
    {
        pointAtCell(nth);
        wait();
        ASSERT_NE(shown(), QString());
    }
    void showTile(std::size_t nth)
    {
        pointAtTile(nth);
        wait();
        ASSERT_NE(shown(), QString());
    }
    void openBar()
    {
        store.toggleViewAll();
        desk.clock.advance(2);
        ASSERT_TRUE(barPanel.visible);
    }
    QString shown() const { return tip.card() ? tip.card()->lines().join(u' ') : QString(); }
    QRectF frame() const { return frameOf(windows.last->placement); }

    FakePanelWindow barPanel;
    FakeDragDesktop desktop;
    MonitoredClicks clicks{desktop, desktop.pointer};
    FakeTipWindows windows;
    TitleTip tip{{{desk.clock, desk.motion, desk.theme, desk.fakeMeasurer},
                  screens,
                  {&desk.panel, &barPanel},
                  [this] { return windows.make(); }}};
    ViewAllView::Context barContext{barPanel,           desk.clock,      desk.motion,
                                    desk.theme,         desk.keyboard,   desk.dragWriter,
                                    desk.savedPictures, desk.preparation};
    std::optional<ViewAllController> bar;
    std::optional<HUDController> hud;
};

} // namespace

TEST_F(PanelTips, ACutTitleOfACellIsShownBelowIt)
{
    hold({QStringLiteral("a.txt"), cutTitle});
    showCell(1);
    EXPECT_EQ(shown(), cutTitle);
    EXPECT_NEAR(midX(frame()), midX(onScreen(cell(1), desk.panel)), 0.5);
    EXPECT_LT(maxY(frame()), minY(desk.panel.frame()));
}

TEST_F(PanelTips, ACutTitleOfATileIsShownBelowIt)
{
    hold({QStringLiteral("a.txt"), cutTitle});
    openBar();
    showTile(1);
    EXPECT_EQ(shown(), cutTitle);
    EXPECT_NEAR(midX(frame()), midX(onScreen(tile(1), barPanel)), 0.5);
    EXPECT_LT(maxY(frame()), minY(barPanel.frame()));
}

TEST_F(PanelTips, WholeTitlesHaveNoneInEither)
{
    hold({QStringLiteral("a.txt"), QStringLiteral("b.txt")});
    openBar();
    pointAtCell(0);
    wait();
    pointAtTile(0);
    wait();
    EXPECT_EQ(windows.made, 0);
}

TEST_F(PanelTips, ATitleHasMoreRoomWhereOneItemIsInView)
{
    settings.setInViewCount(1);
    hold({cutTitle.left(20)});
    pointAtCell(0);
    wait();
    EXPECT_EQ(shown(), QString());
    store.discard(0, false);
    const QString wide = cutTitle.repeated(3);
    hold({wide});
    shelf().mouseMoved({cell(0).topLeft() + QPointF(60, 20)});
    wait();
    EXPECT_EQ(shown().remove(u' '), QString(wide).remove(u' '));
}

TEST_F(PanelTips, FromCellToCellTheNextOneIsShownAtOnce)
{
    hold({cutTitle, otherCutTitle});
    showCell(0);
    const QString first = shown();
    shelf().mouseMoved({(cell(0).center() + cell(1).center()) / 2});
    EXPECT_EQ(shown(), QString());
    pointAtCell(1);
    EXPECT_NE(shown(), QString());
    EXPECT_NE(shown(), first);
}

TEST_F(PanelTips, FromTileToTileTheNextOneIsShownAtOnce)
{
    hold({cutTitle, otherCutTitle});
    openBar();
    showTile(0);
    const QString first = shown();
    pointAtTile(1);
    EXPECT_NE(shown(), QString());
    EXPECT_NE(shown(), first);
}

TEST_F(PanelTips, TheyEndWithThePointerLeavingThePanel)
{
    hold({cutTitle, otherCutTitle});
    showCell(0);
    shelf().mouseExited();
    EXPECT_EQ(shown(), QString());
    openBar();
    desk.clock.advance(5);
    showTile(0);
    barPanel.content->mouseExited();
    EXPECT_EQ(shown(), QString());
}

TEST_F(PanelTips, OnAControlThereIsNone)
{
    hold({cutTitle, otherCutTitle});
    openBar();
    showTile(0);
    // It lies in the columns of the first tiles or beside them.
    barPanel.content->mouseMoved({tiles().layout().selectAllBox.frame.center()});
    EXPECT_EQ(shown(), QString());
    pointAtCell(0);
    wait();
    shelf().mouseMoved({shelf().look().layout.viewAllHit.center()});
    EXPECT_EQ(shown(), QString());
}

TEST_F(PanelTips, APressEndsThemUntilThePointerHasBeenElsewhere)
{
    hold({cutTitle, otherCutTitle});
    showCell(0);
    shelf().mouseDown({cell(0).center()});
    EXPECT_EQ(shown(), QString());
    shelf().mouseUp({cell(0).center()});
    shelf().mouseMoved({cell(0).center() + QPointF(1, 0)});
    wait();
    EXPECT_EQ(shown(), QString());
    openBar();
    showTile(1);
    barPanel.content->mouseDown({tile(1).center()});
    EXPECT_EQ(shown(), QString());
    barPanel.content->mouseUp({tile(1).center()});
    wait();
    EXPECT_EQ(shown(), QString());
}

TEST_F(PanelTips, AKeyEndsThem)
{
    hold({cutTitle, otherCutTitle});
    showCell(1);
    shelf().keyDown({TypedKey::LeftArrow, {}, false});
    EXPECT_EQ(shown(), QString());
    openBar();
    showTile(0);
    barPanel.content->keyDown({TypedKey::Space, {}, false});
    EXPECT_EQ(shown(), QString());
}

TEST_F(PanelTips, TheWheelEndsThemAndTheNextTitleHasToBeRestedOn)
{
    hold({cutTitle, otherCutTitle, cutTitle, otherCutTitle, cutTitle});
    shelf().mouseExited();
    store.scrollBy(-99);
    desk.clock.advance(2);
    showCell(0);
    const QString first = shown();
    shelf().scrollWheel({-4, false, ScrollEvent::Phase::None, desk.clock.now()});
    EXPECT_EQ(shown(), QString());
    wait();
    EXPECT_NE(shown(), QString());
    EXPECT_NE(shown(), first);
}

TEST_F(PanelTips, ItEndsWithItsItem)
{
    hold({QStringLiteral("a.txt"), cutTitle});
    showCell(1);
    store.discard(1, false);
    EXPECT_EQ(shown(), QString());
    wait();
    EXPECT_EQ(shown(), QString());
}

TEST_F(PanelTips, ItEndsWithTheShelf)
{
    hold({cutTitle});
    showCell(0);
    hud->toggleByHand();
    EXPECT_EQ(shown(), QString());
    wait();
    EXPECT_EQ(shown(), QString());
}

TEST_F(PanelTips, ItEndsWithTheBar)
{
    hold({cutTitle, otherCutTitle});
    openBar();
    showTile(0);
    store.closeViewAll();
    EXPECT_EQ(shown(), QString());
    wait();
    EXPECT_EQ(shown(), QString());
}

TEST_F(PanelTips, ADragEndsIt)
{
    hold({cutTitle});
    showCell(0);
    hud->dragChanged(true);
    EXPECT_EQ(shown(), QString());
    pointAtCell(0);
    wait();
    EXPECT_EQ(shown(), QString());
    hud->dragChanged(false);
}

TEST_F(PanelTips, WhatIsDraggedOutEndsIt)
{
    hold({cutTitle, otherCutTitle});
    openBar();
    showTile(0);
    barPanel.content->mouseDown({tile(0).center()});
    barPanel.content->mouseDragged({tile(0).center() + QPointF(9, 0)});
    ASSERT_TRUE(barPanel.dragOut);
    pointAtTile(1);
    wait();
    EXPECT_EQ(shown(), QString());
    barPanel.endDragOut(DragOperation::None);
}

TEST_F(PanelTips, AShelfThatIsRaisedStaysBelowIt)
{
    hold({cutTitle, otherCutTitle});
    openBar();
    showCell(0);
    const int before = windows.last->raises;
    publishItems();
    EXPECT_EQ(windows.last->raises, before + 1);
}

TEST_F(PanelTips, OtherColoursEndIt)
{
    hold({cutTitle});
    showCell(0);
    hud->appearanceChanged();
    EXPECT_EQ(shown(), QString());
}

} // namespace corvane::test
