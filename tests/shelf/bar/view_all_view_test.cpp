#include "fakes/shelf_desk.h"
#include "platform/base/geometry.h"
#include "shelf/bar/view_all_view.h"
#include "shelf/late_contents.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QStringList>

#include <gtest/gtest.h>

#include <functional>
#include <vector>

namespace corvane::test {

namespace {

class ViewAllViewTest : public testing::Test {
protected:
    ViewAllViewTest()
    {
        desk.panel.setFrame({100, 500, 600, 132});
        view.emplace(context());
        view->onToggleItem
            = [this](const DropItem &item) { log << QStringLiteral("toggle ") + item.title(); };
        view->onToggleSelectAll = [this] { log << QStringLiteral("select all"); };
        view->onCopySelected = [this] { log << QStringLiteral("copy"); };
        view->onRemoveSelected = [this] { log << QStringLiteral("remove"); };
        view->onEjected = [this](const QList<QUuid> &ids, bool keep) {
            log << QStringLiteral("eject %1 %2").arg(ids.size()).arg(keep);
            ejected = ids;
        };
        view->onScroll = [this](int step) { log << QStringLiteral("scroll %1").arg(step); };
        view->onClose = [this] { log << QStringLiteral("close"); };
        view->onPaste = [this] { log << QStringLiteral("paste"); };
        view->onDragOutChanged = [this](bool on) { log << QStringLiteral("dragOut %1").arg(on); };
        view->onMessage = [this](const Message &message) { log << message.text(); };
    }

    ViewAllView::Context context()
    {
        return {desk.panel,    desk.clock,      desk.motion,        desk.theme,
                desk.keyboard, desk.dragWriter, desk.savedPictures, desk.preparation};
    }
    void hold(int count)
    {
        items.clear();
        selection.clear();
        for (int i = 0; i < count; ++i)
            items << ShelfDesk::textItem(QStringLiteral("item %1").arg(i));
    }
    void show(int count, int offset = 0)
    {
        hold(count);
        view->apply(items, selection, offset);
    }
    void select(std::initializer_list<int> indices)
    {
        for (const int index : indices)
            selection.insert(items[index].id());
        view->apply(items, selection, view->offset());
    }

    void paint()
    {
        QImage picture(desk.panel.frame().size().toSize(), QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&picture);
        view->paint(painter, desk.panel.frame().size(), 1);
    }
    QPointF middleOf(std::size_t tile) const { return view->layout().tiles.at(tile).root.center(); }
    QPointF middleOf(ViewAllControl control) const
    {
        return view->layout().controlHits.at(static_cast<std::size_t>(control)).center();
    }
    void click(QPointF point)
    {
        view->mouseDown({point});
        view->mouseUp({point});
    }
    void drag(QPointF from)
    {
        view->mouseDown({from});
        view->mouseDragged({from + QPointF(4, 0)});
    }
    void endDrag(DragOperation operation) const { desk.panel.endDragOut(operation); }
    void scroll(double delta, bool precise = false)
    {
        view->scrollWheel({delta, precise, ScrollEvent::Phase::None, 0});
    }
    bool key(TypedKey code, Modifiers modifiers = {})
    {
        return view->keyDown({code, modifiers, false});
    }
    QStringList takeLog() { return std::exchange(log, {}); }
    QStringList carried() const
    {
        QStringList texts;
        for (const PasteboardWriter &writer : desk.panel.dragOut->contents.writers) {
            if (const auto *text = std::get_if<PasteboardWriter::Text>(&writer.content))
                texts << text->string;
        }
        return texts;
    }

    ShelfDesk desk;
    QList<DropItem> items;
    QSet<QUuid> selection;
    QStringList log;
    QList<QUuid> ejected;
    std::optional<ViewAllView> view;
};

} // namespace

// Showing

TEST_F(ViewAllViewTest, hasOneTileForEachItemOnThePage)
{
    show(3);
    EXPECT_EQ(view->tileCount(), 3U);
    show(20);
    EXPECT_EQ(view->itemsPerPage(), 5);
    EXPECT_EQ(view->tileCount(), 5U);
    show(0);
    EXPECT_EQ(view->tileCount(), 0U);
}

TEST_F(ViewAllViewTest, keepsTheOffsetWhereThereIsAPage)
{
    show(20, 40);
    EXPECT_EQ(view->offset(), 15);
    show(20, -4);
    EXPECT_EQ(view->offset(), 0);
    show(3, 2);
    EXPECT_EQ(view->offset(), 0);
}

TEST_F(ViewAllViewTest, theBarIsItsBody)
{
    show(3);
    EXPECT_EQ(desk.panel.body, QRectF(0, 0, 600, 132));
    EXPECT_EQ(desk.panel.outline.boundingRect(), QRectF(0, 0, 600, 132));
    EXPECT_FALSE(desk.panel.outline.contains(QPointF(1, 1))) << "its corners are round";
}

TEST_F(ViewAllViewTest, followsThePanelsWidth)
{
    show(20);
    desk.panel.setFrame({100, 500, 1210, 132});
    view->apply(items, selection, 0);
    EXPECT_EQ(view->tileCount(), 12U);
    EXPECT_EQ(desk.panel.body.width(), 1210);
}

TEST_F(ViewAllViewTest, nothingInItMovesByItself)
{
    show(20);
    // What was never painted has nothing to move from.
    paint();
    for (const auto &change : std::vector<std::function<void()>>{
             [&] { view->apply(items, selection, 3); }, [&] { view->mouseMoved({middleOf(1)}); },
             [&] { view->mouseMoved({middleOf(ViewAllControl::SelectAll)}); },
             [&] {
                 select({3, 4});
             }}) {
        const int requests = desk.panel.displayRequests;
        change();
        EXPECT_GT(desk.panel.displayRequests, requests) << "it is seen at once";
        EXPECT_EQ(desk.clock.pendingCount(), 0U);
        paint();
    }
}

TEST_F(ViewAllViewTest, givesTheSelectionInTheOrderOfTheItems)
{
    show(5);
    select({4, 0, 2});
    QStringList titles;
    for (const DropItem &item : view->selectedInOrder())
        titles << item.title();
    EXPECT_EQ(titles,
              (QStringList{QStringLiteral("item 0"), QStringLiteral("item 2"),
                           QStringLiteral("item 4")}));
}

TEST_F(ViewAllViewTest, keepsNoCopyOfTheItems)
{
    show(5);
    EXPECT_TRUE(items.isDetached()) << "a shared list is copied whole by the next change";
}

TEST_F(ViewAllViewTest, beforeAnythingIsShownEveryEventIsHarmless)
{
    click({300, 60});
    drag({300, 60});
    scroll(-5);
    view->mouseMoved({QPointF(300, 60)});
    view->mouseExited();
    EXPECT_TRUE(view->selectedInOrder().isEmpty());
    EXPECT_EQ(log, QStringList());
}

// Hover

TEST_F(ViewAllViewTest, theItemUnderThePointerHasARing)
{
    show(3);
    view->mouseEntered({middleOf(1)});
    EXPECT_EQ(view->hovered(), items[1].id());
    EXPECT_EQ(view->layout().tiles[1].ringOpacity, 1);
    EXPECT_EQ(view->layout().tiles[0].ringOpacity, 0);
    view->mouseMoved({QPointF(255, 60)});
    EXPECT_FALSE(view->hovered()) << "between two tiles";
}

TEST_F(ViewAllViewTest, hoveredStaysWhileAControlIsUnderThePointer)
{
    show(5);
    view->mouseMoved({middleOf(0)});
    view->mouseMoved({middleOf(ViewAllControl::SelectAll)});
    EXPECT_EQ(view->hoveredControl(), ViewAllControl::SelectAll);
    EXPECT_EQ(view->hovered(), items[0].id());
    // In no tile's column.
    view->mouseMoved({middleOf(ViewAllControl::Back)});
    EXPECT_EQ(view->hoveredControl(), ViewAllControl::Back);
    EXPECT_EQ(view->hovered(), items[0].id());
    view->mouseMoved({middleOf(1)});
    EXPECT_FALSE(view->hoveredControl());
    EXPECT_EQ(view->hovered(), items[1].id());
}

TEST_F(ViewAllViewTest, leavingClearsBothHovers)
{
    show(5);
    view->mouseMoved({middleOf(0)});
    view->mouseMoved({middleOf(ViewAllControl::Copy)});
    view->mouseExited();
    EXPECT_FALSE(view->hovered());
    EXPECT_FALSE(view->hoveredControl());
    EXPECT_EQ(view->layout().tiles[0].ringOpacity, 0);
}

TEST_F(ViewAllViewTest, theRingFollowsThePageUnderAPointerAtRest)
{
    show(20);
    view->mouseMoved({middleOf(1)});
    view->apply(items, selection, 1);
    EXPECT_EQ(view->hovered(), items[2].id());
    EXPECT_EQ(view->layout().tiles[1].ringOpacity, 1);
}

TEST_F(ViewAllViewTest, aPointerThatRestsCausesNoRepaint)
{
    show(5);
    for (const QPointF place : {middleOf(0), middleOf(ViewAllControl::SelectAll)}) {
        int requests = desk.panel.displayRequests;
        view->mouseMoved({place});
        EXPECT_GT(desk.panel.displayRequests, requests) << "it has come there";
        paint();
        requests = desk.panel.displayRequests;
        view->mouseMoved({place + QPointF(1, 1)});
        EXPECT_EQ(desk.panel.displayRequests, requests);
    }
}

// Pressing

TEST_F(ViewAllViewTest, aPressTakesTheKeyboardAndComesToTheFront)
{
    show(3);
    view->mouseDown({QPointF(5, 5)});
    EXPECT_TRUE(desk.panel.isKey);
    EXPECT_EQ(desk.panel.log, QStringList{QStringLiteral("orderFront")});
}

TEST_F(ViewAllViewTest, controlsActOnThePress)
{
    show(20, 3);
    const std::array expected{QStringLiteral("scroll -1"), QStringLiteral("scroll 1"),
                              QStringLiteral("select all"), QStringLiteral("copy"),
                              QStringLiteral("remove")};
    for (const ViewAllControl control : allViewAllControls) {
        view->mouseDown({middleOf(control)});
        EXPECT_EQ(takeLog(), QStringList{expected.at(static_cast<std::size_t>(control))});
        view->mouseUp({middleOf(control)});
        EXPECT_EQ(takeLog(), QStringList());
    }
}

TEST_F(ViewAllViewTest, aDisabledArrowStillSendsItsStep)
{
    show(2);
    view->mouseDown({middleOf(ViewAllControl::Back)});
    view->mouseDown({middleOf(ViewAllControl::Forward)});
    EXPECT_EQ(log, (QStringList{QStringLiteral("scroll -1"), QStringLiteral("scroll 1")}));
}

TEST_F(ViewAllViewTest, aTileTogglesOnRelease)
{
    show(3);
    view->mouseDown({middleOf(1)});
    EXPECT_EQ(log, QStringList());
    view->mouseUp({middleOf(1)});
    EXPECT_EQ(log, QStringList{QStringLiteral("toggle item 1")});
    view->mouseUp({middleOf(1)});
    EXPECT_EQ(log.size(), 1) << "once for each press";
}

TEST_F(ViewAllViewTest, aTilesWholeColumnToggles)
{
    show(3);
    click({middleOf(2).x(), 131});
    click({middleOf(2).x(), 2});
    EXPECT_EQ(log, (QStringList{QStringLiteral("toggle item 2"), QStringLiteral("toggle item 2")}));
}

TEST_F(ViewAllViewTest, aControlComesBeforeTheTileBehindIt)
{
    show(5);
    // The first tile's column reaches down into the row of actions.
    const QPointF point(view->layout().tiles[0].root.x() + 40, 20);
    ASSERT_TRUE(contains(view->layout().tiles[0].root, point));
    click(point);
    EXPECT_EQ(log, QStringList{QStringLiteral("select all")});
}

TEST_F(ViewAllViewTest, anItemThatIsGoneAtTheReleaseTogglesNothing)
{
    show(3);
    view->mouseDown({middleOf(0)});
    items.removeFirst();
    view->apply(items, selection, 0);
    view->mouseUp({middleOf(0)});
    EXPECT_EQ(log, QStringList());
}

TEST_F(ViewAllViewTest, callbacksThatAreNotSetAreSkipped)
{
    view.emplace(context());
    show(20);
    for (const ViewAllControl control : allViewAllControls)
        click(middleOf(control));
    click(middleOf(0));
    drag(middleOf(0));
    endDrag(DragOperation::Copy);
    scroll(-5);
    EXPECT_TRUE(key(TypedKey::Escape));
}

// Dragging out

TEST_F(ViewAllViewTest, threePointsAreNoDrag)
{
    show(3);
    view->mouseDown({middleOf(0)});
    view->mouseDragged({middleOf(0) + QPointF(3, 0)});
    EXPECT_FALSE(desk.panel.dragOut);
    view->mouseUp({middleOf(0)});
    EXPECT_EQ(log, QStringList{QStringLiteral("toggle item 0")});
}

TEST_F(ViewAllViewTest, aPressThatBecameADragNeverToggles)
{
    show(3);
    drag(middleOf(0));
    ASSERT_TRUE(desk.panel.dragOut);
    view->mouseUp({middleOf(0)});
    endDrag(DragOperation::None);
    view->mouseUp({middleOf(0)});
    EXPECT_EQ(log, (QStringList{QStringLiteral("dragOut 1"), QStringLiteral("dragOut 0")}));
}

TEST_F(ViewAllViewTest, draggingATickedTileCarriesTheWholeSelectionInTheShelfsOrder)
{
    show(20);
    select({17, 3, 0});
    drag(middleOf(3));
    EXPECT_EQ(carried(),
              (QStringList{QStringLiteral("item 0"), QStringLiteral("item 3"),
                           QStringLiteral("item 17")}));
    endDrag(DragOperation::Copy);
    EXPECT_EQ(ejected, (QList<QUuid>{items[0].id(), items[3].id(), items[17].id()}));
}

TEST_F(ViewAllViewTest, draggingAnUntickedTileDragsOnlyThatOne)
{
    show(5);
    select({0, 1});
    drag(middleOf(3));
    EXPECT_EQ(carried(), QStringList{QStringLiteral("item 3")});
    endDrag(DragOperation::Copy);
    EXPECT_EQ(ejected, QList<QUuid>{items[3].id()});
    EXPECT_EQ(selection.size(), 2);
}

TEST_F(ViewAllViewTest, aRefusedDragEjectsNothing)
{
    show(3);
    drag(middleOf(0));
    endDrag(DragOperation::None);
    EXPECT_EQ(log, (QStringList{QStringLiteral("dragOut 1"), QStringLiteral("dragOut 0")}));
}

TEST_F(ViewAllViewTest, shiftAtTheEndKeepsTheItems)
{
    show(3);
    drag(middleOf(0));
    desk.keyboard.modifiers = Modifier::Shift;
    endDrag(DragOperation::Link);
    EXPECT_EQ(log.constLast(), QStringLiteral("eject 1 1"));
    desk.keyboard.modifiers = {};
    drag(middleOf(0));
    endDrag(DragOperation::Copy);
    EXPECT_EQ(log.constLast(), QStringLiteral("eject 1 0"));
}

TEST_F(ViewAllViewTest, ofASetOnlyThatLeavesWhichItsTargetTook)
{
    show(5);
    select({0, 1, 2});
    drag(middleOf(0));
    desk.panel.dragOutEvents.released();
    EXPECT_FALSE(log.contains(QStringLiteral("eject 3 0")));
    desk.panel.dragOutEvents.ended({DragOperation::Copy, {0, 2}, true});
    EXPECT_EQ(ejected, (QList<QUuid>{items[0].id(), items[2].id()}));
    EXPECT_EQ(log.constLast(), QStringLiteral("1 of 3 were not taken"));
}

TEST_F(ViewAllViewTest, ofASetThatWasLinkedToTheShelfsOwnFilesStay)
{
    hold(2);
    items[1] = DropItem(DropItem::File{QUrl::fromLocalFile(QStringLiteral("/usr"))},
                        QStringLiteral("picture"), {}, true);
    select({0, 1});
    drag(middleOf(0));
    log.clear();
    endDrag(DragOperation::Link);
    EXPECT_TRUE(log.contains(QStringLiteral("eject 1 0")));
    EXPECT_TRUE(log.contains(QStringLiteral("eject 1 1")));
    EXPECT_EQ(ejected, QList<QUuid>{items[1].id()}) << "what stays is told last";
}

TEST_F(ViewAllViewTest, theNextDragMayBeginWhileATargetIsBusy)
{
    show(3);
    drag(middleOf(0));
    const DragOutEvents first = desk.panel.dragOutEvents;
    first.released();
    desk.panel.dragOut.reset();
    drag(middleOf(1));
    EXPECT_TRUE(desk.panel.dragOut);
    first.ended({DragOperation::Copy, {0}, true});
    EXPECT_EQ(ejected, QList<QUuid>{items[0].id()});
}

TEST_F(ViewAllViewTest, onlyWhatWasHandedOverIsReported)
{
    hold(2);
    items << ShelfDesk::fileItem(QStringLiteral("gone.txt"));
    view->apply(items, selection, 0);
    select({0, 1, 2});
    drag(middleOf(2));
    EXPECT_EQ(carried(), (QStringList{QStringLiteral("item 0"), QStringLiteral("item 1")}));
    endDrag(DragOperation::Copy);
    EXPECT_EQ(ejected, (QList<QUuid>{items[0].id(), items[1].id()}));
    EXPECT_EQ(log.constLast(), QStringLiteral("1 of 3 were not taken"));
}

TEST_F(ViewAllViewTest, nothingThatCouldTravelStartsNoDrag)
{
    items << ShelfDesk::fileItem(QStringLiteral("gone.txt")) << ShelfDesk::textItem({});
    view->apply(items, selection, 0);
    drag(middleOf(0));
    EXPECT_FALSE(desk.panel.dragOut);
    EXPECT_EQ(log, QStringList{QStringLiteral("The file is no longer there")});
}

TEST_F(ViewAllViewTest, picturesSavedForADragServeTheNextOne)
{
    const DropItem::ImageBytes pixels{"pixels", UTType::png()};
    for (int i = 0; i < 2; ++i)
        items << DropItem(pixels, QStringLiteral("Image"), QStringLiteral("PNG"), false);
    view->apply(items, selection, 0);
    select({0, 1});
    const auto saved = [this] {
        return QDir(desk.spool.directory().toLocalFile()).entryList(QDir::Files).size();
    };
    drag(middleOf(0));
    ASSERT_TRUE(desk.panel.dragOut->whenReady);
    std::optional<PasteboardContents> handedOver;
    desk.panel.dragOut->whenReady(
        [&](const std::optional<PasteboardContents> &contents) { handedOver = contents; });
    EXPECT_FALSE(handedOver) << "they are written beside the main thread";
    desk.work.runAll();
    desk.clock.runPending();
    EXPECT_TRUE(handedOver);
    EXPECT_EQ(saved(), 2);
    endDrag(DragOperation::None);
    EXPECT_EQ(saved(), 2) << "the clipboard may hold them";
    drag(middleOf(0));
    EXPECT_FALSE(desk.panel.dragOut->whenReady) << "nothing is left to do";
    endDrag(DragOperation::Copy);
    EXPECT_EQ(saved(), 2);
}

TEST_F(ViewAllViewTest, oneItemDragsItsPictureAndSeveralAStack)
{
    show(5);
    drag(middleOf(0));
    EXPECT_EQ(desk.panel.dragOut->image.size, QSizeF(64, 64));
    EXPECT_EQ(desk.panel.dragOut->hotSpot, QPointF(32, 32));
    EXPECT_EQ(desk.panel.dragOut->image.bitmap.pixelColor(32, 3).alpha(), 255)
        << "it is seen over a white window";
    endDrag(DragOperation::None);
    select({0, 1, 2, 3});
    drag(middleOf(0));
    const QSizeF size = desk.panel.dragOut->image.size;
    EXPECT_GT(size.width(), 64);
    EXPECT_EQ(desk.panel.dragOut->hotSpot, QPointF(size.width() / 2, size.height() / 2));
}

TEST_F(ViewAllViewTest, picturesThatAreBeingMadeAreHandedOverWithTheOthersOnceTheyAreReady)
{
    hold(2);
    items << pictureBeingMade(desk);
    view->apply(items, selection, 0);
    select({0, 2});
    drag(middleOf(2));
    const auto handedOver = contentsHandedOverLate(desk);
    ASSERT_TRUE(handedOver);
    ASSERT_EQ(handedOver->writers.size(), 2U);
    const QUrl url = std::get<PasteboardWriter::File>(handedOver->writers[1].content).url;
    EXPECT_EQ(url.fileName(), QStringLiteral("scan.png"));
    EXPECT_TRUE(QFile::exists(url.toLocalFile()));
}

TEST_F(ViewAllViewTest, noSecondDragBeginsWhileOneGoesOn)
{
    show(3);
    drag(middleOf(0));
    desk.panel.dragOut.reset();
    drag(middleOf(1));
    EXPECT_FALSE(desk.panel.dragOut);
    endDrag(DragOperation::None);
    drag(middleOf(1));
    EXPECT_TRUE(desk.panel.dragOut);
}

TEST_F(ViewAllViewTest, anItemThatIsGoneIsNotDragged)
{
    show(3);
    view->mouseDown({middleOf(0)});
    items.removeFirst();
    view->apply(items, selection, 0);
    view->mouseDragged({middleOf(0) + QPointF(20, 0)});
    EXPECT_FALSE(desk.panel.dragOut);
}

TEST_F(ViewAllViewTest, aDragThatEndsAfterTheViewDoesNothing)
{
    show(3);
    drag(middleOf(0));
    view.reset();
    log.clear();
    endDrag(DragOperation::Copy);
    EXPECT_EQ(log, QStringList());
}

TEST_F(ViewAllViewTest, takesNoDrops)
{
    show(3);
    FakePasteboard pasteboard;
    pasteboard.offerText(QStringLiteral("hello"));
    for (const bool isOwn : {true, false}) {
        const DraggingInfo info{pasteboard, {300, 60}, isOwn};
        EXPECT_EQ(view->draggingEntered(info), DragOperation::None);
        EXPECT_EQ(view->draggingUpdated(info), DragOperation::None);
        EXPECT_FALSE(view->performDragOperation(info));
        view->draggingEnded();
    }
    EXPECT_EQ(pasteboard.fetched, QStringList()) << "nor does it look at them";
}

// The wheel

TEST_F(ViewAllViewTest, eachQualifyingTurnOfTheWheelMovesOneItem)
{
    show(20);
    scroll(-5);
    scroll(4);
    scroll(-400);
    EXPECT_EQ(log,
              (QStringList{QStringLiteral("scroll 1"), QStringLiteral("scroll -1"),
                           QStringLiteral("scroll 1")}));
}

TEST_F(ViewAllViewTest, aSmallSwipeDoesNothing)
{
    show(20);
    scroll(20, true);
    scroll(-33.9, true);
    EXPECT_EQ(log, QStringList());
    scroll(-34, true);
    scroll(34, true);
    EXPECT_EQ(log, (QStringList{QStringLiteral("scroll 1"), QStringLiteral("scroll -1")}));
}

TEST_F(ViewAllViewTest, scrollingDoesNotAccumulate)
{
    show(20);
    for (int i = 0; i < 10; ++i) {
        scroll(-3.9);
        scroll(-30, true);
    }
    EXPECT_EQ(log, QStringList());
}

TEST_F(ViewAllViewTest, fromRightToLeftTheWheelGoesWhereItPoints)
{
    desk.theme.direction = Qt::RightToLeft;
    show(20, 4);
    scroll(-5);
    scroll(34, true);
    click({25, 80});
    click({575, 80});
    EXPECT_EQ(log,
              (QStringList{QStringLiteral("scroll -1"), QStringLiteral("scroll 1"),
                           QStringLiteral("scroll 1"), QStringLiteral("scroll -1")}));
}

TEST_F(ViewAllViewTest, aSinglePageDoesNotScroll)
{
    show(5);
    scroll(-5);
    scroll(-50, true);
    EXPECT_EQ(log, QStringList());
}

// Keys

TEST_F(ViewAllViewTest, commandAndALetterActOnTheSelection)
{
    show(3);
    EXPECT_TRUE(key(TypedKey::A, Modifier::Command));
    EXPECT_TRUE(key(TypedKey::C, Modifier::Command));
    EXPECT_TRUE(key(TypedKey::V, Modifier::Command));
    EXPECT_EQ(log,
              (QStringList{QStringLiteral("select all"), QStringLiteral("copy"),
                           QStringLiteral("paste")}));
}

TEST_F(ViewAllViewTest, aHeldKeyActsOnce)
{
    show(3);
    for (const TypedKey code : {TypedKey::A, TypedKey::C, TypedKey::V, TypedKey::DeleteBackward,
                                TypedKey::DeleteForward, TypedKey::Escape})
        EXPECT_TRUE(view->keyDown({code, Modifier::Command, true})) << "nor is it passed on";
    EXPECT_EQ(log, QStringList());
}

TEST_F(ViewAllViewTest, hiddenItTakesNoKeysUntilItIsShownAgain)
{
    show(3);
    view->wasHidden();
    EXPECT_FALSE(key(TypedKey::DeleteBackward));
    EXPECT_FALSE(key(TypedKey::Escape));
    EXPECT_FALSE(key(TypedKey::A, Modifier::Command));
    EXPECT_EQ(log, QStringList());
    view->apply(items, selection, 0);
    EXPECT_TRUE(key(TypedKey::Escape));
    EXPECT_EQ(log, QStringList{QStringLiteral("close")});
}

TEST_F(ViewAllViewTest, hiddenItTakesNoPresses)
{
    show(3);
    desk.panel.orderFrontRegardless();
    view->wasHidden();
    desk.panel.orderOut();
    desk.panel.isKey = false;
    // Pressed before it was hidden, and told only now.
    for (double x = 5; x < desk.panel.frame().width(); x += 10) {
        for (double y = 5; y < desk.panel.frame().height(); y += 10) {
            view->mouseDown({QPointF(x, y)});
            view->mouseUp({QPointF(x, y)});
        }
    }
    EXPECT_EQ(log, QStringList());
    EXPECT_FALSE(desk.panel.isVisible());
    EXPECT_FALSE(desk.panel.isKey);
}

TEST_F(ViewAllViewTest, hiddenItForgetsThePressAndThePointer)
{
    show(3);
    view->mouseMoved({middleOf(1)});
    view->mouseDown({middleOf(1)});
    view->wasHidden();
    view->apply(items, selection, 0);
    EXPECT_FALSE(view->hovered());
    view->mouseDragged({middleOf(1) + QPointF(30, 0)});
    EXPECT_FALSE(desk.panel.dragOut);
    view->mouseUp({middleOf(1)});
    EXPECT_EQ(log, QStringList());
}

TEST_F(ViewAllViewTest, plainLettersArePassedOn)
{
    show(3);
    EXPECT_FALSE(key(TypedKey::A));
    EXPECT_FALSE(key(TypedKey::C));
    EXPECT_FALSE(key(TypedKey::C, Modifier::Shift));
    EXPECT_FALSE(key(TypedKey::V));
    EXPECT_FALSE(key(TypedKey::UpArrow));
    EXPECT_FALSE(key(TypedKey::Unknown));
    EXPECT_EQ(log, QStringList());
}

TEST_F(ViewAllViewTest, deleteRemovesAndEscapeCloses)
{
    show(3);
    EXPECT_TRUE(key(TypedKey::DeleteBackward));
    EXPECT_TRUE(key(TypedKey::DeleteForward, Modifier::Shift));
    EXPECT_TRUE(key(TypedKey::Escape));
    EXPECT_EQ(
        log,
        (QStringList{QStringLiteral("remove"), QStringLiteral("remove"), QStringLiteral("close")}));
}

} // namespace corvane::test
