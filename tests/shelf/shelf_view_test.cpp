#include "fakes/shelf_desk.h"
#include "shelf/late_contents.h"

#include <QDir>
#include <QFile>
#include <QStringList>

#include <gtest/gtest.h>

#include <limits>

namespace corvane::test {

namespace {

class ShelfViewTest : public testing::Test {
protected:
    ShelfViewTest()
    {
        view.onDropAccepted = [this](const QList<DropItem> &items) {
            log << QStringLiteral("drop %1").arg(items.size());
        };
        view.onEjected = [this](const QUuid &id, bool keep) {
            log << QStringLiteral("eject %1").arg(keep);
            ejected = id;
        };
        view.onRemove = [this](int index) { log << QStringLiteral("remove %1").arg(index); };
        view.onFocus = [this](int index) { log << QStringLiteral("focus %1").arg(index); };
        view.onScroll = [this](int steps) { log << QStringLiteral("scroll %1").arg(steps); };
        view.onCopy = [this] { log << QStringLiteral("copy"); };
        view.onQuickLook = [this] { log << QStringLiteral("quickLook"); };
        view.onViewAll = [this] { log << QStringLiteral("viewAll"); };
        view.onDragOutChanged = [this](bool on) { log << QStringLiteral("dragOut %1").arg(on); };
        view.apply({});
    }

    ShelfSnapshot holding(int total, int inView, int first = 0)
    {
        ShelfSnapshot snapshot;
        snapshot.state = ShelfState::Occupied;
        snapshot.inViewCount = inView;
        snapshot.totalCount = total;
        snapshot.focusedIndex = first;
        for (int i = first; i < std::min(total, first + inView); ++i)
            snapshot.visible.emplace_back(i, ShelfDesk::textItem(QStringLiteral("item %1").arg(i)));
        snapshot.canScrollForward = first + inView < total;
        snapshot.canScrollBack = first > 0;
        return snapshot;
    }

    void show(const ShelfSnapshot &snapshot)
    {
        ShelfDesk::fit(desk.panel, view, snapshot);
        view.apply(snapshot);
        desk.clock.advance(2);
        log.clear();
    }

    const ShelfLayout &layout() const { return view.look().layout; }
    void press(QPointF point) { view.mouseDown({point}); }
    QPointF middleOf(std::size_t cell) const { return layout().cells[cell].root.center(); }
    void scroll(double delta, bool precise = false,
                ScrollEvent::Phase phase = ScrollEvent::Phase::None, double time = 0)
    {
        view.scrollWheel({delta, precise, phase, time});
    }
    bool key(TypedKey code, Modifiers modifiers = {})
    {
        return view.keyDown({code, modifiers, false});
    }

    FakePasteboard textOnPasteboard()
    {
        FakePasteboard pasteboard;
        pasteboard.offered = QStringList{QStringLiteral("text/plain")};
        pasteboard.text = QStringLiteral("hello");
        return pasteboard;
    }

    ShelfDesk desk;
    QStringList log;
    QUuid ejected;
    ShelfView view{desk.context()};
};

} // namespace

// Snapshots

TEST_F(ShelfViewTest, HasOneCellForEachVisibleItem)
{
    show(holding(5, 3));
    EXPECT_EQ(view.cellCount(), 3U);
    show(holding(1, 1));
    EXPECT_EQ(view.cellCount(), 1U);
}

TEST_F(ShelfViewTest, SlidesDownWhenItOpensAndUpWhenItCloses)
{
    show(holding(1, 1));
    const double open = desk.panel.outline.boundingRect().bottom();
    view.apply({});
    EXPECT_TRUE(view.isMoving());
    desk.clock.advance(0.1);
    ShelfDesk::paint(view, desk.panel);
    EXPECT_GT(desk.panel.outline.boundingRect().bottom(), open);
    desk.clock.advance(1);
    EXPECT_FALSE(view.isMoving());
    ShelfDesk::paint(view, desk.panel);
    EXPECT_EQ(ShelfDesk::paint(view, desk.panel).pixelColor(100, 20).alpha(), 0);
}

TEST_F(ShelfViewTest, ThePanelIsCutToWhereTheShelfComesToRest)
{
    show(holding(1, 1));
    view.apply({});
    desk.clock.advance(2);
    ShelfDesk::paint(view, desk.panel);
    view.apply(holding(1, 1));
    for (int frame = 0; frame < 60; ++frame) {
        desk.clock.advance(1.0 / 60);
        ShelfDesk::paint(view, desk.panel);
    }
    EXPECT_EQ(desk.panel.outline.boundingRect(), desk.panel.body);
}

TEST_F(ShelfViewTest, OpensInItsNewShapeAndOnlySlides)
{
    show(holding(5, 3));
    view.apply({});
    desk.clock.advance(2);
    const ShelfSnapshot snapshot = holding(1, 1);
    ShelfDesk::fit(desk.panel, view, snapshot);
    view.apply(snapshot);
    EXPECT_DOUBLE_EQ(desk.panel.outline.boundingRect().width(), layout().size.width());
}

TEST_F(ShelfViewTest, WhatSlidesIsWhatWillStandThere)
{
    show(holding(5, 3));
    view.apply({});
    desk.clock.advance(2);
    ShelfDesk::paint(view, desk.panel);
    view.apply(holding(5, 3));
    ShelfDesk::paint(view, desk.panel);
    desk.clock.advance(0.1);
    const QImage sliding = ShelfDesk::paint(view, desk.panel);
    const int up = qRound(view.layers().root().presentedTransform().dy);
    desk.clock.advance(2);
    const QImage resting = ShelfDesk::paint(view, desk.panel);
    ASSERT_GT(up, 5);
    ASSERT_LT(up, sliding.height() - 5);
    const QSize both(sliding.width(), sliding.height() - up);
    EXPECT_EQ(sliding.copy({{0, 0}, both}), resting.copy({{0, up}, both}));
}

TEST_F(ShelfViewTest, WithReducedMotionItIsThereAtOnce)
{
    desk.motion.reduces = true;
    const ShelfSnapshot snapshot = holding(1, 1);
    ShelfDesk::fit(desk.panel, view, snapshot);
    view.apply(snapshot);
    EXPECT_FALSE(view.isMoving());
    EXPECT_EQ(ShelfDesk::paint(view, desk.panel).pixelColor(100, 2).alpha(), 255);
}

TEST_F(ShelfViewTest, AnUnchangedSnapshotAsksForNoRepaint)
{
    show(holding(5, 3));
    ShelfSnapshot same = view.look().snapshot;
    const int requests = desk.panel.displayRequests;
    view.apply(same);
    EXPECT_EQ(desk.panel.displayRequests, requests);
}

TEST_F(ShelfViewTest, TheBodyHangsFromTheTopCentreOfALargerPanel)
{
    show(holding(1, 3));
    desk.panel.setFrame({0, 0, 316, 80});
    view.panelWasResized();
    EXPECT_EQ(desk.panel.body, QRectF(106, 18, 104, 62));
    EXPECT_DOUBLE_EQ(desk.panel.outline.boundingRect().left(), 106);
}

// Clicks

TEST_F(ShelfViewTest, AClickBesideTheBodyDoesNothing)
{
    show(holding(1, 3));
    desk.panel.setFrame({0, 0, 316, 80});
    view.panelWasResized();
    press({105, 60});
    press({150, 17});
    EXPECT_TRUE(log.isEmpty());
    EXPECT_FALSE(desk.panel.isKey);
    EXPECT_FALSE(view.hitTest({150, 17}));
    EXPECT_TRUE(view.hitTest({150, 18}));
    EXPECT_FALSE(view.hitTest({210, 30})) << "half-open at the right";
    EXPECT_TRUE(view.hitTest({106, 30})) << "the rectangle takes clicks, not the outline";
}

TEST_F(ShelfViewTest, AClosedShelfTakesNoClick)
{
    show(holding(1, 3));
    view.apply({});
    EXPECT_FALSE(view.hitTest({50, 30}));
}

TEST_F(ShelfViewTest, AClickTakesTheKeyboard)
{
    show(holding(1, 1));
    press(middleOf(0));
    EXPECT_TRUE(desk.panel.isKey);
}

TEST_F(ShelfViewTest, ArrowsScrollByOne)
{
    show(holding(5, 3));
    press(layout().arrowHits[0].center());
    press(layout().arrowHits[1].center());
    EXPECT_EQ(log, (QStringList{QStringLiteral("scroll -1"), QStringLiteral("scroll 1")}));
}

TEST_F(ShelfViewTest, FromRightToLeftKeysWheelAndArrowsGoWhereTheyPoint)
{
    desk.theme.direction = Qt::RightToLeft;
    show(holding(9, 3, 4));
    ASSERT_TRUE(layout().isMirrored);
    key(TypedKey::LeftArrow);
    key(TypedKey::RightArrow);
    EXPECT_EQ(log, (QStringList{QStringLiteral("focus 5"), QStringLiteral("focus 3")}));
    log.clear();
    // What lies to the left is later.
    scroll(4);
    scroll(-28, true, ScrollEvent::Phase::Changed);
    press({34, 30});
    press({desk.panel.frame().width() - 34, 30});
    EXPECT_EQ(log,
              (QStringList{QStringLiteral("scroll 1"), QStringLiteral("scroll -1"),
                           QStringLiteral("scroll 1"), QStringLiteral("scroll -1")}));
}

TEST_F(ShelfViewTest, FromRightToLeftAnItemIsDraggedByThePointWhereItWasPressed)
{
    desk.theme.direction = Qt::RightToLeft;
    show(holding(3, 1));
    const auto &cell = layout().cells[0];
    const QPointF corner = cell.root.topLeft() + cell.thumb.topLeft();
    EXPECT_GT(corner.x(), desk.panel.frame().width() / 2);
    view.mouseDown({corner + QPointF(3, 5)});
    view.mouseDragged({corner + QPointF(20, 5)});
    ASSERT_TRUE(desk.panel.dragOut);
    EXPECT_EQ(desk.panel.dragOut->hotSpot, QPointF(3, 5));
}

TEST_F(ShelfViewTest, TheViewAllButtonAsksForTheBar)
{
    show(holding(5, 3));
    press(layout().viewAllHit.center());
    EXPECT_EQ(log, QStringList{QStringLiteral("viewAll")});
}

TEST_F(ShelfViewTest, ABadgeRemovesItsItem)
{
    show(holding(5, 3, 1));
    const auto &cell = layout().cells[2];
    press(cell.root.topLeft() + cell.badge.center());
    EXPECT_EQ(log, QStringList{QStringLiteral("remove 3")});
}

TEST_F(ShelfViewTest, ThereIsNoBadgeWithOneInView)
{
    show(holding(1, 1));
    const auto &cell = layout().cells[0];
    press(cell.root.topLeft() + cell.badge.center());
    EXPECT_TRUE(log.isEmpty());
}

TEST_F(ShelfViewTest, ActionButtonsPreviewCopyAndRemoveTheFocusedItem)
{
    show(holding(5, 1, 2));
    for (const QRectF &hit : layout().actionHits)
        press(hit.center());
    EXPECT_EQ(log,
              (QStringList{QStringLiteral("quickLook"), QStringLiteral("copy"),
                           QStringLiteral("remove 2")}));
}

TEST_F(ShelfViewTest, AClickOnACellFocusesItUnlessItIsFocused)
{
    show(holding(5, 3));
    press(middleOf(0));
    EXPECT_TRUE(log.isEmpty());
    press(middleOf(2));
    EXPECT_EQ(log, QStringList{QStringLiteral("focus 2")});
}

TEST_F(ShelfViewTest, ACallbackThatIsNotSetIsSkipped)
{
    view.onScroll = nullptr;
    view.onViewAll = nullptr;
    view.onCopy = nullptr;
    show(holding(5, 3));
    press(layout().arrowHits[0].center());
    press(layout().viewAllHit.center());
    EXPECT_TRUE(key(TypedKey::C, Modifier::Command));
}

// Hover

TEST_F(ShelfViewTest, HoverFollowsThePointerAndEndsWithIt)
{
    show(holding(5, 3));
    view.mouseMoved({middleOf(1)});
    EXPECT_TRUE(view.look().isHovering);
    EXPECT_EQ(view.look().hovered, ShelfHit(shelf_hit::Cell{1}));
    view.mouseExited();
    EXPECT_FALSE(view.look().isHovering);
    EXPECT_EQ(view.look().hovered, ShelfHit());
    const int requests = desk.panel.displayRequests;
    view.mouseExited();
    EXPECT_EQ(desk.panel.displayRequests, requests);
}

TEST_F(ShelfViewTest, ThePointerBesideTheBodyHoversNothing)
{
    show(holding(1, 3));
    desk.panel.setFrame({0, 0, 316, 80});
    view.mouseMoved({QPointF(20, 60)});
    EXPECT_FALSE(view.look().isHovering);
}

TEST_F(ShelfViewTest, HoverFollowsTheShelfUnderARestingPointer)
{
    show(holding(9, 3, 1));
    view.mouseMoved({middleOf(1)});
    EXPECT_EQ(view.look().hovered, ShelfHit(shelf_hit::Cell{2}));
    show(holding(9, 3, 2));
    EXPECT_EQ(view.look().hovered, ShelfHit(shelf_hit::Cell{3}));
    view.apply({});
    EXPECT_FALSE(view.look().isHovering);
}

// Keys

TEST_F(ShelfViewTest, SpaceHeldDownPresentsOnce)
{
    show(holding(5, 3, 1));
    log.clear();
    EXPECT_TRUE(view.keyDown({TypedKey::Space, {}, false}));
    EXPECT_TRUE(view.keyDown({TypedKey::Space, {}, true}));
    EXPECT_EQ(log.size(), 1);
}

TEST_F(ShelfViewTest, AHeldKeyRemovesCopiesAndTogglesOnceAndMovesOn)
{
    show(holding(5, 3, 1));
    for (const TypedKey code : {TypedKey::Escape, TypedKey::DeleteBackward, TypedKey::DeleteForward,
                                TypedKey::Space, TypedKey::DownArrow, TypedKey::C})
        EXPECT_TRUE(view.keyDown({code, Modifier::Command, true})) << "nor is it passed on";
    EXPECT_TRUE(log.isEmpty());
    EXPECT_TRUE(view.keyDown({TypedKey::RightArrow, {}, true}));
    EXPECT_TRUE(view.keyDown({TypedKey::LeftArrow, {}, true}));
    EXPECT_EQ(log, (QStringList{QStringLiteral("focus 2"), QStringLiteral("focus 0")}));
}

TEST_F(ShelfViewTest, AClosedShelfTakesNoKeyAndNoWheel)
{
    ShelfSnapshot closing = holding(5, 3);
    show(closing);
    closing.state = ShelfState::Idle;
    view.apply(closing);
    for (const TypedKey code : {TypedKey::Escape, TypedKey::DeleteBackward, TypedKey::Space,
                                TypedKey::RightArrow, TypedKey::DownArrow})
        EXPECT_FALSE(key(code));
    scroll(40);
    EXPECT_TRUE(log.isEmpty());
}

TEST_F(ShelfViewTest, APressIsForgottenWhenTheShelfCloses)
{
    const ShelfSnapshot open = holding(5, 3);
    show(open);
    press(middleOf(0));
    ShelfSnapshot closed = open;
    closed.state = ShelfState::Idle;
    view.apply(closed);
    view.apply(open);
    view.mouseDragged({middleOf(0) + QPointF(30, 0)});
    EXPECT_FALSE(desk.panel.dragOut);
}

TEST_F(ShelfViewTest, ASingleItemInViewIsFocusedAndThenActedOn)
{
    ShelfSnapshot snapshot = holding(5, 1, 2);
    snapshot.focusedIndex = 4;
    show(snapshot);
    press(layout().actionHits[static_cast<std::size_t>(ShelfAction::Clear)].center());
    EXPECT_EQ(log, (QStringList{QStringLiteral("focus 2"), QStringLiteral("remove 2")}));
    log.clear();
    EXPECT_TRUE(key(TypedKey::C, Modifier::Command));
    EXPECT_TRUE(key(TypedKey::Space));
    EXPECT_TRUE(key(TypedKey::Escape));
    EXPECT_EQ(log.join(u','), QStringLiteral("focus 2,copy,focus 2,quickLook,focus 2,remove 2"));
}

TEST_F(ShelfViewTest, AmongSeveralAFocusOutOfViewIsShownAndNothingMore)
{
    ShelfSnapshot snapshot = holding(9, 3, 2);
    snapshot.focusedIndex = 7;
    show(snapshot);
    EXPECT_TRUE(key(TypedKey::C, Modifier::Command));
    EXPECT_TRUE(key(TypedKey::Space));
    EXPECT_TRUE(key(TypedKey::Escape));
    EXPECT_TRUE(key(TypedKey::DeleteForward));
    EXPECT_EQ(log.join(u','), QStringLiteral("focus 7,focus 7,focus 7,focus 7"));
}

TEST_F(ShelfViewTest, KeysDoWhatTheyShould)
{
    show(holding(5, 3, 1));
    EXPECT_TRUE(key(TypedKey::C, Modifier::Command));
    EXPECT_TRUE(key(TypedKey::C, Modifier::Command | Modifier::Option));
    EXPECT_TRUE(key(TypedKey::Space));
    EXPECT_TRUE(key(TypedKey::DeleteBackward));
    EXPECT_TRUE(key(TypedKey::DeleteForward));
    EXPECT_TRUE(key(TypedKey::Escape));
    EXPECT_TRUE(key(TypedKey::LeftArrow));
    EXPECT_TRUE(key(TypedKey::RightArrow));
    EXPECT_TRUE(key(TypedKey::DownArrow));
    EXPECT_EQ(
        log.join(u','),
        QStringLiteral("copy,copy,quickLook,remove 1,remove 1,remove 1,focus 0,focus 2,viewAll"));
}

TEST_F(ShelfViewTest, OtherKeysArePassedOn)
{
    show(holding(5, 3));
    EXPECT_FALSE(key(TypedKey::C)) << "C without Command";
    EXPECT_FALSE(key(TypedKey::Unknown));
    EXPECT_FALSE(key(TypedKey{126}));
    EXPECT_TRUE(log.isEmpty());
}

TEST_F(ShelfViewTest, WithNoItemVisibleKeysForItemsArePassedOn)
{
    ShelfSnapshot empty;
    empty.state = ShelfState::Expanded;
    show(empty);
    EXPECT_FALSE(key(TypedKey::C, Modifier::Command));
    EXPECT_FALSE(key(TypedKey::Space));
    EXPECT_FALSE(key(TypedKey::DownArrow));
    EXPECT_FALSE(key(TypedKey::DeleteBackward));
    EXPECT_TRUE(log.isEmpty());
}

TEST_F(ShelfViewTest, AnOverflowingFocusEndsTheProcess)
{
    ShelfSnapshot snapshot = holding(1, 1);
    snapshot.focusedIndex = std::numeric_limits<int>::max();
    show(snapshot);
    EXPECT_DEATH(key(TypedKey::RightArrow), "overflowed");
    snapshot.focusedIndex = std::numeric_limits<int>::min();
    view.apply(snapshot);
    EXPECT_DEATH(key(TypedKey::LeftArrow), "overflowed");
}

// Scrolling

TEST_F(ShelfViewTest, AWheelScrollOfTenIsTwoStepsBackAndLeavesTwo)
{
    show(holding(9, 3));
    scroll(10);
    EXPECT_EQ(log, (QStringList{QStringLiteral("scroll -1"), QStringLiteral("scroll -1")}));
    scroll(2);
    EXPECT_EQ(log.size(), 3) << "2 were left";
}

TEST_F(ShelfViewTest, ATouchpadScrollOf27IsNotYetAStep)
{
    show(holding(9, 3));
    scroll(27, true, ScrollEvent::Phase::Changed);
    EXPECT_TRUE(log.isEmpty());
    scroll(1, true, ScrollEvent::Phase::Changed);
    EXPECT_EQ(log, QStringList{QStringLiteral("scroll -1")});
    scroll(-28, true, ScrollEvent::Phase::Changed);
    EXPECT_EQ(log.last(), QStringLiteral("scroll 1"));
}

TEST_F(ShelfViewTest, TheEndOfAScrollForgetsTheRemainder)
{
    show(holding(9, 3));
    scroll(20, true, ScrollEvent::Phase::Changed);
    scroll(0, true, ScrollEvent::Phase::Ended);
    scroll(20, true, ScrollEvent::Phase::Changed);
    EXPECT_TRUE(log.isEmpty());
}

TEST_F(ShelfViewTest, WithoutPhasesARemainderIsForgottenAfterAQuarterSecond)
{
    show(holding(9, 3));
    scroll(3, false, ScrollEvent::Phase::None, 10);
    scroll(3, false, ScrollEvent::Phase::None, 10.2);
    EXPECT_EQ(log.size(), 1) << "a fine wheel adds up";
    scroll(1, false, ScrollEvent::Phase::None, 10.3);
    scroll(3, false, ScrollEvent::Phase::None, 10.6);
    EXPECT_EQ(log.size(), 1);
}

TEST_F(ShelfViewTest, ScrollingNeedsMoreItemsThanFit)
{
    show(holding(3, 3));
    scroll(40);
    EXPECT_TRUE(log.isEmpty());
}

// Dropping

TEST_F(ShelfViewTest, AnEnteringDragWithSomethingForUsIsCopied)
{
    ShelfSnapshot snapshot;
    snapshot.state = ShelfState::Expanded;
    show(snapshot);
    FakePasteboard pasteboard = textOnPasteboard();
    EXPECT_EQ(view.draggingEntered({pasteboard, {}, false}), DragOperation::Copy);
    EXPECT_TRUE(view.look().isDragTargeted);
    EXPECT_EQ(view.draggingUpdated({pasteboard, {}, false}), DragOperation::Copy);
    EXPECT_TRUE(view.performDragOperation({pasteboard, {}, false}));
    EXPECT_FALSE(view.look().isDragTargeted);
    EXPECT_EQ(log, QStringList{QStringLiteral("drop 1")});
}

TEST_F(ShelfViewTest, AClosedShelfRefusesDrags)
{
    FakePasteboard pasteboard = textOnPasteboard();
    EXPECT_EQ(view.draggingEntered({pasteboard, {}, false}), DragOperation::None);
    EXPECT_EQ(view.draggingUpdated({pasteboard, {}, false}), DragOperation::None);
    EXPECT_FALSE(view.look().isDragTargeted);
}

TEST_F(ShelfViewTest, ADragWithNothingForUsIsRefusedAndStaysRefused)
{
    show(holding(1, 1));
    FakePasteboard pasteboard;
    pasteboard.offered = QStringList{QStringLiteral("application/x-unknown")};
    EXPECT_EQ(view.draggingEntered({pasteboard, {}, false}), DragOperation::None);
    pasteboard = textOnPasteboard();
    EXPECT_EQ(view.draggingUpdated({pasteboard, {}, false}), DragOperation::None);
}

TEST_F(ShelfViewTest, OurOwnDragsAreRefused)
{
    show(holding(1, 1));
    FakePasteboard pasteboard = textOnPasteboard();
    EXPECT_EQ(view.draggingEntered({pasteboard, {}, true}), DragOperation::None);
    EXPECT_FALSE(view.performDragOperation({pasteboard, {}, true}));
    EXPECT_TRUE(log.isEmpty());
}

TEST_F(ShelfViewTest, ADropThatIsOnItsWayKeepsTheTargetedLookUntilItIsHere)
{
    QStringList awaited;
    view.onAwaitsDrop = [&](bool awaits) { awaited << QString::number(awaits); };
    ShelfSnapshot snapshot;
    snapshot.state = ShelfState::Expanded;
    show(snapshot);
    FakePasteboard pasteboard = textOnPasteboard();
    view.draggingEntered({pasteboard, {}, false});
    view.dropIsAwaited();
    view.dropIsAwaited();
    EXPECT_TRUE(view.look().isDragTargeted);
    EXPECT_TRUE(view.performDragOperation({pasteboard, {}, false}));
    view.draggingEnded();
    EXPECT_TRUE(view.look().isDragTargeted);
    EXPECT_EQ(awaited, QStringList({QStringLiteral("1"), QStringLiteral("1")}))
        << "the first of two is here";
    EXPECT_TRUE(view.performDragOperation({pasteboard, {}, false}));
    EXPECT_FALSE(view.look().isDragTargeted);
    EXPECT_EQ(awaited.last(), QStringLiteral("0"));
}

TEST_F(ShelfViewTest, ADropThatComesUnderAnotherDragLeavesThatOneWelcome)
{
    ShelfSnapshot snapshot;
    snapshot.state = ShelfState::Expanded;
    show(snapshot);
    FakePasteboard pasteboard = textOnPasteboard();
    view.draggingEntered({pasteboard, {}, false});
    view.dropIsAwaited();
    view.draggingEntered({pasteboard, {}, false});
    view.performDragOperation({pasteboard, {}, false});
    EXPECT_TRUE(view.look().isDragTargeted);
}

TEST_F(ShelfViewTest, ADropThatYieldsNothingFails)
{
    show(holding(1, 1));
    FakePasteboard pasteboard = textOnPasteboard();
    view.draggingEntered({pasteboard, {}, false});
    pasteboard.text.reset();
    EXPECT_FALSE(view.performDragOperation({pasteboard, {}, false}));
    EXPECT_FALSE(view.look().isDragTargeted);
    EXPECT_TRUE(log.isEmpty());
}

TEST_F(ShelfViewTest, ADragThatLeavesEndsTheTargetedLook)
{
    show(holding(1, 1));
    FakePasteboard pasteboard = textOnPasteboard();
    view.draggingEntered({pasteboard, {}, false});
    view.draggingExited();
    EXPECT_FALSE(view.look().isDragTargeted);
    view.draggingEntered({pasteboard, {}, false});
    view.draggingEnded();
    EXPECT_FALSE(view.look().isDragTargeted);
}

// Dragging out

TEST_F(ShelfViewTest, ADragOutStartsAboveThreePoints)
{
    show(holding(1, 1));
    const QPointF from = middleOf(0);
    press(from);
    view.mouseDragged({from + QPointF(3, 0)});
    EXPECT_FALSE(desk.panel.dragOut);
    view.mouseDragged({from + QPointF(0, 3.1)});
    ASSERT_TRUE(desk.panel.dragOut);
    EXPECT_EQ(log, QStringList{QStringLiteral("dragOut 1")});
    EXPECT_EQ(desk.panel.dragOut->contents.writers.size(), 1U);
}

TEST_F(ShelfViewTest, AMoveAfterTheButtonRoseStartsNoDrag)
{
    show(holding(1, 1));
    const QPointF from = middleOf(0);
    press(from);
    view.mouseUp({from});
    view.mouseDragged({from + QPointF(30, 0)});
    EXPECT_FALSE(desk.panel.dragOut);
}

TEST_F(ShelfViewTest, AnItemThatIsGoneStartsNoDrag)
{
    show(holding(5, 3));
    const QPointF from = middleOf(2);
    press(from);
    show(holding(2, 3));
    view.mouseDragged({from + QPointF(30, 0)});
    EXPECT_FALSE(desk.panel.dragOut);
}

TEST_F(ShelfViewTest, WhatWasPressedIsDraggedAlsoWhenAnItemBeforeItLeavesMeanwhile)
{
    const ShelfSnapshot before = holding(3, 3);
    show(before);
    const QPointF from = middleOf(1);
    press(from);
    // The target of an earlier drag says only now that it has the first one.
    ShelfSnapshot after = holding(2, 3);
    after.visible = {{0, before.visible[1].second}, {1, before.visible[2].second}};
    show(after);
    view.mouseDragged({from + QPointF(9, 0)});
    ASSERT_TRUE(desk.panel.dragOut);
    EXPECT_EQ(view.look().draggedItem, before.visible[1].second.id());
}

TEST_F(ShelfViewTest, AFileThatIsGoneIsNotDraggedAndTheUserIsTold)
{
    ShelfSnapshot snapshot = holding(1, 1);
    snapshot.visible[0].second = ShelfDesk::fileItem(QStringLiteral("gone.txt"));
    show(snapshot);
    const QPointF from = middleOf(0);
    press(from);
    view.mouseDragged({from + QPointF(30, 0)});
    EXPECT_FALSE(desk.panel.dragOut);
    EXPECT_EQ(view.look().flashMessage, QStringLiteral("The file is no longer there"));
    EXPECT_TRUE(log.isEmpty());
}

TEST_F(ShelfViewTest, APictureThatIsBeingMadeIsDraggedAndHandedOverOnceItIsReady)
{
    const DropItem item = pictureBeingMade(desk);
    ShelfSnapshot snapshot = holding(1, 1);
    snapshot.visible[0].second = item;
    show(snapshot);
    press(middleOf(0));
    view.mouseDragged({middleOf(0) + QPointF(9, 0)});
    const auto handedOver = contentsHandedOverLate(desk);
    ASSERT_TRUE(handedOver);
    const QUrl url = std::get<PasteboardWriter::File>(handedOver->writers.at(0).content).url;
    EXPECT_EQ(url, std::get<DropItem::File>(item.payload()).url);
    EXPECT_TRUE(QFile::exists(url.toLocalFile()));
}

TEST_F(ShelfViewTest, WhatIsReadyIsHandedOverAtOnce)
{
    show(holding(1, 1));
    press(middleOf(0));
    view.mouseDragged({middleOf(0) + QPointF(9, 0)});
    ASSERT_TRUE(desk.panel.dragOut);
    EXPECT_FALSE(desk.panel.dragOut->whenReady);
}

TEST_F(ShelfViewTest, OnlyOneDragOutRunsAtATime)
{
    show(holding(5, 3));
    press(middleOf(0));
    view.mouseDragged({middleOf(0) + QPointF(9, 0)});
    desk.panel.dragOut.reset();
    press(middleOf(1));
    view.mouseDragged({middleOf(1) + QPointF(9, 0)});
    EXPECT_FALSE(desk.panel.dragOut);
}

TEST_F(ShelfViewTest, ADropElsewhereEjectsTheItemByItsId)
{
    const ShelfSnapshot snapshot = holding(5, 3);
    show(snapshot);
    press(middleOf(0));
    view.mouseDragged({middleOf(0) + QPointF(9, 0)});
    log.clear();
    desk.panel.endDragOut(DragOperation::Copy);
    EXPECT_EQ(log, (QStringList{QStringLiteral("dragOut 0"), QStringLiteral("eject 0")}));
    EXPECT_EQ(ejected, snapshot.visible[0].second.id());
    EXPECT_FALSE(view.look().draggedItem);
}

TEST_F(ShelfViewTest, ShiftHeldAtTheEndKeepsTheItem)
{
    show(holding(1, 1));
    press(middleOf(0));
    desk.keyboard.modifiers = Modifier::Shift;
    view.mouseDragged({middleOf(0) + QPointF(9, 0)});
    desk.keyboard.modifiers = {};
    desk.keyboard.modifiers = Modifier::Shift;
    log.clear();
    desk.panel.endDragOut(DragOperation::Link);
    EXPECT_EQ(log.last(), QStringLiteral("eject 1"));
}

TEST_F(ShelfViewTest, ShiftHeldOnlyDuringTheDragDoesNotKeepIt)
{
    show(holding(1, 1));
    press(middleOf(0));
    desk.keyboard.modifiers = Modifier::Shift;
    view.mouseDragged({middleOf(0) + QPointF(9, 0)});
    desk.keyboard.modifiers = {};
    log.clear();
    desk.panel.endDragOut(DragOperation::Copy);
    EXPECT_EQ(log.last(), QStringLiteral("eject 0"));
}

TEST_F(ShelfViewTest, ARefusedDropLeavesTheItem)
{
    show(holding(1, 1));
    press(middleOf(0));
    view.mouseDragged({middleOf(0) + QPointF(9, 0)});
    log.clear();
    desk.panel.endDragOut(DragOperation::None);
    EXPECT_EQ(log, QStringList{QStringLiteral("dragOut 0")});
    EXPECT_FALSE(view.look().draggedItem);
}

TEST_F(ShelfViewTest, AnItemLeavesOnlyWhenItsTargetHasFinished)
{
    const ShelfSnapshot snapshot = holding(1, 1);
    show(snapshot);
    press(middleOf(0));
    view.mouseDragged({middleOf(0) + QPointF(9, 0)});
    log.clear();
    desk.panel.dragOutEvents.released();
    EXPECT_EQ(log, QStringList{QStringLiteral("dragOut 0")});
    EXPECT_EQ(view.look().leavingItems, QList<QUuid>{snapshot.visible[0].second.id()});
    desk.panel.dragOutEvents.ended({DragOperation::Copy, {0}, true});
    EXPECT_EQ(log.last(), QStringLiteral("eject 0"));
    EXPECT_TRUE(view.look().leavingItems.isEmpty());
    EXPECT_TRUE(view.look().flashMessage.isEmpty());
}

TEST_F(ShelfViewTest, WhatTheTargetDidNotTakeStaysAndIsSaid)
{
    show(holding(1, 1));
    press(middleOf(0));
    view.mouseDragged({middleOf(0) + QPointF(9, 0)});
    log.clear();
    desk.panel.dragOutEvents.released();
    desk.panel.dragOutEvents.ended({DragOperation::Copy, {}, true});
    EXPECT_EQ(log, QStringList{QStringLiteral("dragOut 0")});
    EXPECT_EQ(view.look().flashMessage, QStringLiteral("It was not taken"));
}

TEST_F(ShelfViewTest, ShiftCountsAsItWasWhenTheItemWasLetGo)
{
    show(holding(1, 1));
    press(middleOf(0));
    view.mouseDragged({middleOf(0) + QPointF(9, 0)});
    desk.keyboard.modifiers = Modifier::Shift;
    desk.panel.dragOutEvents.released();
    desk.keyboard.modifiers = {};
    desk.panel.dragOutEvents.ended({DragOperation::Copy, {0}, true});
    EXPECT_EQ(log.last(), QStringLiteral("eject 1"));
}

TEST_F(ShelfViewTest, AFileOfTheShelfsOwnStaysWhereItWasOnlyLinkedTo)
{
    ShelfSnapshot snapshot = holding(1, 1);
    snapshot.visible[0].second
        = DropItem(DropItem::File{QUrl::fromLocalFile(QStringLiteral("/usr"))},
                   QStringLiteral("picture"), {}, true);
    show(snapshot);
    for (const DragOperation operation : {DragOperation::Link, DragOperation::Copy}) {
        press(middleOf(0));
        view.mouseDragged({middleOf(0) + QPointF(9, 0)});
        desk.panel.dragOutEvents.released();
        desk.panel.dragOutEvents.ended({operation, {0}, true});
        EXPECT_EQ(log.last(), QStringLiteral("eject %1").arg(operation == DragOperation::Link));
    }
}

TEST_F(ShelfViewTest, AnItemWhoseTargetIsBusyMayBeDraggedElsewhere)
{
    show(holding(1, 1));
    press(middleOf(0));
    view.mouseDragged({middleOf(0) + QPointF(9, 0)});
    const DragOutEvents first = desk.panel.dragOutEvents;
    first.released();
    desk.panel.dragOut.reset();
    press(middleOf(0));
    view.mouseDragged({middleOf(0) + QPointF(9, 0)});
    ASSERT_TRUE(desk.panel.dragOut);
    desk.panel.dragOutEvents.released();
    first.ended({DragOperation::None, {}, true});
    EXPECT_EQ(view.look().leavingItems.size(), 1) << "the other target may still take it";
    desk.panel.dragOutEvents.ended({DragOperation::Copy, {0}, true});
    EXPECT_EQ(log.last(), QStringLiteral("eject 0"));
}

TEST_F(ShelfViewTest, ThePictureStaysUnderThePointerWhereItWasTaken)
{
    show(holding(1, 1));
    const auto &cell = layout().cells[0];
    const QPointF grip = cell.root.topLeft() + cell.thumb.topLeft() + QPointF(4, 7);
    press(grip);
    view.mouseDragged({grip + QPointF(9, 0)});
    ASSERT_TRUE(desk.panel.dragOut);
    EXPECT_EQ(desk.panel.dragOut->hotSpot, QPointF(4, 7));
    EXPECT_EQ(desk.panel.dragOut->image.size, QSizeF(30, 30));
}

TEST_F(ShelfViewTest, ADraggedTextIsSeenOverAWhiteWindow)
{
    show(holding(1, 1));
    const auto &cell = layout().cells[0];
    press(cell.root.topLeft() + cell.thumb.center());
    view.mouseDragged({cell.root.topLeft() + cell.thumb.center() + QPointF(9, 0)});
    ASSERT_TRUE(desk.panel.dragOut);
    const QImage picture = desk.panel.dragOut->image.bitmap;
    const QColor tile = picture.pixelColor(picture.width() / 2, 2);
    EXPECT_EQ(tile.alpha(), 255) << "nothing of the window is seen through it";
    EXPECT_LT(tile.lightness(), 170);
    EXPECT_EQ(picture.pixelColor(0, 0).alpha(), 0) << "its corners are round";
}

TEST_F(ShelfViewTest, ADragThatEndsAfterItsViewIsGoneDoesNothing)
{
    std::function<void(DragOperation)> end;
    {
        ShelfView other(desk.context());
        other.onEjected = [this](const QUuid &, bool) { log << QStringLiteral("eject"); };
        const ShelfSnapshot snapshot = holding(1, 1);
        ShelfDesk::fit(desk.panel, other, snapshot);
        other.apply(snapshot);
        const QPointF from = other.look().layout.cells[0].root.center();
        other.mouseDown({from});
        other.mouseDragged({from + QPointF(9, 0)});
        end = desk.panel.endDragOut;
        other.flash(QStringLiteral("x"));
    }
    end(DragOperation::Copy);
    desk.clock.advance(5);
    EXPECT_TRUE(log.isEmpty());
}

// Flashes

TEST_F(ShelfViewTest, AFlashShowsFor1Point4Seconds)
{
    show(holding(1, 1));
    view.flash(QStringLiteral("Path copied"));
    EXPECT_EQ(view.look().flashMessage, QStringLiteral("Path copied"));
    desk.clock.advance(1.39);
    EXPECT_FALSE(view.look().flashMessage.isEmpty());
    desk.clock.advance(0.02);
    EXPECT_TRUE(view.look().flashMessage.isEmpty());
}

TEST_F(ShelfViewTest, ANewerFlashGets1Point4SecondsOfItsOwn)
{
    show(holding(1, 1));
    view.flash(QStringLiteral("first"));
    desk.clock.advance(1);
    view.flash(QStringLiteral("second"));
    desk.clock.advance(1.3);
    EXPECT_EQ(view.look().flashMessage, QStringLiteral("second"));
    desk.clock.advance(0.2);
    EXPECT_TRUE(view.look().flashMessage.isEmpty());
}

TEST_F(ShelfViewTest, AFlashGoesWithTheLastItem)
{
    show(holding(1, 3));
    view.flash(QStringLiteral("Path copied"));
    ShelfSnapshot empty;
    empty.state = ShelfState::Expanded;
    empty.inViewCount = 3;
    view.apply(empty);
    EXPECT_TRUE(view.look().flashMessage.isEmpty());
    view.apply(holding(1, 3));
    EXPECT_TRUE(view.look().flashMessage.isEmpty()) << "nor does it come back";
}

TEST_F(ShelfViewTest, AFlashOnAnEmptyOrReceptiveShelfIsDropped)
{
    ShelfSnapshot snapshot;
    snapshot.state = ShelfState::Expanded;
    show(snapshot);
    view.flash(QStringLiteral("dropped"));
    EXPECT_TRUE(view.look().flashMessage.isEmpty());
    snapshot = holding(1, 1);
    snapshot.receptive = true;
    show(snapshot);
    view.flash(QStringLiteral("dropped"));
    EXPECT_TRUE(view.look().flashMessage.isEmpty());
}

} // namespace corvane::test
