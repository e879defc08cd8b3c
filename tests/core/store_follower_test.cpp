#include "core/shelf_store_fixture.h"
#include "core/store_follower.h"
#include "fakes/test_clock.h"

#include <optional>

namespace corvane::test {

namespace {

/// A follower that notes what it finds: how many items, and whether the shelf is open.
struct StoreFollowerTest : ShelfStoreTest {
    StoreFollowerTest()
    {
        follower.emplace(store, clock, [this] {
            found << QStringLiteral("%1%2")
                         .arg(store.items().size())
                         .arg(store.state() == ShelfState::Idle ? QStringLiteral(" closed")
                                                                : QString());
        });
    }

    QList<DropItem> files(int count) const
    {
        QList<DropItem> items;
        for (int i = 0; i < count; ++i)
            items << file(QByteArray::number(i).constData());
        return items;
    }
    void giveThumbnails()
    {
        QImage picture(2, 2, QImage::Format_RGB32);
        picture.fill(Qt::red);
        for (const auto &request : thumbnails.requests)
            request.completion(Image{picture, {30, 30}});
    }
    QStringList take() { return std::exchange(found, {}); }

    TestClock clock;
    QStringList found;
    std::optional<StoreFollower> follower;
};

} // namespace

TEST_F(StoreFollowerTest, FollowsAChangeOfItsOwnAtOnce)
{
    store.setItems({});
    EXPECT_EQ(take(), QStringList{QStringLiteral("0 closed")});
    store.toggleManually();
    EXPECT_EQ(take(), QStringList{QStringLiteral("0")});
}

TEST_F(StoreFollowerTest, FollowsAnOperationOnceAtItsEnd)
{
    fill(5);
    EXPECT_EQ(take(), QStringList{QStringLiteral("5")});
    store.discard(0, false);
    EXPECT_EQ(take(), QStringList{QStringLiteral("4")});
    store.ejected({store.items()[0].id(), store.items()[2].id()}, false);
    EXPECT_EQ(take(), QStringList{QStringLiteral("2")});
    store.clearAll();
    EXPECT_EQ(take(), QStringList{QStringLiteral("0 closed")});
}

TEST_F(StoreFollowerTest, FollowsTheRemovalOfThousandsOnce)
{
    QList<DropItem> items;
    for (int i = 0; i < 3'000; ++i)
        items << text("a");
    store.accept(items);
    store.toggleSelection(items.constLast());
    take();
    log.clear();
    store.removeSelected();
    EXPECT_EQ(log.size(), 2 * 2'999) << "each removal and each focus is published";
    EXPECT_EQ(take(), QStringList{QStringLiteral("1")});
}

TEST_F(StoreFollowerTest, FollowsNothingWhereNothingWasRemoved)
{
    fill(2);
    store.toggleSelectAll();
    take();
    store.removeSelected();
    store.ejected(QList<QUuid>{QUuid::createUuid()}, false);
    store.discard(7, true);
    EXPECT_EQ(take(), QStringList());
}

TEST_F(StoreFollowerTest, FollowsWhatArrivesOneByOneOnceAFrame)
{
    store.accept(files(3));
    take();
    giveThumbnails();
    store.describe(store.items()[0].id(), QStringLiteral("now known"));
    EXPECT_EQ(take(), QStringList()) << "the next frame is soon enough";
    EXPECT_EQ(clock.pendingCount(), 1U) << "once for all of them";
    clock.advance(StoreFollower::detailDelay);
    EXPECT_EQ(take(), QStringList{QStringLiteral("3")});
    clock.advance(1);
    EXPECT_EQ(take(), QStringList()) << "nothing is due while nothing arrives";
}

TEST_F(StoreFollowerTest, AChangeOfItsOwnTakesTheDetailsAlong)
{
    store.accept(files(2));
    giveThumbnails();
    store.focus(0);
    take();
    clock.advance(1);
    EXPECT_EQ(take(), QStringList());
    EXPECT_EQ(clock.pendingCount(), 0U);
}

TEST_F(StoreFollowerTest, FollowsWhatTheWorkItselfChanges)
{
    bool isToClose = true;
    StoreFollower closing(store, clock, [&] {
        if (std::exchange(isToClose, false))
            store.toggleManually();
    });
    fill(1);
    EXPECT_EQ(take(), (QStringList{QStringLiteral("1"), QStringLiteral("1 closed")}));
}

TEST_F(StoreFollowerTest, FollowsDetailsThatComeWhileItFollows)
{
    int followed = 0;
    bool isToGive = false;
    StoreFollower giving(store, clock, [&] {
        ++followed;
        if (std::exchange(isToGive, false))
            giveThumbnails();
    });
    store.accept(files(1));
    clock.advance(1);
    isToGive = true;
    followed = 0;
    store.inViewCountChanged();
    EXPECT_EQ(followed, 1);
    clock.advance(1);
    EXPECT_EQ(followed, 2);
}

TEST_F(StoreFollowerTest, DoesNothingOnceItIsGone)
{
    store.accept(files(1));
    giveThumbnails();
    take();
    follower.reset();
    clock.advance(1);
    store.setItems(store.items());
    store.clearAll();
    EXPECT_EQ(take(), QStringList());
}

} // namespace corvane::test
