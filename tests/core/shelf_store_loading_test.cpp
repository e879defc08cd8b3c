#include "core/shelf_store_fixture.h"
#include "core/spool_place.h"

#include <gtest/gtest.h>

#include <array>

namespace corvane {
namespace {

using test::ShelfStoreTest;

Image picture()
{
    QImage bitmap(2, 2, QImage::Format_RGB32);
    bitmap.fill(Qt::red);
    return {bitmap, QSizeF(30, 30)};
}

LinkPreview preview(const char *title, const std::optional<QString> &siteName = std::nullopt)
{
    return {QString::fromLatin1(title), siteName, std::nullopt};
}

using Thumbnails = ShelfStoreTest;

TEST_F(Thumbnails, AreAskedForByKindInOrder)
{
    const DropItem bytes(DropItem::ImageBytes{"png", UTType::png()}, {}, {}, false);
    const DropItem first = file("a");
    store.accept({first, text("b"), bytes, link("http://x/")});
    ASSERT_EQ(thumbnails.requests.size(), 2U);
    EXPECT_EQ(thumbnails.requests[0].url, urlOf(first));
    EXPECT_EQ(thumbnails.requests[1].data, "png");
}

TEST_F(Thumbnails, AreStartedAfterEverythingWasPublished)
{
    store.observeState(
        [this](ShelfState, ShelfState) { detail << QString::number(thumbnails.requests.size()); });
    store.accept({file("a")});
    EXPECT_EQ(detail, QStringList{QStringLiteral("0")});
    EXPECT_EQ(thumbnails.requests.size(), 1U);
}

TEST_F(Thumbnails, AreMergedAndPublished)
{
    store.accept({file("a"), file("b")});
    log.clear();
    thumbnails.requests[1].completion(picture());
    EXPECT_FALSE(store.items()[0].thumbnail().has_value());
    EXPECT_TRUE(store.items()[1].thumbnail().has_value());
    EXPECT_EQ(log, QStringList{QStringLiteral("items ab")});
}

TEST_F(Thumbnails, ThatDidNotComeChangeNothing)
{
    store.accept({file("a")});
    log.clear();
    thumbnails.requests[0].completion(std::nullopt);
    EXPECT_EQ(log, QStringList());
}

TEST_F(Thumbnails, FindTheirItemWhereverItIsNow)
{
    store.accept({file("a"), file("b"), file("c")});
    store.discard(0, false);
    thumbnails.requests[2].completion(picture());
    EXPECT_FALSE(store.items()[0].thumbnail().has_value());
    EXPECT_TRUE(store.items()[1].thumbnail().has_value());
}

TEST_F(Thumbnails, OfAnItemThatLeftAreDropped)
{
    store.accept({file("a"), file("b")});
    store.discard(0, false);
    log.clear();
    thumbnails.requests[0].completion(picture());
    EXPECT_EQ(log, QStringList());
    EXPECT_FALSE(store.items()[0].thumbnail().has_value());
}

TEST_F(Thumbnails, OfItemsThatLeaveAreCancelled)
{
    store.accept({file("a"), file("b"), file("c"), file("d")});
    QList<QUuid> ids;
    for (const DropItem &item : store.items())
        ids << item.id();
    store.discard(0, false);
    EXPECT_EQ(thumbnails.cancelled, ids.mid(0, 1));
    store.ejected(0, true);
    EXPECT_EQ(thumbnails.cancelled.size(), 1) << "it was kept";
    store.ejected(0, false);
    EXPECT_EQ(thumbnails.cancelled, ids.mid(0, 2));
    store.setItems(store.items().mid(1));
    EXPECT_EQ(thumbnails.cancelled, ids.mid(0, 3));
    store.clearAll();
    EXPECT_EQ(thumbnails.cancelled, ids);
}

TEST_F(Thumbnails, AreCancelledBeforeAnybodyHearsThatTheItemLeft)
{
    store.accept({file("a")});
    store.observeItems([this](const QList<DropItem> &) {
        detail << QString::number(thumbnails.cancelled.size());
    });
    store.discard(0, false);
    EXPECT_EQ(detail.value(0), QStringLiteral("1"));
}

using Preparation = ShelfStoreTest;

TEST_F(Preparation, OfAnItemIsPublishedAndItsThumbnailAskedFor)
{
    const DropItem pending = DropItem::beingMade({spool.directory()}, QStringLiteral("p"), {}, {});
    store.accept({text("a"), pending});
    EXPECT_TRUE(thumbnails.requests.empty()) << "there is no file yet";
    store.discard(0, false);
    log.clear();
    DropItem made = pending;
    made.become(file("m"));
    store.observeItems(
        [this](const QList<DropItem> &) { detail << QString::number(thumbnails.requests.size()); });
    store.becomeReady(made);
    EXPECT_EQ(log, QStringList{QStringLiteral("items m")});
    EXPECT_EQ(detail, QStringList{QStringLiteral("0")});
    ASSERT_EQ(thumbnails.requests.size(), 1U);
    EXPECT_EQ(thumbnails.requests[0].url, urlOf(made));
    EXPECT_FALSE(store.items()[0].isBeingMade());
    EXPECT_EQ(store.items()[0].id(), pending.id());
}

TEST_F(Preparation, OfAnItemThatLeftChangesNothing)
{
    const DropItem pending = DropItem::beingMade({spool.directory()}, QStringLiteral("p"), {}, {});
    store.accept({text("a")});
    log.clear();
    store.becomeReady(pending);
    EXPECT_EQ(log, QStringList());
    EXPECT_TRUE(thumbnails.requests.empty());
}

TEST_F(Preparation, EndsWhereTheItemIsRemovedButNotWhereItWasDraggedOut)
{
    const auto pending = [this](const std::shared_ptr<SpoolPlace> &place) {
        return DropItem::beingMade({place->url()}, QStringLiteral("p"), {}, {});
    };
    const auto keep = [this] { return spool.keepPlace({}, QStringLiteral("png")); };
    const std::array places = {keep(), keep(), keep(), keep()};
    store.accept({pending(places[0]), pending(places[1]), pending(places[2]), pending(places[3])});
    store.ejected(0, false);
    EXPECT_TRUE(places[0]->isWanted());
    store.discard(0, true);
    EXPECT_FALSE(places[1]->isWanted());
    store.toggleSelection(store.items()[1]);
    store.removeSelected();
    EXPECT_FALSE(places[2]->isWanted());
    EXPECT_TRUE(places[3]->isWanted());
    store.clearAll();
    EXPECT_FALSE(places[3]->isWanted());
    EXPECT_TRUE(places[0]->isWanted());
}

TEST_F(Thumbnails, AndPreviewsMayComeAfterTheStoreIsGone)
{
    store.accept({file("a"), link("http://x/")});
    ownedStore.reset();
    log.clear();
    thumbnails.requests[0].completion(picture());
    linkPreviews.requests[0].completion(preview("title"));
    EXPECT_EQ(log, QStringList());
}

TEST_F(Thumbnails, AreMergedWithoutCopyingTheList)
{
    QList<DropItem> items;
    for (int i = 0; i < 10'000; ++i)
        items << DropItem(DropItem::File{QUrl(QStringLiteral("file:///a"))}, {}, {}, false);
    store.accept(items);
    items.clear();
    thumbnails.requests[0].completion(picture());
    const DropItem *list = store.items().constData();
    for (std::size_t i = 1; i < thumbnails.requests.size(); i += 1000)
        thumbnails.requests[i].completion(picture());
    EXPECT_EQ(store.items().constData(), list);
}

using LinkPreviews = ShelfStoreTest;

TEST_F(LinkPreviews, AreAskedForLinksAlone)
{
    store.accept({text("a"), link("http://x/"), file("b")});
    ASSERT_EQ(linkPreviews.requests.size(), 1U);
    EXPECT_EQ(linkPreviews.requests[0].url, QUrl(QStringLiteral("http://x/")));
}

TEST_F(LinkPreviews, AreNotAskedForWhenTheyAreOff)
{
    settings.setLinkPreviews(false);
    store.accept({link("http://x/")});
    EXPECT_TRUE(linkPreviews.requests.empty());
}

TEST_F(LinkPreviews, AreNoLongerWantedOnceTheyAreOff)
{
    store.accept({link("http://x/")});
    EXPECT_TRUE(linkPreviews.requests[0].isWanted());
    settings.setLinkPreviews(false);
    EXPECT_FALSE(linkPreviews.requests[0].isWanted());
}

TEST_F(LinkPreviews, AreNoLongerWantedOnceTheirItemLeft)
{
    store.accept({link("http://x/"), link("http://y/")});
    store.discard(0, false);
    EXPECT_FALSE(linkPreviews.requests[0].isWanted());
    EXPECT_TRUE(linkPreviews.requests[1].isWanted());
    ownedStore.reset();
    EXPECT_FALSE(linkPreviews.requests[1].isWanted());
}

TEST_F(LinkPreviews, PublishTitleAndSubtitleEachOnItsOwn)
{
    store.accept({link("http://x.org/a")});
    log.clear();
    store.observeItems([this](const QList<DropItem> &items) {
        detail << items[0].title() + QLatin1Char('|') + items[0].subtitle();
    });
    linkPreviews.requests[0].completion(preview("New", QStringLiteral("Site")));
    EXPECT_EQ(detail, (QStringList{QStringLiteral("New|old"), QStringLiteral("New|Site")}));
}

TEST_F(LinkPreviews, TakeTheHostWhereTheSiteHasNoName)
{
    store.accept({link("http://x.org/a"), link("http:/a")});
    linkPreviews.requests[0].completion(preview("New"));
    linkPreviews.requests[1].completion(preview("New"));
    EXPECT_EQ(store.items()[0].subtitle(), QStringLiteral("x.org"));
    EXPECT_EQ(store.items()[1].subtitle(), QStringLiteral("http:/a"));
}

TEST_F(LinkPreviews, CountAnEmptySiteNameAsPresent)
{
    store.accept({link("http://x.org/a")});
    linkPreviews.requests[0].completion(preview("New", QStringLiteral("")));
    EXPECT_EQ(store.items()[0].subtitle(), QString());
}

TEST_F(LinkPreviews, WithoutATitleMayStillBringAPicture)
{
    store.accept({link("http://x.org/a")});
    log.clear();
    LinkPreview found = preview("", QStringLiteral("Site"));
    found.image = picture();
    linkPreviews.requests[0].completion(found);
    EXPECT_EQ(store.items()[0].title(), QStringLiteral("http://x.org/a"));
    EXPECT_EQ(store.items()[0].subtitle(), QStringLiteral("old"));
    EXPECT_TRUE(store.items()[0].thumbnail().has_value());
    EXPECT_EQ(log.size(), 1);
}

TEST_F(LinkPreviews, PublishThreeTimesWithAPicture)
{
    store.accept({link("http://x.org/a")});
    log.clear();
    LinkPreview found = preview("New");
    found.image = picture();
    linkPreviews.requests[0].completion(found);
    EXPECT_EQ(log.size(), 3);
}

TEST_F(LinkPreviews, ThatFailedChangeNothing)
{
    store.accept({link("http://x.org/a")});
    log.clear();
    linkPreviews.requests[0].completion(std::nullopt);
    EXPECT_EQ(log, QStringList());
}

TEST_F(LinkPreviews, OfAnItemThatLeftAreDropped)
{
    store.accept({link("http://x.org/a"), text("b")});
    store.discard(0, false);
    log.clear();
    linkPreviews.requests[0].completion(preview("New"));
    EXPECT_EQ(log, QStringList());
}

TEST_F(LinkPreviews, StopWhenAnObserverRemovesTheItemInBetween)
{
    store.accept({link("http://x.org/a")});
    bool isFirst = true;
    store.observeItems([&](const QList<DropItem> &) {
        if (std::exchange(isFirst, false))
            store.clearAll();
    });
    linkPreviews.requests[0].completion(preview("New"));
    EXPECT_TRUE(store.items().isEmpty());
}

TEST_F(ShelfStoreTest, ADescriptionThatComesLaterIsPublishedWhileItsItemIsThere)
{
    store.setItems({DropItem(DropItem::File{QUrl(QStringLiteral("file:///net/a"))},
                             QStringLiteral("a"), QString(), false)});
    log.clear();
    store.describeFile(store.items()[0].id(), QStringLiteral("Folder"), true);
    EXPECT_EQ(store.items()[0].subtitle(), QStringLiteral("Folder"));
    EXPECT_EQ(store.items()[0].glyph(), PhosphorIcon::Folder);
    EXPECT_EQ(log, QStringList{QStringLiteral("items a")});
    store.describe(QUuid::createUuid(), QStringLiteral("x"));
    EXPECT_EQ(log.size(), 1);
}

} // namespace
} // namespace corvane
