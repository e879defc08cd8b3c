#include "core/item_preparation.h"
#include "core/saved_pictures.h"
#include "core/temporary_spool.h"
#include "fakes/fake_work_queue.h"
#include "fakes/test_clock.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <cstdio>

namespace corvane {
namespace {

QUrl urlOf(const DropItem &form)
{
    const auto *file = std::get_if<DropItem::File>(&form.payload());
    return file ? file->url : QUrl();
}

struct SavedPicturesTest : testing::Test, test::TemporarySpool {
    static DropItem picture(const QByteArray &bytes)
    {
        return {DropItem::ImageBytes{bytes, UTType::png()}, QStringLiteral("Image"),
                QStringLiteral("PNG"), false};
    }
    void finishWork()
    {
        work.runAll();
        clock.runPending();
    }
    /// The file of a picture once it is written.
    QUrl saved(const DropItem &wanted)
    {
        const QUrl url = urlOf(pictures.asFile(wanted));
        finishWork();
        return url;
    }
    QStringList files() const
    {
        return QDir(spool.directory().toLocalFile()).entryList(QDir::Files);
    }

    test::TestClock clock;
    test::FakeWorkQueue work;
    ItemPreparation preparation{spool, clock, work};
    SavedPictures pictures{spool, preparation};
    const DropItem item = picture("pixels");
};

TEST_F(SavedPicturesTest, AreWrittenBesideTheMainThread)
{
    const DropItem file = pictures.asFile(item);
    EXPECT_TRUE(file.isBeingMade());
    EXPECT_EQ(urlOf(file).fileName(), QStringLiteral("Image.png"));
    EXPECT_FALSE(test::exists(urlOf(file)));
    finishWork();
    EXPECT_EQ(test::contents(urlOf(file)), "pixels");
    const DropItem written = pictures.asFile(item);
    EXPECT_FALSE(written.isBeingMade());
    EXPECT_TRUE(written.isSpooled());
    EXPECT_EQ(written.title(), QStringLiteral("Image.png"));
    EXPECT_EQ(written.subtitle(), QStringLiteral("PNG"));
}

TEST_F(SavedPicturesTest, AreWrittenOnce)
{
    const QUrl underWay = urlOf(pictures.asFile(item));
    EXPECT_EQ(urlOf(pictures.asFile(item)), underWay);
    finishWork();
    EXPECT_EQ(urlOf(pictures.asFile(item)), underWay);
    EXPECT_EQ(work.pendingCount(), 0U);
    EXPECT_EQ(files().size(), 1);
    EXPECT_NE(saved(picture("pixels")), underWay) << "each item has its own";
}

TEST_F(SavedPicturesTest, AreWrittenAnewWhereTheFileIsGone)
{
    ASSERT_TRUE(QFile::remove(saved(item).toLocalFile()));
    EXPECT_EQ(test::contents(saved(item)), "pixels");
}

TEST_F(SavedPicturesTest, AreWrittenAnewForOtherBytes)
{
    const QUrl before = saved(item);
    DropItem changed = item;
    changed.become(picture("more"));
    const QUrl after = saved(changed);
    EXPECT_NE(after, before);
    EXPECT_EQ(test::contents(after), "more");
    EXPECT_EQ(test::contents(before), "pixels") << "whoever was given it may still read it";
}

TEST_F(SavedPicturesTest, GoWithAnItemThatIsRemoved)
{
    const QUrl url = saved(item);
    pictures.itemLeft(item.id(), true);
    EXPECT_FALSE(test::exists(url));
}

TEST_F(SavedPicturesTest, AreNotWrittenForAnItemThatIsRemovedBefore)
{
    pictures.asFile(item);
    pictures.itemLeft(item.id(), true);
    finishWork();
    EXPECT_EQ(files(), QStringList());
}

TEST_F(SavedPicturesTest, AreWrittenForWhoeverIsToBeToldOfThem)
{
    QList<DropItem> given;
    QByteArrayList contents;
    pictures.asFiles({item, picture("more")}, [&](const QList<DropItem> &ready) {
        for (const DropItem &file : ready)
            contents << test::contents(urlOf(file));
        given = ready;
        pictures.giveAway({ready.constLast()});
    });
    pictures.itemLeft(item.id(), true);
    EXPECT_TRUE(given.isEmpty());
    finishWork();
    EXPECT_EQ(contents, (QByteArrayList{"pixels", "more"}));
    ASSERT_EQ(given.size(), 2);
    EXPECT_FALSE(test::exists(urlOf(given[0]))) << "nobody was told of it after all";
    EXPECT_TRUE(test::exists(urlOf(given[1])));
}

TEST_F(SavedPicturesTest, StayForWhoeverTookTheItem)
{
    const QUrl written = saved(item);
    pictures.itemLeft(item.id(), false);
    EXPECT_TRUE(test::exists(written));

    const DropItem other = picture("more");
    const QUrl underWay = urlOf(pictures.asFile(other));
    pictures.itemLeft(other.id(), false);
    finishWork();
    EXPECT_EQ(test::contents(underWay), "more");
}

TEST_F(SavedPicturesTest, ThatCannotBeWrittenStayInMemoryAndAreTriedAgain)
{
    QList<DropItem> given;
    pictures.asFiles({item}, [&](const QList<DropItem> &ready) { given = ready; });
    const QByteArray folder = file_url::nativePath(spool.directory());
    const QByteArray aside = folder + "-aside";
    ASSERT_EQ(::rename(folder.constData(), aside.constData()), 0);
    finishWork();
    ASSERT_EQ(given.size(), 1);
    EXPECT_TRUE(std::holds_alternative<DropItem::ImageBytes>(given[0].payload()));
    ASSERT_EQ(::rename(aside.constData(), folder.constData()), 0);
    EXPECT_EQ(test::contents(saved(item)), "pixels");
}

TEST_F(SavedPicturesTest, StayInMemoryWithoutASpool)
{
    spoil();
    EXPECT_EQ(pictures.asFile(item).id(), item.id());
    EXPECT_EQ(work.pendingCount(), 0U);
}

TEST_F(SavedPicturesTest, OfWhatIsNoPictureInMemoryAreNotMade)
{
    const DropItem file(DropItem::File{temporary.write("a.png", "x")}, {}, {}, false);
    EXPECT_EQ(pictures.asFile(file).id(), file.id());
    EXPECT_EQ(work.pendingCount(), 0U);
}

TEST_F(SavedPicturesTest, MayGoBeforeTheWorkEnds)
{
    DropItem file = item;
    {
        SavedPictures others(spool, preparation);
        file = others.asFile(item);
    }
    finishWork();
    EXPECT_TRUE(test::exists(urlOf(file)));
}

} // namespace
} // namespace corvane
