#include "core/image_converter.h"
#include "core/item_preparation.h"
#include "core/pasteboard_ingest.h"
#include "core/picture_items.h"
#include "core/remote_descriptions.h"
#include "core/remote_pictures.h"
#include "core/temporary_spool.h"
#include "core/text_descriptions.h"
#include "fakes/fake_file_locality.h"
#include "fakes/fake_image_codec.h"
#include "fakes/fake_pasteboard.h"
#include "fakes/fake_remote_files.h"
#include "fakes/fake_work_queue.h"
#include "fakes/test_clock.h"
#include "platform/system/file_url.h"

#include <gtest/gtest.h>

#include <optional>
#include <tuple>
#include <utility>
#include <vector>

namespace corvane {
namespace {

using test::contents;
using test::exists;

struct PasteboardIngestTest : testing::Test, test::TemporarySpool {
    PasteboardIngestTest()
    {
        preparation.onReady = [this](const DropItem &made) { ready.insert(made.id(), made); };
        textDescriptions.onFound = [this](const QUuid &item, const QString &description) {
            counted.insert(item, description);
        };
    }

    /// Everything that is made beside the main thread comes to its end.
    void finishWork()
    {
        work.runAll();
        clock.runPending();
    }
    /// What the item has become, all work done.
    DropItem finished(const DropItem &item)
    {
        finishWork();
        DropItem last = ready.value(item.id(), item);
        last.setSubtitle(counted.value(item.id(), last.subtitle()));
        return last;
    }
    /// The source has saved it where it was told to.
    void promiseFile(const QString &name, const QByteArray &bytes)
    {
        const auto place = ingest.placeForPromisedFile(name);
        ASSERT_TRUE(place);
        pasteboard.saveFile(*place, bytes);
    }
    /// The only item of a drop, ready.
    DropItem single() { return finished(singleAtOnce()); }
    /// The same as it stands on the shelf at once.
    DropItem singleAtOnce()
    {
        const QList<DropItem> items = ingest.readAll(pasteboard);
        EXPECT_EQ(items.size(), 1);
        return items.isEmpty() ? DropItem({}, {}, {}, false) : items.constFirst();
    }
    static QUrl fileOf(const DropItem &item)
    {
        const auto *file = std::get_if<DropItem::File>(&item.payload());
        return file ? file->url : QUrl();
    }
    void offerText(const char *text) { pasteboard.offerText(QString::fromUtf8(text)); }
    void offerLink(const char *address)
    {
        pasteboard.offerUrls({QUrl(QString::fromUtf8(address))});
    }
    void offerPng(const QByteArray &bytes) { pasteboard.offerData(bytes, png); }
    void offerTiff(const QByteArray &bytes) { pasteboard.offerData(bytes, tiff); }

    const QString png = QStringLiteral("image/png");
    const QString tiff = QStringLiteral("image/tiff");
    test::FakeImageCodec codec;
    ImageConverter converter{codec};
    test::TestClock clock;
    test::FakeWorkQueue work;
    ItemPreparation preparation{spool, clock, work};
    PictureItems pictures{spool, converter, codec, preparation};
    test::FakeFileLocality locality;
    test::FakeRemoteFiles remoteFiles;
    RemoteDescriptions remoteDescriptions{remoteFiles};
    RemotePictures remotePictures{remoteFiles, pictures};
    TextDescriptions textDescriptions{work, clock};
    PasteboardIngest ingest{spool,          pictures,        locality, remoteDescriptions,
                            remotePictures, textDescriptions};
    QHash<QUuid, DropItem> ready;
    QHash<QUuid, QString> counted;
    test::FakePasteboard pasteboard;
};

using Files = PasteboardIngestTest;

TEST_F(Files, BecomeOneItemEachInTheirOrder)
{
    const QList<QUrl> urls
        = {temporary.write("b.txt", "1"), temporary.write("a.png", "2"), temporary.write("c", "3")};
    pasteboard.offerUrls(urls);
    const QList<DropItem> items = ingest.readAll(pasteboard);
    ASSERT_EQ(items.size(), 3);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(fileOf(items[i]), urls[i]);
        EXPECT_FALSE(items[i].isSpooled());
        EXPECT_FALSE(items[i].thumbnail().has_value());
    }
    EXPECT_EQ(items[0].title(), QStringLiteral("b.txt"));
    EXPECT_EQ(items[1].subtitle(), QStringLiteral("PNG · 1 byte"));
    EXPECT_FALSE(exists(spool.directory()));
}

TEST_F(Files, ThatAreTheSameAreKeptApart)
{
    const QUrl url = temporary.write("a", "x");
    pasteboard.offerUrls({url, url});
    const QList<DropItem> items = ingest.readAll(pasteboard);
    ASSERT_EQ(items.size(), 2);
    EXPECT_NE(items[0].id(), items[1].id());
}

TEST_F(Files, WinOverEverythingElse)
{
    offerPng("png");
    offerText("text");
    promiseFile(QStringLiteral("a.png"), "x");
    pasteboard.offerUrls({QUrl(QStringLiteral("http://x/")), temporary.write("a", "x")});
    EXPECT_EQ(fileOf(single()), temporary.url("a"));
    EXPECT_EQ(pasteboard.fetched, QStringList{QStringLiteral("fileUrls")});
}

TEST_F(Files, OfTiffBecomeSpooledPng)
{
    codec.teach("tiff bytes", {3, 2});
    pasteboard.offerUrls({temporary.write("scan.tiff", "tiff bytes")});
    const DropItem item = single();
    EXPECT_EQ(item.title(), QStringLiteral("scan.png"));
    EXPECT_TRUE(item.isSpooled());
    EXPECT_TRUE(spool.contains(fileOf(item)));
    EXPECT_EQ(contents(fileOf(item)), "image/png 3x2");
    EXPECT_EQ(item.subtitle(), QStringLiteral("PNG · 13 bytes"));
}

TEST_F(Files, OfTiffStandThereAtOnceUnderTheirFinalNames)
{
    codec.teach("tiff bytes", {3, 2});
    const QUrl scan = temporary.write("scan.tiff", "tiff bytes");
    const QUrl namesake = temporary.write("other/scan.tiff", "tiff bytes");
    pasteboard.offerUrls({scan, namesake});
    const QList<DropItem> items = ingest.readAll(pasteboard);
    ASSERT_EQ(items.size(), 2);
    EXPECT_EQ(items[0].title(), QStringLiteral("scan.png"));
    EXPECT_EQ(items[1].title(), QStringLiteral("scan 2.png"));
    for (const DropItem &item : items) {
        EXPECT_TRUE(item.isBeingMade());
        EXPECT_TRUE(item.isSpooled());
        EXPECT_EQ(item.subtitle(), QStringLiteral("Converting to PNG…"));
        EXPECT_EQ(item.glyph(), PhosphorIcon::Image);
        EXPECT_FALSE(exists(fileOf(item)));
    }
    EXPECT_EQ(items[1].original(), namesake);
    EXPECT_EQ(work.pendingCount(), 2U) << "nothing was decoded for the drop";
    finishWork();
    for (const DropItem &item : items) {
        const DropItem made = ready.value(item.id(), DropItem({}, {}, {}, false));
        EXPECT_EQ(made.title(), item.title());
        EXPECT_EQ(fileOf(made), fileOf(item));
        EXPECT_FALSE(made.isBeingMade());
        EXPECT_FALSE(made.original().has_value());
        EXPECT_EQ(contents(fileOf(made)), "image/png 3x2");
    }
}

TEST_F(Files, OfTiffThatAreRemovedMeanwhileAreNotMade)
{
    codec.teach("tiff bytes", {3, 2});
    const DropItem item = ingest.fileItem(temporary.write("scan.tiff", "tiff bytes"));
    const DropItem next = ingest.fileItem(temporary.url("scan.tiff"));
    spool.discard(fileOf(item));
    finishWork();
    EXPECT_FALSE(ready.contains(item.id()));
    EXPECT_FALSE(exists(fileOf(item)));
    EXPECT_TRUE(exists(temporary.url("scan.tiff")));
    EXPECT_EQ(contents(fileOf(ready.value(next.id(), next))), "image/png 3x2");
    EXPECT_EQ(ingest.fileItem(temporary.url("scan.tiff")).title(), QStringLiteral("scan.png"))
        << "the name is free again";
}

TEST_F(Files, OfTiffStayWhereTheyAreWhenTheyCannotBeConverted)
{
    const QUrl broken = temporary.write("scan.tif", "broken");
    const DropItem item = finished(ingest.fileItem(broken));
    EXPECT_EQ(fileOf(item), broken);
    EXPECT_EQ(item.title(), QStringLiteral("scan.tif"));
    EXPECT_EQ(item.subtitle(), QStringLiteral("TIF · 6 bytes"));
    EXPECT_FALSE(item.isSpooled());
    EXPECT_FALSE(item.isBeingMade());
}

TEST_F(Files, OfTiffStayWhereTheyAreWithoutASpool)
{
    codec.teach("tiff bytes", {3, 2});
    spoil();
    const QUrl good = temporary.write("good.tif", "tiff bytes");
    EXPECT_EQ(fileOf(ingest.fileItem(good)), good);
    EXPECT_EQ(ingest.fileItem(good).subtitle(), QStringLiteral("TIF · 10 bytes"));
    EXPECT_EQ(work.pendingCount(), 0U);
}

TEST_F(Files, OfCamerasAreNoTiff)
{
    codec.teach("raw", {3, 2});
    const QUrl raw = temporary.write("photo.nef", "raw");
    EXPECT_EQ(fileOf(ingest.fileItem(raw)), raw);
}

TEST_F(Files, AreDescribedByKindAndSize)
{
    const auto described = [this](const QByteArray &name, const QByteArray &bytes) {
        return PictureItems::describe(temporary.write(name, bytes));
    };
    EXPECT_EQ(described("a.txt", QByteArray(2048, 'x')), QStringLiteral("TXT · 2 KB"));
    EXPECT_EQ(described("noextension", "12"), QStringLiteral("2 bytes"));
    EXPECT_EQ(described(".bashrc", "12"), QStringLiteral("2 bytes"));
    EXPECT_EQ(described("archive.tar.gz", ""), QStringLiteral("GZ · 0 bytes"));
    EXPECT_EQ(PictureItems::describe(temporary.url("gone.txt")), QStringLiteral("TXT"));
    EXPECT_EQ(PictureItems::describe(temporary.url("gone")), QString());
}

TEST_F(Files, ThatArePipesHaveNoSize)
{
    ASSERT_EQ(::mkfifo(temporary.path("pipe.txt").constData(), 0600), 0);
    EXPECT_EQ(PictureItems::describe(temporary.url("pipe.txt")), QStringLiteral("TXT"));
}

TEST_F(Files, ThatAreFoldersSaySo)
{
    temporary.write("Photos.d/a", "x");
    for (const char *name : {"Photos.d", "Photos.d/"}) {
        const DropItem item = ingest.fileItem(temporary.url(name));
        EXPECT_EQ(item.title(), QStringLiteral("Photos.d"));
        EXPECT_EQ(item.subtitle(), QStringLiteral("Folder"));
        EXPECT_EQ(item.glyph(), PhosphorIcon::Folder);
    }
}

TEST_F(Files, WithAnyNameAreFound)
{
    for (const char *name :
         {"a #1.txt", "100%.txt", "a b.txt", "\xf0\x9f\x90\xa6.txt", "a?.txt", "a\nb.txt"}) {
        const DropItem item = ingest.fileItem(temporary.write(name, "12"));
        EXPECT_EQ(item.title(), QString::fromUtf8(name));
        EXPECT_EQ(item.subtitle(), QStringLiteral("TXT · 2 bytes"));
    }
    const QByteArray longest = QByteArray(251, 'x') + QByteArray(".txt");
    EXPECT_EQ(ingest.fileItem(temporary.write(longest, "12")).title().size(), 255);
}

TEST_F(Files, WithANameThatIsNoUtf8AreFound)
{
    const QByteArray path = temporary.path("caf\xe9.txt");
    ASSERT_EQ(::link(temporary.write("plain", "12").path().toUtf8().constData(), path.constData()),
              0);
    EXPECT_EQ(ingest.fileItem(file_url::fromNativePath(path)).subtitle(),
              QStringLiteral("TXT · 2 bytes"));
    ::unlink(path.constData());
}

using RemoteFileItems = PasteboardIngestTest;

TEST_F(RemoteFileItems, AreToldByTheirNamesAlone)
{
    temporary.write("net/Photos/a.txt", "12");
    locality.remoteFolder = temporary.path("net");
    pasteboard.offerUrls({temporary.write("here.txt", "12"), temporary.url("net/Photos/a.txt"),
                          temporary.url("net/Photos")});
    const QList<DropItem> items = ingest.readAll(pasteboard);
    ASSERT_EQ(items.size(), 3);
    EXPECT_EQ(items[0].subtitle(), QStringLiteral("TXT · 2 bytes"));
    EXPECT_EQ(items[1].title(), QStringLiteral("a.txt"));
    EXPECT_EQ(items[1].subtitle(), QStringLiteral("TXT"));
    EXPECT_EQ(items[2].subtitle(), QString());
    ASSERT_EQ(remoteFiles.inspections.size(), 2U) << "and asked for later";
    EXPECT_EQ(remoteFiles.inspections[1].path, temporary.path("net/Photos"));
}

TEST_F(RemoteFileItems, AreDescribedOnceTheServerAnswers)
{
    std::vector<std::tuple<QUuid, QString, bool>> found;
    remoteDescriptions.onFound = [&](const QUuid &item, const QString &description, bool isFolder) {
        found.emplace_back(item, description, isFolder);
    };
    locality.remoteFolder = "/net";
    const DropItem file = ingest.fileItem(file_url::fromNativePath("/net/a.txt"));
    const DropItem folder = ingest.fileItem(file_url::fromNativePath("/net/Photos.d/"));
    ingest.fileItem(file_url::fromNativePath("/net/lost.txt"));
    ASSERT_EQ(remoteFiles.inspections.size(), 3U);
    remoteFiles.inspections[0].answer(
        FileVersion{"/net/a.txt", FileVersion::Kind::Regular, 0, 2048});
    remoteFiles.inspections[1].answer(
        FileVersion{"/net/Photos.d/", FileVersion::Kind::Folder, 0, 0});
    remoteFiles.inspections[2].answer(std::nullopt);
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0], std::tuple(file.id(), QStringLiteral("TXT · 2 KB"), false));
    EXPECT_EQ(found[1], std::tuple(folder.id(), QStringLiteral("Folder"), true));
}

TEST_F(RemoteFileItems, OfTiffAreNotReadForTheDrop)
{
    codec.teach("tiff bytes", {3, 2});
    const QUrl url = temporary.write("net/scan.tiff", "tiff bytes");
    locality.remoteFolder = temporary.path("net");
    const DropItem item = ingest.fileItem(url);
    EXPECT_EQ(fileOf(item), url);
    EXPECT_FALSE(item.isSpooled());
    EXPECT_EQ(item.subtitle(), QStringLiteral("TIFF"));
}

TEST_F(RemoteFileItems, OfTiffAreConvertedOnceTheyCanBeRead)
{
    codec.teach("tiff bytes", {3, 2});
    locality.remoteFolder = "/net";
    const DropItem first = ingest.fileItem(file_url::fromNativePath("/net/a.tiff"));
    const DropItem second = ingest.fileItem(file_url::fromNativePath("/net/b.tiff"));
    ASSERT_EQ(remoteFiles.readings.size(), 1U) << "one after the other";
    EXPECT_EQ(remoteFiles.readings[0].path, "/net/a.tiff");
    remoteFiles.readings[0].answer("tiff bytes");
    EXPECT_EQ(remoteFiles.readings.size(), 1U);
    const DropItem made = finished(first);
    EXPECT_EQ(made.title(), QStringLiteral("a.png"));
    EXPECT_TRUE(made.isSpooled());
    EXPECT_EQ(contents(fileOf(made)), "image/png 3x2");
    ASSERT_EQ(remoteFiles.readings.size(), 2U);
    remoteFiles.readings[1].answer(std::nullopt);
    EXPECT_EQ(finished(second).title(), QStringLiteral("b.tiff"));
    ingest.fileItem(file_url::fromNativePath("/net/c.tiff"));
    EXPECT_EQ(remoteFiles.readings.size(), 3U);
}

TEST_F(RemoteFileItems, OfBrokenTiffStayWhatTheyAre)
{
    locality.remoteFolder = "/net";
    const DropItem item = ingest.fileItem(file_url::fromNativePath("/net/a.tiff"));
    ingest.fileItem(file_url::fromNativePath("/net/b.tiff"));
    remoteFiles.readings[0].answer("broken");
    finishWork();
    EXPECT_FALSE(ready.contains(item.id()));
    EXPECT_EQ(remoteFiles.readings.size(), 2U) << "the next has its turn";
}

TEST_F(RemoteFileItems, OfTiffThatAreNotWantedAnyMoreAreNeitherFetchedNorKept)
{
    codec.teach("tiff bytes", {3, 2});
    locality.remoteFolder = "/net";
    QSet<QUuid> shelf;
    remotePictures.isWanted = [&shelf](const QUuid &id) { return shelf.contains(id); };
    const DropItem removedEarly = ingest.fileItem(file_url::fromNativePath("/net/a.tiff"));
    const DropItem removedLate = ingest.fileItem(file_url::fromNativePath("/net/b.tiff"));
    const DropItem neverFetched = ingest.fileItem(file_url::fromNativePath("/net/c.tiff"));
    const DropItem last = ingest.fileItem(file_url::fromNativePath("/net/d.tiff"));
    shelf = {removedLate.id(), neverFetched.id(), last.id()};
    remoteFiles.readings[0].answer("tiff bytes");
    ASSERT_EQ(remoteFiles.readings.size(), 2U);
    remoteFiles.readings[1].answer("tiff bytes");
    shelf = {last.id()};
    finishWork();
    EXPECT_FALSE(exists(temporary.path("Corvane-4711/b.png")));
    ASSERT_EQ(remoteFiles.readings.size(), 3U);
    EXPECT_EQ(remoteFiles.readings[2].path, "/net/d.tiff");
}

TEST_F(RemoteFileItems, OfTiffThatLeaveMeanwhileAreNotConvertedToTheEnd)
{
    codec.teach("tiff bytes", {3, 2});
    locality.remoteFolder = "/net";
    const DropItem item = ingest.fileItem(file_url::fromNativePath("/net/a.tiff"));
    const DropItem next = ingest.fileItem(file_url::fromNativePath("/net/b.tiff"));
    remoteFiles.readings[0].answer("tiff bytes");
    remotePictures.itemLeft(next.id());
    remotePictures.itemLeft(item.id());
    finishWork();
    EXPECT_EQ(codec.decodings, 0);
    EXPECT_FALSE(exists(temporary.path("Corvane-4711/a.png")));
    ASSERT_EQ(remoteFiles.readings.size(), 2U) << "the next has its turn";
    remoteFiles.readings[1].answer("tiff bytes");
    finishWork();
    EXPECT_EQ(codec.decodings, 1);
}

TEST(RemoteDescriptionsTest, FindNothingOnceTheyAreGone)
{
    test::FakeRemoteFiles files;
    std::optional<RemoteDescriptions> descriptions(files);
    int found = 0;
    descriptions->onFound = [&](const QUuid &, const QString &, bool) { ++found; };
    descriptions->find(QUuid::createUuid(), "/net/a");
    descriptions.reset();
    files.inspections[0].answer(FileVersion{"/net/a", FileVersion::Kind::Folder, 0, 0});
    EXPECT_EQ(found, 0);
}

using Pictures = PasteboardIngestTest;

TEST_F(Pictures, AreSpooled)
{
    codec.teach("png bytes", {1200, 800});
    offerPng("png bytes");
    const DropItem item = single();
    EXPECT_EQ(item.title(), QStringLiteral("Image.png"));
    EXPECT_EQ(item.subtitle(), QStringLiteral("1200 × 800 · PNG"));
    EXPECT_TRUE(item.isSpooled());
    EXPECT_EQ(contents(fileOf(item)), "png bytes");
    EXPECT_EQ(single().title(), QStringLiteral("Image 2.png"));
}

TEST_F(Pictures, OfPngWinOverTiff)
{
    codec.teach("tiff bytes", {3, 2});
    offerTiff("tiff bytes");
    offerPng("png bytes");
    EXPECT_EQ(contents(fileOf(single())), "png bytes");
    EXPECT_FALSE(pasteboard.fetched.contains(tiff));
}

TEST_F(Pictures, OfTiffBecomePng)
{
    codec.teach("tiff bytes", {3, 2});
    offerTiff("tiff bytes");
    const DropItem item = single();
    EXPECT_EQ(item.title(), QStringLiteral("Image.png"));
    EXPECT_EQ(item.subtitle(), QStringLiteral("PNG · 13 bytes"));
    EXPECT_TRUE(item.isSpooled());
    EXPECT_EQ(contents(fileOf(item)), "image/png 3x2");
}

TEST_F(Pictures, StandThereBeforeTheyAreWritten)
{
    codec.teach("png bytes", {1200, 800});
    offerPng("png bytes");
    const DropItem item = singleAtOnce();
    EXPECT_TRUE(item.isBeingMade());
    EXPECT_EQ(item.title(), QStringLiteral("Image.png"));
    EXPECT_EQ(item.subtitle(), QStringLiteral("PNG · 9 bytes"));
    EXPECT_FALSE(exists(fileOf(item)));
    EXPECT_EQ(finished(item).subtitle(), QStringLiteral("1200 × 800 · PNG"));
    EXPECT_EQ(contents(fileOf(item)), "png bytes");
}

TEST_F(Pictures, StayInMemoryWhereTheyCannotBeWritten)
{
    offerPng("png bytes");
    const DropItem item = singleAtOnce();
    temporary.write("Corvane-4711/Image.png", "in the way");
    const DropItem kept = finished(item);
    ASSERT_NE(std::get_if<DropItem::ImageBytes>(&kept.payload()), nullptr);
    EXPECT_EQ(std::get<DropItem::ImageBytes>(kept.payload()).data, "png bytes");
    EXPECT_FALSE(kept.isSpooled());
}

TEST_F(Pictures, OfTiffThatCannotBeConvertedAreSpooledAsTheyAre)
{
    offerTiff("broken");
    const DropItem item = single();
    EXPECT_TRUE(item.title().startsWith(QStringLiteral("Image.tif"))) << qPrintable(item.title());
    EXPECT_TRUE(item.subtitle().endsWith(QStringLiteral(" · 6 bytes")));
    EXPECT_TRUE(item.isSpooled());
    EXPECT_EQ(contents(fileOf(item)), "broken");
}

TEST_F(Pictures, StayInMemoryWithoutASpool)
{
    spoil();
    offerPng("png bytes");
    const DropItem item = single();
    const auto *bytes = std::get_if<DropItem::ImageBytes>(&item.payload());
    ASSERT_NE(bytes, nullptr);
    EXPECT_EQ(bytes->data, "png bytes");
    EXPECT_EQ(bytes->type, UTType::png());
    EXPECT_EQ(item.title(), QStringLiteral("Image"));
    EXPECT_EQ(item.subtitle(), QStringLiteral("PNG · 9 bytes"));
    EXPECT_FALSE(item.isSpooled());
}

TEST_F(Pictures, WinOverLinksAndText)
{
    offerLink("http://x/");
    offerText("text");
    offerPng("png bytes");
    EXPECT_EQ(single().title(), QStringLiteral("Image.png"));
}

TEST_F(Pictures, ThatNeverCameLeaveTheOthersTheirTurn)
{
    pasteboard.offered << png << tiff;
    pasteboard.bytes.insert(png, QByteArray());
    offerText("text");
    EXPECT_EQ(single().title(), QStringLiteral("text"));
}

TEST_F(Pictures, OfATypeWithoutAnExtensionAreCalledImage)
{
    EXPECT_EQ(PictureItems::describe("12", UTType(QStringLiteral("x-own/kind")), codec),
              QStringLiteral("IMAGE · 2 bytes"));
}

using PromisedFiles = PasteboardIngestTest;

TEST_F(PromisedFiles, AreTakenBeforePixels)
{
    offerPng("png bytes");
    promiseFile(QStringLiteral("Cat photo.jpeg"), "original");
    const DropItem item = single();
    EXPECT_EQ(item.title(), QStringLiteral("Cat photo.jpeg"));
    EXPECT_EQ(item.subtitle(), QStringLiteral("JPEG · 8 bytes"));
    EXPECT_TRUE(item.isSpooled());
    EXPECT_TRUE(spool.contains(fileOf(item)));
    EXPECT_EQ(contents(fileOf(item)), "original");
    EXPECT_FALSE(pasteboard.fetched.contains(png));
}

TEST_F(PromisedFiles, ThatAreStillToComeShareNoPlace)
{
    const auto first = ingest.placeForPromisedFile(QStringLiteral("a.png"));
    const auto second = ingest.placeForPromisedFile(QStringLiteral("a.png"));
    ASSERT_TRUE(first && second);
    EXPECT_NE(*first, *second);
    // A source that was given up may still write.
    spool.discard(*first);
    EXPECT_NE(ingest.placeForPromisedFile(QStringLiteral("a.png")), first);
}

TEST_F(PromisedFiles, ThatHaveArrivedAndGoneLeaveTheirNameToOthers)
{
    promiseFile(QStringLiteral("a.png"), "x");
    spool.discard(fileOf(single()));
    promiseFile(QStringLiteral("a.png"), "y");
    EXPECT_EQ(single().title(), QStringLiteral("a.png"));
}

TEST_F(PromisedFiles, GetASafeName)
{
    promiseFile(QStringLiteral("../../.ssh/..authorized:keys"), "x");
    const DropItem item = single();
    EXPECT_TRUE(spool.contains(fileOf(item)));
    EXPECT_EQ(item.title(), QStringLiteral("authorized-keys"));
    promiseFile(QString(), "x");
    EXPECT_EQ(single().title(), QStringLiteral("Item"));
    promiseFile(QString(100'000, QLatin1Char('x')) + QStringLiteral(".png"), "x");
    EXPECT_EQ(single().title(), QString(120, QLatin1Char('x')) + QStringLiteral(".png"));
}

TEST_F(PromisedFiles, OfTiffBecomePng)
{
    codec.teach("tiff bytes", {3, 2});
    promiseFile(QStringLiteral("scan.tiff"), "tiff bytes");
    const DropItem item = singleAtOnce();
    EXPECT_EQ(item.title(), QStringLiteral("scan.png"));
    EXPECT_EQ(item.original(), temporary.url("Corvane-4711/scan.tiff"));
    EXPECT_TRUE(exists(*item.original()));
    EXPECT_EQ(contents(fileOf(finished(item))), "image/png 3x2");
    EXPECT_FALSE(exists(*item.original()));
}

TEST_F(PromisedFiles, OfTiffThatAreRemovedMeanwhileLeaveNothing)
{
    codec.teach("tiff bytes", {3, 2});
    promiseFile(QStringLiteral("scan.tiff"), "tiff bytes");
    const DropItem item = singleAtOnce();
    spool.discard(fileOf(item));
    finishWork();
    EXPECT_FALSE(exists(fileOf(item)));
    EXPECT_FALSE(exists(*item.original()));
}

TEST_F(PromisedFiles, OfTiffThatCannotBeConvertedStay)
{
    promiseFile(QStringLiteral("scan.tiff"), "broken");
    const DropItem item = single();
    EXPECT_EQ(item.title(), QStringLiteral("scan.tiff"));
    EXPECT_TRUE(item.isSpooled());
    EXPECT_EQ(contents(fileOf(item)), "broken");
}

TEST_F(PromisedFiles, ThatAreNotThereAfterAllLeaveTheOthersTheirTurn)
{
    offerLink("http://x/a");
    pasteboard.savedFile = ingest.placeForPromisedFile(QStringLiteral("a.png"));
    EXPECT_EQ(single().title(), QStringLiteral("/a"));
    ASSERT_EQ(::symlink("/etc/passwd", file_url::nativePath(*pasteboard.savedFile).constData()), 0);
    EXPECT_EQ(single().title(), QStringLiteral("/a"));
    EXPECT_FALSE(exists(temporary.path("Corvane-4711/a.png")));
}

TEST_F(PromisedFiles, HaveNoPlaceWithoutASpool)
{
    spoil();
    EXPECT_FALSE(ingest.placeForPromisedFile(QStringLiteral("a.png")));
}

using Links = PasteboardIngestTest;

TEST_F(Links, AreTitledWithTheirPath)
{
    offerLink("https://example.org/a/b?q=1");
    const DropItem item = single();
    EXPECT_EQ(item.title(), QStringLiteral("/a/b"));
    EXPECT_EQ(item.subtitle(), QStringLiteral("example.org"));
    EXPECT_FALSE(item.isSpooled());
    const auto *link = std::get_if<DropItem::Link>(&item.payload());
    ASSERT_NE(link, nullptr);
    EXPECT_EQ(link->url, QUrl(QStringLiteral("https://example.org/a/b?q=1")));
}

TEST_F(Links, ToAHomePageAreTitledWithTheirAddress)
{
    for (const char *address :
         {"https://example.org", "http://example.org/", "http://example.org?q"}) {
        pasteboard = {};
        offerLink(address);
        EXPECT_EQ(single().title(), QString::fromLatin1(address));
        EXPECT_EQ(single().subtitle(), QStringLiteral("example.org"));
    }
}

TEST_F(Links, WithAnInternationalNamePassForNoOtherOne)
{
    offerLink("https://xn--80ak6aa92e.com/a");
    EXPECT_EQ(single().subtitle(), QStringLiteral("xn--80ak6aa92e.com"));
    pasteboard = {};
    offerLink("https://xn--80ak6aa92e.com/");
    EXPECT_EQ(single().title(), QStringLiteral("https://xn--80ak6aa92e.com/"));
    pasteboard = {};
    offerLink("https://xn--bcher-kva.de/");
    EXPECT_EQ(single().title(), QStringLiteral("https://b\u00fccher.de/"));
    EXPECT_EQ(single().subtitle(), QStringLiteral("b\u00fccher.de"));
}

TEST_F(Links, WithoutAHostAreDescribedByTheirAddress)
{
    offerLink("http:/a");
    EXPECT_EQ(single().subtitle(), QStringLiteral("http:/a"));
}

TEST_F(Links, AreDecidedByTheFirstAddressAlone)
{
    pasteboard.offerUrls({QUrl(QStringLiteral("ftp://x/a")), QUrl(QStringLiteral("http://x/a"))});
    EXPECT_TRUE(ingest.readAll(pasteboard).isEmpty());
    offerText("ftp://x/a");
    EXPECT_EQ(std::get_if<DropItem::Link>(&single().payload()), nullptr);
    EXPECT_EQ(single().title(), QStringLiteral("ftp://x/a"));
}

TEST_F(Links, WinOverText)
{
    offerLink("http://x/a");
    offerText("text");
    EXPECT_EQ(single().title(), QStringLiteral("/a"));
}

using Texts = PasteboardIngestTest;

TEST_F(Texts, AreTitledWithTheirFirstLineAndKeptAsTheyAre)
{
    offerText("hello\nworld");
    const DropItem item = single();
    EXPECT_EQ(item.title(), QStringLiteral("hello"));
    EXPECT_EQ(item.subtitle(), QStringLiteral("11 characters"));
    EXPECT_EQ(std::get<DropItem::Text>(item.payload()).string, QStringLiteral("hello\nworld"));
    EXPECT_FALSE(item.isSpooled());
}

TEST_F(Texts, OfOneCharacterSaySo)
{
    offerText("x");
    EXPECT_EQ(single().subtitle(), QStringLiteral("1 character"));
    offerText("e\xcc\x81");
    EXPECT_EQ(single().subtitle(), QStringLiteral("1 character"));
}

TEST_F(Texts, OfNothingButBlanksAreNoItem)
{
    for (const char *blank : {"", " ", " \n\t\r\n ", "\xc2\xa0\n"}) {
        offerText(blank);
        EXPECT_TRUE(ingest.readAll(pasteboard).isEmpty());
    }
}

TEST_F(Texts, AreNotTrimmedButTheirTitleIs)
{
    offerText("\n\n  hello  \n x ");
    EXPECT_EQ(single().title(), QStringLiteral("hello"));
    EXPECT_EQ(single().subtitle(), QStringLiteral("15 characters"));
    EXPECT_EQ(std::get<DropItem::Text>(single().payload()).string,
              QStringLiteral("\n\n  hello  \n x "));
    offerText("hello\r\nworld");
    EXPECT_EQ(single().title(), QStringLiteral("hello"));
}

TEST_F(Texts, HaveAnEmptyTitleWhenTheirFirstLineIsBlank)
{
    offerText("   \nhello");
    EXPECT_EQ(single().title(), QString());
    EXPECT_EQ(single().subtitle(), QStringLiteral("9 characters"));
}

TEST_F(Texts, ThatAreLargeAreCountedBesideTheMainThread)
{
    pasteboard.offerText(QString(1'000'001, QLatin1Char('x')));
    const DropItem item = singleAtOnce();
    EXPECT_EQ(item.subtitle(), QStringLiteral("Counting characters…"));
    EXPECT_EQ(std::get<DropItem::Text>(item.payload()).string.size(), 1'000'001);
    EXPECT_EQ(finished(item).subtitle(), QStringLiteral("1000001 characters"));
    pasteboard.offerText(QString(1'000'000, QLatin1Char('x')));
    EXPECT_EQ(singleAtOnce().subtitle(), QStringLiteral("1000000 characters"));
    EXPECT_EQ(work.pendingCount(), 0U);
}

TEST_F(Texts, AreNotSpokenOfByCountersThatAreGone)
{
    std::optional<TextDescriptions> descriptions(std::in_place, work, clock);
    int found = 0;
    descriptions->onFound = [&](const QUuid &, const QString &) { ++found; };
    descriptions->find(QUuid::createUuid(), QString(2'000'000, QLatin1Char('x')));
    descriptions.reset();
    finishWork();
    EXPECT_EQ(found, 0);
}

TEST_F(Texts, HaveTitlesThatEndWhereNobodyReadsOn)
{
    constexpr qsizetype most = 16'384;
    const auto title = [this](const QString &text) {
        pasteboard.offerText(text);
        return singleAtOnce().title();
    };
    const QString full(most, QLatin1Char('x'));
    const QString blanks(50, QLatin1Char(' '));
    const QString y = QStringLiteral("y");
    EXPECT_EQ(title(QString(blanks + full + y)), full);
    EXPECT_EQ(title(QString(full + blanks + QStringLiteral("\n") + y)), full);
    EXPECT_EQ(title(QString(full + blanks)), full);
    EXPECT_EQ(title(QString(full.chopped(50) + blanks + QStringLiteral("\n") + y)),
              full.chopped(50));
    EXPECT_EQ(title(QString(full.chopped(50) + blanks + y)), QString(full.chopped(50) + blanks));
    const QString smile = QStringLiteral("\U0001F600");
    EXPECT_EQ(title(QString(full.chopped(1) + smile)), full.chopped(1));
    EXPECT_EQ(title(QString(full.chopped(2) + smile)), QString(full.chopped(2) + smile));
}

TEST_F(Texts, OfTwoHundredMegabytesAreSharedAndNotCopied)
{
    const QString line(200 * 1024 * 1024 / 2, QLatin1Char('x'));
    pasteboard.offerText(line);
    const DropItem item = single();
    EXPECT_EQ(std::get<DropItem::Text>(item.payload()).string.constData(), line.constData());
    EXPECT_EQ(item.subtitle(), QStringLiteral("104857600 characters"));
    EXPECT_LT(item.title().size(), 20'000);
    EXPECT_TRUE(line.startsWith(item.title()));
}

TEST_F(PasteboardIngestTest, FindsNothingOnAnEmptyPasteboard)
{
    EXPECT_TRUE(ingest.readAll(pasteboard).isEmpty());
}

TEST_F(PasteboardIngestTest, TakesRichTextButHasNoReaderForIt)
{
    EXPECT_TRUE(PasteboardIngest::acceptedTypes().contains(QStringLiteral("application/rtf")));
    pasteboard.offerData("{\\rtf1 hello}", QStringLiteral("text/rtf"));
    EXPECT_TRUE(ingest.readAll(pasteboard).isEmpty());
    EXPECT_FALSE(PasteboardIngest::canRead(pasteboard));
}

TEST_F(PasteboardIngestTest, NamesTheTypesThatItTakesInTheirOrder)
{
    const QStringList types = PasteboardIngest::acceptedTypes();
    const QStringList main = {QStringLiteral("text/uri-list"),
                              png,
                              tiff,
                              QStringLiteral("text/x-moz-url"),
                              QStringLiteral("text/plain"),
                              QStringLiteral("application/rtf"),
                              QStringLiteral("text/rtf")};
    qsizetype last = -1;
    for (const QString &type : main) {
        EXPECT_GT(types.indexOf(type), last) << qPrintable(type);
        last = types.indexOf(type);
    }
    EXPECT_TRUE(types.contains(QStringLiteral("UTF8_STRING")));
}

TEST_F(PasteboardIngestTest, FetchesNothingLargeBeforeTheDrop)
{
    offerPng("png bytes");
    offerText("text");
    offerLink("http://x/");
    EXPECT_TRUE(PasteboardIngest::canRead(pasteboard));
    for (const QString &type : {png, tiff, QStringLiteral("string")})
        EXPECT_FALSE(pasteboard.fetched.contains(type)) << qPrintable(type);
    EXPECT_FALSE(exists(spool.directory()));
}

TEST_F(PasteboardIngestTest, SaysBeforeTheDropWhatItCouldTake)
{
    const auto canRead = [this](const char *type) {
        pasteboard = {};
        pasteboard.offered << QString::fromLatin1(type);
        return PasteboardIngest::canRead(pasteboard);
    };
    for (const char *type : {"image/png", "image/tiff", "text/plain", "UTF8_STRING", "STRING",
                             "text/plain;charset=utf-16", "TEXT/PLAIN"})
        EXPECT_TRUE(canRead(type)) << type;
    for (const char *type : {"image/jpeg", "text/html", "application/x-thing", "text/uri-list"})
        EXPECT_FALSE(canRead(type)) << type;
    const auto canReadAddress = [this](const char *address) {
        pasteboard = {};
        offerLink(address);
        return PasteboardIngest::canRead(pasteboard);
    };
    EXPECT_TRUE(canReadAddress("file:///a"));
    EXPECT_TRUE(canReadAddress("https://x/"));
    EXPECT_FALSE(canReadAddress("ftp://x/"));
}

} // namespace
} // namespace corvane
