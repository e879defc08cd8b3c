#include "core/item_preparation.h"
#include "core/spool_place.h"
#include "core/temporary_spool.h"
#include "fakes/fake_work_queue.h"
#include "fakes/test_clock.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace corvane {
namespace {

using test::contents;
using test::exists;

struct ItemPreparationTest : testing::Test, test::TemporarySpool {
    ItemPreparationTest()
    {
        preparation->onReady = [this](const DropItem &made) { heard(made); };
    }

    void heard(const DropItem &made) { log << QStringLiteral("ready ") + made.title(); }
    static QUrl urlOf(const DropItem &item) { return std::get<DropItem::File>(item.payload()).url; }

    /// An item whose file will hold its name.
    DropItem begin(const char *name)
    {
        const QString title = QString::fromLatin1(name);
        const auto place = spool.keepPlace(title, QStringLiteral("png"));
        return preparation->begin(
            {DropItem::beingMade({place->url()}, title, QStringLiteral("wait"), {}),
             {place},
             [place, title] {
                 place->write(title.toUtf8());
                 return DropItem(DropItem::File{place->url()}, title, QStringLiteral("done"), true);
             },
             {}});
    }
    void expect(const DropItem &item)
    {
        preparation->whenReady(item, [this](const std::optional<DropItem> &ready) {
            log << (ready ? QStringLiteral("handed over ") + ready->subtitle()
                          : QStringLiteral("removed"));
        });
    }
    void finishWork()
    {
        work.runAll();
        clock.runPending();
    }

    test::TestClock clock;
    test::FakeWorkQueue work;
    std::optional<ItemPreparation> preparation{std::in_place, spool, clock, work};
    QStringList log;
};

TEST_F(ItemPreparationTest, MakesItemsOnAnotherThreadAndSaysSoLater)
{
    const DropItem item = begin("a");
    EXPECT_TRUE(item.isBeingMade());
    EXPECT_FALSE(exists(urlOf(item)));
    work.runAll();
    EXPECT_TRUE(log.isEmpty()) << "not on that thread";
    clock.runPending();
    EXPECT_EQ(log, QStringList{QStringLiteral("ready a")});
    EXPECT_EQ(contents(urlOf(item)), "a");
}

TEST_F(ItemPreparationTest, KeepsTheItemsId)
{
    const DropItem item = begin("a");
    std::optional<DropItem> made;
    preparation->onReady = [&made](const DropItem &ready) { made = ready; };
    finishWork();
    ASSERT_TRUE(made);
    EXPECT_EQ(made->id(), item.id());
    EXPECT_EQ(made->subtitle(), QStringLiteral("done"));
    EXPECT_FALSE(made->isBeingMade());
}

TEST_F(ItemPreparationTest, KnowsWhatAnItemIsMadeFromUntilItIsMade)
{
    const auto place = spool.keepPlace(QStringLiteral("a"), QStringLiteral("png"));
    const DropItem item = preparation->begin(
        {DropItem::beingMade({place->url()}, QStringLiteral("a"), {}, {}),
         {place},
         [place] { return DropItem(DropItem::File{place->url()}, QStringLiteral("a"), {}, true); },
         {},
         DropItem::ImageBytes{"pixels", UTType::png()}});
    const auto bytes = preparation->bytesOf(item);
    ASSERT_TRUE(bytes);
    EXPECT_EQ(bytes->data, "pixels");
    EXPECT_FALSE(preparation->bytesOf(begin("b")));
    finishWork();
    EXPECT_FALSE(preparation->bytesOf(item));
}

TEST_F(ItemPreparationTest, HandsItemsOverOnceTheyAreReady)
{
    const DropItem item = begin("a");
    expect(item);
    expect(item);
    EXPECT_TRUE(log.isEmpty());
    finishWork();
    EXPECT_EQ(log,
              (QStringList{QStringLiteral("ready a"), QStringLiteral("handed over done"),
                           QStringLiteral("handed over done")}));
}

TEST_F(ItemPreparationTest, HandsOverAtOnceWhatIsReady)
{
    expect(DropItem(DropItem::Text{}, {}, QStringLiteral("text"), false));
    EXPECT_EQ(log, QStringList{QStringLiteral("handed over text")});
}

TEST_F(ItemPreparationTest, TellsThatAnItemWasRemoved)
{
    const DropItem item = begin("a");
    expect(item);
    spool.discard(urlOf(item));
    finishWork();
    EXPECT_EQ(log, QStringList{QStringLiteral("removed")});
    expect(item);
    EXPECT_EQ(log.last(), QStringLiteral("removed"));
    EXPECT_FALSE(exists(urlOf(item)));
}

TEST_F(ItemPreparationTest, DeletesWhatWasMadeOfAnItemThatIsRemovedAtTheLastMoment)
{
    const DropItem item = begin("a");
    work.runAll();
    EXPECT_TRUE(exists(urlOf(item)));
    spool.discard(urlOf(item));
    clock.runPending();
    EXPECT_FALSE(exists(urlOf(item)));
    EXPECT_TRUE(log.isEmpty());
}

TEST_F(ItemPreparationTest, TellsWhoBeganItBeforeAnybodyElse)
{
    const auto place = spool.keepPlace(QStringLiteral("a"), QStringLiteral("png"));
    const DropItem item(DropItem::File{place->url()}, QStringLiteral("a"), {}, true);
    preparation->begin({DropItem::beingMade({place->url()}, QStringLiteral("a"), {}, {}),
                        {place},
                        [item] { return item; },
                        [this](const auto &) { log << QStringLiteral("ended"); }});
    finishWork();
    EXPECT_EQ(log, (QStringList{QStringLiteral("ended"), QStringLiteral("ready a")}));
}

TEST_F(ItemPreparationTest, GivesUpEveryPlaceOfAnItemThatIsRemovedOrThatItLeavesBehind)
{
    for (const bool isRemoved : {true, false}) {
        const auto first = spool.keepPlace(QStringLiteral("a"), QStringLiteral("png"));
        const auto second = spool.keepPlace(QStringLiteral("b"), QStringLiteral("png"));
        const DropItem item = preparation->begin(
            {DropItem::beingMade({first->url()}, QStringLiteral("a"), {}, {}),
             {first, second},
             [first, second] {
                 second->write("b");
                 return DropItem(DropItem::File{first->url()}, QStringLiteral("a"), {}, true);
             },
             {}});
        if (isRemoved) {
            work.runAll();
            spool.discard(urlOf(item));
            clock.runPending();
        } else {
            preparation.reset();
        }
        EXPECT_FALSE(second->isWanted()) << isRemoved;
        EXPECT_FALSE(exists(second->url())) << isRemoved;
    }
}

TEST_F(ItemPreparationTest, LendsTheFileThatALentItemBecomesInsteadOfItsOwn)
{
    const auto first = spool.keepPlace(QStringLiteral("a"), QStringLiteral("png"));
    const auto second = spool.keepPlace(QStringLiteral("a"), QStringLiteral("tiff"));
    const DropItem item = preparation->begin(
        {DropItem::beingMade({first->url()}, QStringLiteral("a"), {}, {}),
         {first, second},
         [second] {
             second->write("b");
             return DropItem(DropItem::File{second->url()}, QStringLiteral("a"), {}, true);
         },
         {}});
    auto loan = spool.lend({urlOf(item)});
    spool.discard(urlOf(item));
    finishWork();
    EXPECT_EQ(contents(second->url()), "b");
    loan.reset();
    EXPECT_FALSE(exists(second->url())) << "the item was removed while its file was lent";
}

TEST_F(ItemPreparationTest, HandsOverManyOnceTheLastIsDecided)
{
    const DropItem text(DropItem::Text{}, QStringLiteral("text"), {}, false);
    const DropItem first = begin("a");
    const DropItem second = begin("b");
    const DropItem third = begin("c");
    preparation->onReady = nullptr;
    preparation->whenReady({first, text, second, third}, [this](const QList<DropItem> &items) {
        for (const DropItem &item : items)
            log << item.title();
    });
    spool.discard(urlOf(second));
    work.runOne();
    clock.runPending();
    EXPECT_TRUE(log.isEmpty());
    finishWork();
    EXPECT_EQ(log, (QStringList{QStringLiteral("a"), QStringLiteral("text"), QStringLiteral("c")}));
}

TEST_F(ItemPreparationTest, GivesEverythingUpAtItsEnd)
{
    const DropItem item = begin("a");
    expect(item);
    preparation.reset();
    finishWork();
    EXPECT_FALSE(exists(urlOf(item)));
    EXPECT_TRUE(log.isEmpty());
}

TEST_F(ItemPreparationTest, TellsNobodyElseOnceOneWhoWasToldHasEndedIt)
{
    const DropItem item = begin("a");
    preparation->whenReady(item, [this](const std::optional<DropItem> &) {
        log << QStringLiteral("ended");
        preparation.reset();
    });
    expect(item);
    finishWork();
    EXPECT_EQ(log, QStringList({QStringLiteral("ready a"), QStringLiteral("ended")}));
}

TEST_F(ItemPreparationTest, WritesNothingIntoASpoolThatIsGone)
{
    const DropItem item = begin("a");
    spool.discardAll();
    finishWork();
    EXPECT_FALSE(exists(urlOf(item)));
    EXPECT_FALSE(exists(spool.directory()));
}

} // namespace
} // namespace corvane
