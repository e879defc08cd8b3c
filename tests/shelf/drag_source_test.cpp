#include "fakes/shelf_desk.h"
#include "shelf/drag_source.h"
#include "shelf/late_contents.h"

#include <QFile>
#include <QStringList>

#include <gtest/gtest.h>

#include <functional>
#include <optional>

namespace corvane::test {

namespace {

/// A panel that items are dragged out of; what becomes of them goes into `log`, by their titles.
class DragSourceTest : public testing::Test {
protected:
    DragSourceTest()
    {
        source.emplace(DragSource::Context{.panel = desk.panel,
                                           .keyboard = desk.keyboard,
                                           .dragWriter = desk.dragWriter,
                                           .pictures = desk.savedPictures,
                                           .preparation = desk.preparation});
        source->onChanged = [this](bool isDraggingOut) {
            log << QStringLiteral("dragging %1").arg(isDraggingOut);
        };
        source->onEnded = [this] { log << QStringLiteral("ended"); };
        source->onEjected = [this](const QList<QUuid> &ids, bool keep) {
            log << (keep ? QStringLiteral("kept ") : QStringLiteral("left ")) + titles(ids);
        };
        source->onMessage = [this](const Message &message) { log << message.text(); };
    }

    DropItem text(const char *title)
    {
        return known(ShelfDesk::textItem(QString::fromLatin1(title)));
    }
    DropItem spooled(const char *title)
    {
        return known(DropItem(DropItem::File{desk.writtenFile(title, "x")},
                              QString::fromLatin1(title), {}, true));
    }
    DropItem gone(const char *title)
    {
        return known(ShelfDesk::fileItem(QString::fromLatin1(title)));
    }
    DropItem known(const DropItem &item)
    {
        items << item;
        return item;
    }
    QString titles(const QList<QUuid> &ids) const
    {
        QString joined;
        for (const QUuid &id : ids) {
            for (const DropItem &item : items)
                joined += item.id() == id ? item.title() : QString();
        }
        return joined;
    }

    void begin(const QList<DropItem> &dragged)
    {
        source->begin(dragged, [this](const QList<DropItem> &travelling) {
            log << QStringLiteral("painted %1").arg(travelling.size());
            return DragSource::Picture{{QImage(4, 4, QImage::Format_RGB32), {4, 4}}, {1, 2}};
        });
    }
    void release() { desk.panel.dragOutEvents.released(); }
    void end(const DragOutEnd &end) { desk.panel.dragOutEvents.ended(end); }
    QStringList take() { return std::exchange(log, {}); }

    static constexpr DragOperation copy = DragOperation::Copy;

    ShelfDesk desk;
    QList<DropItem> items;
    QStringList log;
    std::optional<DragSource> source;
};

} // namespace

TEST_F(DragSourceTest, aPressBecomesADragBeyondThreePoints)
{
    const QUuid id = QUuid::createUuid();
    EXPECT_FALSE(source->pulled({90, 0}));
    source->press(id, {10, 10});
    EXPECT_FALSE(source->pulled({13, 10}));
    const auto press = source->pulled({10, 13.1});
    ASSERT_TRUE(press);
    EXPECT_EQ(press->item, id);
    EXPECT_EQ(press->point, QPointF(10, 10));
}

TEST_F(DragSourceTest, aPressEndsOnce)
{
    const QUuid id = QUuid::createUuid();
    source->press(id, {10, 10});
    const auto press = source->release();
    ASSERT_TRUE(press);
    EXPECT_EQ(press->item, id);
    EXPECT_FALSE(source->release());
    EXPECT_FALSE(source->pulled({90, 90}));
}

TEST_F(DragSourceTest, aPressThatBecameADragComesToNothingElse)
{
    const DropItem item = text("a");
    source->press(item.id(), {10, 10});
    begin({item});
    EXPECT_FALSE(source->release());
}

TEST_F(DragSourceTest, noSecondDragBeginsWhileOneGoesOn)
{
    const DropItem item = text("a");
    begin({item});
    source->press(item.id(), {10, 10});
    EXPECT_FALSE(source->pulled({90, 90}));
    release();
    EXPECT_FALSE(source->pulled({90, 90})) << "that press was no more than part of the drag";
    source->press(item.id(), {10, 10});
    EXPECT_TRUE(source->pulled({90, 90}));
}

TEST_F(DragSourceTest, tellsOfTheDragBeforeItIsPaintedAndBegun)
{
    source->onChanged = [this](bool isDraggingOut) {
        log << QStringLiteral("dragging %1").arg(isDraggingOut);
        EXPECT_EQ(source->isDragging(), isDraggingOut);
        EXPECT_FALSE(desk.panel.dragOut);
    };
    const DropItem first = text("a");
    const DropItem second = text("b");
    begin({first, second});
    EXPECT_EQ(take(), (QStringList{QStringLiteral("dragging 1"), QStringLiteral("painted 2")}));
    ASSERT_TRUE(desk.panel.dragOut);
    EXPECT_EQ(desk.panel.dragOut->contents.writers.size(), 2U);
    EXPECT_EQ(desk.panel.dragOut->hotSpot, QPointF(1, 2));
    EXPECT_FALSE(desk.panel.dragOut->whenReady);
    EXPECT_EQ(source->dragged(), (QList<QUuid>{first.id(), second.id()}));
}

TEST_F(DragSourceTest, anItemIsLeavingFromItsReleaseUntilItsTargetHasSaidHowItEnded)
{
    const DropItem item = text("a");
    begin({item});
    EXPECT_EQ(source->leaving(), QList<QUuid>());
    take();
    release();
    EXPECT_EQ(take(), QStringList{QStringLiteral("dragging 0")});
    EXPECT_FALSE(source->isDragging());
    EXPECT_EQ(source->leaving(), QList<QUuid>{item.id()});
    source->onEnded = [this] {
        log << QStringLiteral("ended");
        EXPECT_EQ(source->leaving(), QList<QUuid>());
    };
    end({copy, {0}, true});
    EXPECT_EQ(take(), (QStringList{QStringLiteral("ended"), QStringLiteral("left a")}));
}

TEST_F(DragSourceTest, shiftAsTheItemsAreLetGoKeepsThem)
{
    for (const bool isHeldAtTheRelease : {true, false}) {
        desk.keyboard.modifiers = isHeldAtTheRelease ? Modifiers() : Modifier::Shift;
        begin({text("a"), text("b")});
        desk.keyboard.modifiers = isHeldAtTheRelease ? Modifier::Shift : Modifiers();
        release();
        desk.keyboard.modifiers = isHeldAtTheRelease ? Modifiers() : Modifier::Shift;
        end({copy, {0, 1}, true});
        EXPECT_EQ(take().last(),
                  isHeldAtTheRelease ? QStringLiteral("kept ab") : QStringLiteral("left ab"));
    }
}

TEST_F(DragSourceTest, aFileOfTheShelfsOwnStaysWhereItWasOnlyLinkedTo)
{
    begin({text("a"), spooled("b")});
    take();
    release();
    end({DragOperation::Link, {0, 1}, true});
    EXPECT_EQ(take(),
              (QStringList{QStringLiteral("dragging 0"), QStringLiteral("ended"),
                           QStringLiteral("left a"), QStringLiteral("kept b")}));
}

TEST_F(DragSourceTest, whatWasNotTakenStaysAndIsTold)
{
    begin({text("a"), text("b"), text("c")});
    release();
    take();
    end({copy, {0, 2}, true});
    EXPECT_EQ(take(),
              (QStringList{QStringLiteral("ended"), QStringLiteral("left ac"),
                           QStringLiteral("1 of 3 were not taken")}));
    begin({text("d")});
    release();
    take();
    end({copy, {}, true});
    EXPECT_EQ(take(), (QStringList{QStringLiteral("ended"), QStringLiteral("It was not taken")}));
}

TEST_F(DragSourceTest, whatTheUserGaveUpIsNotTold)
{
    begin({text("a")});
    release();
    take();
    end({});
    EXPECT_EQ(take(), QStringList{QStringLiteral("ended")});
    EXPECT_EQ(source->leaving(), QList<QUuid>());
}

TEST_F(DragSourceTest, whatCannotTravelStaysAndIsToldAtTheEnd)
{
    begin({gone("a"), text("b")});
    ASSERT_TRUE(desk.panel.dragOut);
    EXPECT_EQ(desk.panel.dragOut->contents.writers.size(), 1U);
    release();
    take();
    end({copy, {0}, true});
    EXPECT_EQ(take(),
              (QStringList{QStringLiteral("ended"), QStringLiteral("left b"),
                           QStringLiteral("1 of 2 were not taken")}));
}

TEST_F(DragSourceTest, nothingThatCouldTravelStartsNoDragAndIsTold)
{
    source->press(QUuid::createUuid(), {});
    begin({gone("a"), gone("b")});
    EXPECT_EQ(take(), QStringList{QStringLiteral("The file is no longer there")});
    EXPECT_FALSE(desk.panel.dragOut);
    EXPECT_FALSE(source->isDragging());
    EXPECT_FALSE(source->release()) << "nor does the release mean anything";
}

TEST_F(DragSourceTest, whatIsBeingMadeIsHandedOverOnceItIsReady)
{
    begin({text("a"), pictureBeingMade(desk)});
    const auto handedOver = contentsHandedOverLate(desk);
    ASSERT_TRUE(handedOver);
    const QUrl url = std::get<PasteboardWriter::File>(handedOver->writers.at(1).content).url;
    EXPECT_TRUE(QFile::exists(url.toLocalFile()));
}

TEST_F(DragSourceTest, whatIsRemovedOnItsWayArrives)
{
    const QUrl file = *desk.spool.store("pixels", QStringLiteral("a"), QStringLiteral("png"));
    begin({known(DropItem(DropItem::File{file}, QStringLiteral("a"), {}, true))});
    release();
    desk.spool.discard(file);
    EXPECT_TRUE(QFile::exists(file.toLocalFile()));
    end({copy, {0}, true});
    EXPECT_TRUE(QFile::exists(file.toLocalFile())) << "its target may still read it";
}

TEST_F(DragSourceTest, whatATargetHasIsNotDeletedWhenItsItemIsRemoved)
{
    const QUrl file = *desk.spool.store("pixels", QStringLiteral("a"), QStringLiteral("png"));
    desk.keyboard.modifiers = Modifier::Shift;
    begin({known(DropItem(DropItem::File{file}, QStringLiteral("a"), {}, true))});
    release();
    end({copy, {0}, true});
    EXPECT_EQ(take().last(), QStringLiteral("kept a"));
    desk.spool.discard(file);
    EXPECT_TRUE(QFile::exists(file.toLocalFile()));
}

TEST_F(DragSourceTest, whatNobodyTookGoesWithItsItem)
{
    const QUrl file = *desk.spool.store("pixels", QStringLiteral("a"), QStringLiteral("png"));
    begin({known(DropItem(DropItem::File{file}, QStringLiteral("a"), {}, true))});
    release();
    desk.spool.discard(file);
    end({copy, {}, true});
    EXPECT_FALSE(QFile::exists(file.toLocalFile()));
}

TEST_F(DragSourceTest, ofTwoDragsEachEndsForItself)
{
    const DropItem item = text("a");
    const DropItem other = text("b");
    begin({item, other});
    const DragOutEvents first = desk.panel.dragOutEvents;
    desk.keyboard.modifiers = Modifier::Shift;
    first.released();
    desk.keyboard.modifiers = {};
    begin({item});
    release();
    EXPECT_EQ(source->leaving(), (QList<QUuid>{item.id(), other.id(), item.id()}));
    take();
    first.ended({copy, {1}, true});
    EXPECT_EQ(take(),
              (QStringList{QStringLiteral("ended"), QStringLiteral("kept b"),
                           QStringLiteral("1 of 2 were not taken")}));
    EXPECT_EQ(source->leaving(), QList<QUuid>{item.id()});
    end({copy, {0}, true});
    EXPECT_EQ(take(), (QStringList{QStringLiteral("ended"), QStringLiteral("left a")}));
}

TEST_F(DragSourceTest, aDragThatEndsAfterItsSourceDoesNothing)
{
    begin({text("a")});
    source.reset();
    take();
    desk.panel.endDragOut(copy);
    EXPECT_EQ(take(), QStringList());
}

TEST_F(DragSourceTest, callbacksThatAreNotSetAreSkipped)
{
    source->onChanged = nullptr;
    source->onEnded = nullptr;
    source->onEjected = nullptr;
    source->onMessage = nullptr;
    begin({gone("a")});
    begin({text("b"), text("c")});
    release();
    end({copy, {0}, true});
    EXPECT_EQ(take(), QStringList{QStringLiteral("painted 2")});
}

} // namespace corvane::test
