#include "core/feedback.h"
#include "core/image_converter.h"
#include "core/item_preparation.h"
#include "core/kept_items.h"
#include "core/link_preview_source.h"
#include "core/pasteboard_ingest.h"
#include "core/picture_items.h"
#include "core/remote_descriptions.h"
#include "core/remote_pictures.h"
#include "core/settings.h"
#include "core/shelf_store.h"
#include "core/spool_place.h"
#include "core/temporary_spool.h"
#include "core/text_descriptions.h"
#include "fakes/disk_waits.h"
#include "fakes/fake_file_locality.h"
#include "fakes/fake_image_codec.h"
#include "fakes/fake_login_items.h"
#include "fakes/fake_pasteboard.h"
#include "fakes/fake_remote_files.h"
#include "fakes/fake_work_queue.h"
#include "fakes/full_disk.h"
#include "fakes/log_lines.h"
#include "fakes/memory_user_defaults.h"
#include "fakes/random_steps.h"
#include "fakes/recording_sources.h"
#include "fakes/test_clock.h"

#include <QLocale>
#include <QStringBuilder>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <memory>
#include <optional>

namespace corvane {
namespace {

using test::contents;
using test::exists;
using test::TemporaryFolder;

constexpr auto always = [] { return true; };

/// What stays from one run of the program to the next.
struct Machine {
    QByteArray kept() const { return disk.path("data/corvane/kept"); }
    QByteArray kept(const QByteArray &name) const { return disk.path("data/corvane/kept/" + name); }
    QStringList keptFiles() const
    {
        return QDir(QFile::decodeName(kept()))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    TemporaryFolder disk;
    test::MemoryUserDefaults defaults;
    test::FakeLoginItems loginItems;
    Settings settings{defaults, loginItems};
    qint64 runs = 0;
    /// What the codec knows of pictures.
    QHash<QByteArray, QSize> pictures{{"pixels", {640, 480}}, {"tiff", {300, 400}}};
};

/// The program from its start to its end.
struct OneRun {
    explicit OneRun(Machine &where)
        : machine(where)
        , spool(machine.disk.path("tmp"), ++machine.runs)
    {
        codec.sizes = machine.pictures;
        preparation.onReady = [this](const DropItem &made) { store.becomeReady(made); };
        keptItems.restore();
    }

    void finishWork()
    {
        work.runAll();
        clock.runPending();
    }
    /// As the program does it at its end.
    void end(const std::function<bool()> &isTimeLeft = always)
    {
        keptItems.keep(isTimeLeft);
        spool.discardAll();
    }
    void drop(const std::function<void(test::FakePasteboard &)> &fill)
    {
        test::FakePasteboard pasteboard;
        fill(pasteboard);
        store.accept(ingest.readAll(pasteboard));
    }
    void dropFile(const QUrl &url)
    {
        drop([&](test::FakePasteboard &pasteboard) { pasteboard.offerUrls({url}); });
    }
    void dropText(const QString &text)
    {
        drop([&](test::FakePasteboard &pasteboard) { pasteboard.offerText(text); });
    }
    void dropPng(const QByteArray &bytes)
    {
        drop([&](test::FakePasteboard &pasteboard) {
            pasteboard.offerData(bytes, QStringLiteral("image/png"));
        });
    }
    void dropTiff(const QByteArray &bytes)
    {
        drop([&](test::FakePasteboard &pasteboard) {
            pasteboard.offerData(bytes, QStringLiteral("image/tiff"));
        });
    }
    void dropLink(const QByteArray &address)
    {
        drop([&](test::FakePasteboard &pasteboard) {
            pasteboard.offerUrls({QUrl::fromEncoded(address)});
        });
    }

    /// What a person finds on the shelf: where it lies, or what is in it if it is on the shelf
    /// alone.
    QStringList shown() const
    {
        QStringList all;
        for (const DropItem &item : store.items())
            all << QString::fromLatin1(shown(item));
        return all;
    }
    QByteArray shown(const DropItem &item) const
    {
        const QByteArray texts = item.title().toUtf8() + '|' + item.subtitle().toUtf8() + '|';
        if (const auto *text = std::get_if<DropItem::Text>(&item.payload()))
            return "text " + texts
                + QByteArray(reinterpret_cast<const char *>(text->string.data()),
                             text->string.size() * qsizetype{sizeof(QChar)});
        if (const auto *link = std::get_if<DropItem::Link>(&item.payload()))
            return "link " + texts + link->url.toEncoded();
        if (const auto *image = std::get_if<DropItem::ImageBytes>(&item.payload()))
            return "image " + texts + image->data;
        const QUrl url = std::get<DropItem::File>(item.payload()).url;
        if (item.isSpooled())
            return "spooled " + texts + contents(url);
        return "file " + texts + file_url::nativePath(url);
    }
    QByteArray pathOf(int index) const
    {
        if (index >= store.items().size())
            return {};
        const auto *file = std::get_if<DropItem::File>(&store.items()[index].payload());
        return file ? file_url::nativePath(file->url) : QByteArray();
    }

    Machine &machine;
    test::TestClock clock;
    test::FakeWorkQueue work;
    test::FakeWorkQueue deletions;
    test::FakeImageCodec codec;
    ImageConverter converter{codec};
    ScratchSpool spool;
    ItemPreparation preparation{spool, clock, work};
    PictureItems pictures{spool, converter, codec, preparation};
    test::FakeFileLocality locality;
    test::FakeRemoteFiles remoteFiles;
    RemoteDescriptions remoteDescriptions{remoteFiles};
    RemotePictures remotePictures{remoteFiles, pictures};
    TextDescriptions textDescriptions{work, clock};
    PasteboardIngest ingest{spool,          pictures,        locality, remoteDescriptions,
                            remotePictures, textDescriptions};
    test::RecordingThumbnails thumbnails;
    test::RecordingLinkPreviews linkPreviews;
    Feedback feedback;
    ShelfStore store{machine.settings, spool, thumbnails, linkPreviews, feedback};
    KeptFolder folder{machine.kept()};
    KeptItems keptItems{{.settings = machine.settings,
                         .folder = folder,
                         .store = store,
                         .spool = spool,
                         .ingest = ingest,
                         .codec = codec,
                         .preparation = preparation,
                         .workQueue = deletions}};
};

struct KeptItemsTest : testing::Test {
    KeptItemsTest()
    {
        machine.settings.setKeepItems(true);
        start();
    }

    OneRun &start()
    {
        run = nullptr;
        run = std::make_unique<OneRun>(machine);
        return *run;
    }
    /// Ends the program, starts it again, and waits until everything is in its place.
    OneRun &again()
    {
        run->end();
        start().finishWork();
        return *run;
    }
    /// One of each kind.
    void fill() const
    {
        run->dropFile(machine.disk.write("files/report.txt", "report"));
        run->dropPng("pixels");
        run->dropLink("https://x.example/a%20b?c#d");
        run->dropText(QStringLiteral("two\nlines"));
        run->finishWork();
    }

    /// The lines below the names.
    QStringList lines() const
    {
        QStringList all;
        for (const DropItem &item : run->store.items())
            all << item.subtitle();
        return all;
    }

    Machine machine;
    std::unique_ptr<OneRun> run;
};

TEST_F(KeptItemsTest, EverythingIsThereAgainInItsOrder)
{
    fill();
    const QStringList before = run->shown();
    EXPECT_EQ(again().shown(), before);
    EXPECT_EQ(run->store.state(), ShelfState::Occupied);
    EXPECT_EQ(again().shown(), before) << "as often as it ends";
}

TEST_F(KeptItemsTest, NothingIsKeptAndNothingWrittenUnlessThatIsWanted)
{
    EXPECT_FALSE(
        Settings(*std::make_unique<test::MemoryUserDefaults>(), machine.loginItems).keepItems());
    machine.settings.setKeepItems(false);
    start();
    fill();
    run->end();
    EXPECT_FALSE(exists(machine.disk.path("data")));
    EXPECT_TRUE(start().store.items().isEmpty());
}

TEST_F(KeptItemsTest, WhatWasKeptIsGoneFromTheDiskOnceItIsOnTheShelfAndSpooled)
{
    fill();
    run->end();
    EXPECT_EQ(machine.keptFiles().size(), 2);
    start();
    EXPECT_EQ(machine.keptFiles().size(), 2) << "its new home does not exist yet";
    run->finishWork();
    run->deletions.runAll();
    EXPECT_EQ(machine.keptFiles(), QStringList());
}

TEST_F(KeptItemsTest, WhatIsRemovedDoesNotComeBackAfterThePowerIsLost)
{
    fill();
    run->end();
    start().finishWork();
    test::DiskWaits waits;
    waits.onWait = [&](const QByteArray &path) {
        EXPECT_EQ(path, machine.kept());
        EXPECT_FALSE(exists(machine.kept("items")));
        EXPECT_EQ(machine.keptFiles().size(), 1) << "its file goes after the record that names it";
    };
    run->deletions.runAll();
    EXPECT_EQ(waits.paths.size(), 1);
    EXPECT_EQ(machine.keptFiles(), QStringList());
}

TEST_F(KeptItemsTest, APictureIsAFileOfTheSpoolAgain)
{
    run->dropPng("pixels");
    run->finishWork();
    OneRun &next = again();
    ASSERT_EQ(next.store.items().size(), 1);
    const DropItem &item = next.store.items().constFirst();
    EXPECT_TRUE(item.isSpooled());
    EXPECT_TRUE(next.spool.contains(std::get<DropItem::File>(item.payload()).url));
    const QByteArray path = next.pathOf(0);
    EXPECT_TRUE(path.endsWith("/Image.png")) << path.constData();
    next.store.discard(0, true);
    EXPECT_FALSE(exists(path));
}

TEST_F(KeptItemsTest, AFileOfTheSpoolIsMovedAndNotCopied)
{
    run->dropPng("pixels");
    run->finishWork();
    struct stat before = {};
    ASSERT_EQ(::stat(run->pathOf(0).constData(), &before), 0);
    run->end();
    QStringList names = machine.keptFiles();
    names.removeAll(QStringLiteral("items"));
    ASSERT_EQ(names.size(), 1);
    struct stat after = {};
    ASSERT_EQ(::stat(machine.kept(names.first().toUtf8()).constData(), &after), 0);
    EXPECT_EQ(after.st_ino, before.st_ino);
}

TEST_F(KeptItemsTest, PathsAreKeptByteByByte)
{
    const QUrl url = machine.disk.write("plain", "x");
    const QByteArray path = machine.disk.path("\xff\xfe %41 new\nline");
    ASSERT_EQ(::rename(file_url::nativePath(url).constData(), path.constData()), 0);
    run->dropFile(file_url::fromNativePath(path));
    EXPECT_EQ(again().pathOf(0), path);
}

TEST_F(KeptItemsTest, ATextMayHoldWhatIsNoUnicode)
{
    const QString text = QStringLiteral("a") + QChar(0xd800) + QStringLiteral("b\r\n\t");
    run->dropText(text);
    OneRun &next = again();
    ASSERT_EQ(next.store.items().size(), 1);
    EXPECT_EQ(std::get<DropItem::Text>(next.store.items().constFirst().payload()).string, text);
}

TEST_F(KeptItemsTest, AFileThatIsGoneIsThereAsADroppedOneIsThatVanished)
{
    const QUrl url = machine.disk.write("files/report.txt", "report");
    run->dropFile(url);
    run->end();
    ASSERT_EQ(::unlink(file_url::nativePath(url).constData()), 0);
    OneRun &next = start();
    EXPECT_EQ(next.shown(),
              QStringList{QStringLiteral("file report.txt|TXT|")
                          + QString::fromLatin1(file_url::nativePath(url))});
}

TEST_F(KeptItemsTest, ALinkKeepsTheTitleThatItsPageGaveIt)
{
    run->dropLink("https://x.example/a");
    run->linkPreviews.requests.back().completion(
        LinkPreview{QStringLiteral("A page"), QStringLiteral("A site"), {}});
    OneRun &next = again();
    ASSERT_EQ(next.store.items().size(), 1);
    EXPECT_EQ(next.store.items().constFirst().title(), QStringLiteral("A page"));
    EXPECT_EQ(next.store.items().constFirst().subtitle(), QStringLiteral("A site"));
}

TEST_F(KeptItemsTest, ALinkIsWhateverADropTakesForOne)
{
    run->dropLink("httpx://x.example/a");
    ASSERT_EQ(run->store.items().size(), 1);
    const QStringList before = run->shown();
    EXPECT_EQ(again().shown(), before);
}

/// What QLocale calls the default one, for a while.
struct Speaking {
    explicit Speaking(const QLocale &locale) { QLocale::setDefault(locale); }
    Speaking(const Speaking &) = delete;
    Speaking &operator=(const Speaking &) = delete;
    ~Speaking() { QLocale::setDefault(before); }
    QLocale before;
};

TEST_F(KeptItemsTest, WhatIsSaidOfThemIsSaidInTheLanguageOfTheStart)
{
    const QByteArray large(1'400'000, 'x');
    run->dropPng("pixels");
    run->dropPng(large);
    run->finishWork();
    const QStringList before = lines();
    EXPECT_EQ(before,
              (QStringList{QStringLiteral("640 × 480 · PNG"), QStringLiteral("PNG · 1.4 MB")}));
    run->end();
    {
        const Speaking german{QLocale(QLocale::German)};
        start();
        EXPECT_EQ(lines().value(1), QStringLiteral("PNG · 1,4 MB")) << "before its file is there";
        run->finishWork();
        EXPECT_EQ(lines(), (QStringList{before[0], QStringLiteral("PNG · 1,4 MB")}));
        run->end();
    }
    start().finishWork();
    EXPECT_EQ(lines(), before);
}

TEST_F(KeptItemsTest, APictureIsDescribedByItsPixelsAgainHoweverOftenTheProgramEnds)
{
    run->dropPng("pixels");
    run->finishWork();
    run->end();
    start().end();
    start().finishWork();
    EXPECT_EQ(lines(), QStringList{QStringLiteral("640 × 480 · PNG")});
}

TEST_F(KeptItemsTest, APictureThatWasConvertedIsDescribedAsTheFileThatItBecame)
{
    run->dropTiff("tiff");
    run->finishWork();
    const QStringList before = run->shown();
    machine.pictures.insert("image/png 300x400", {300, 400});
    EXPECT_EQ(again().shown(), before);
}

TEST_F(KeptItemsTest, AFileThatWasChangedOnTheShelfIsStillDescribedAsAFile)
{
    run->dropTiff("tiff");
    run->finishWork();
    const QByteArray path = run->pathOf(0);
    machine.disk.write(path.mid(machine.disk.path("").size()), "changed since");
    machine.pictures.insert("changed since", {300, 400});
    again();
    EXPECT_EQ(lines(), QStringList{QStringLiteral("PNG · 13 bytes")});
}

TEST_F(KeptItemsTest, ATiffOfTheSpoolThatIsStillBeingConvertedIsNotSaidToBeForever)
{
    const auto place = run->ingest.placeForPromisedFile(QStringLiteral("scan.tiff"));
    ASSERT_TRUE(place);
    run->drop([&](test::FakePasteboard &pasteboard) { pasteboard.saveFile(*place, "tiff"); });
    ASSERT_EQ(run->store.items().size(), 1);
    ASSERT_TRUE(run->store.items().constFirst().isBeingMade());
    again();
    EXPECT_EQ(lines(), QStringList{QStringLiteral("TIFF · 4 bytes")});
}

TEST_F(KeptItemsTest, APictureThatIsStillBeingWrittenIsKept)
{
    run->dropPng("pixels");
    OneRun &next = again();
    ASSERT_EQ(next.store.items().size(), 1);
    EXPECT_EQ(contents(file_url::fromNativePath(next.pathOf(0))), "pixels");
    EXPECT_EQ(next.store.items().constFirst().title(), QStringLiteral("Image.png"));
}

TEST_F(KeptItemsTest, ATiffThatIsStillBeingConvertedIsKeptAsItIs)
{
    run->dropTiff("tiff");
    OneRun &next = again();
    ASSERT_EQ(next.store.items().size(), 1);
    EXPECT_EQ(contents(file_url::fromNativePath(next.pathOf(0))), "tiff");
    EXPECT_TRUE(next.pathOf(0).contains("/Image.tif")) << next.pathOf(0).constData();
}

TEST_F(KeptItemsTest, ATiffFileThatIsStillBeingConvertedIsConvertedAtTheNextStart)
{
    const QUrl url = machine.disk.write("scan.tiff", "tiff");
    run->dropFile(url);
    ASSERT_TRUE(run->store.items().constFirst().isBeingMade());
    run->end();
    OneRun &next = start();
    ASSERT_EQ(next.store.items().size(), 1);
    EXPECT_EQ(next.store.items().constFirst().original(), url);
}

TEST_F(KeptItemsTest, WhatIsInMemoryBecauseThereIsNoSpoolIsKeptAsAFile)
{
    machine.disk.write("tmp/Corvane-1", "in the way");
    run->dropPng("pixels");
    ASSERT_TRUE(
        std::holds_alternative<DropItem::ImageBytes>(run->store.items().constFirst().payload()));
    OneRun &next = again();
    EXPECT_EQ(contents(file_url::fromNativePath(next.pathOf(0))), "pixels");
    EXPECT_TRUE(next.pathOf(0).endsWith("/Image.png"));
}

TEST_F(KeptItemsTest, WithoutASpoolThePictureStaysWhereItWasKept)
{
    run->dropPng("pixels");
    run->finishWork();
    run->end();
    machine.disk.write("tmp/Corvane-2", "in the way");
    start().finishWork();
    run->deletions.runAll();
    ASSERT_EQ(run->store.items().size(), 1);
    EXPECT_EQ(contents(file_url::fromNativePath(run->pathOf(0))), "pixels");
    EXPECT_EQ(run->store.items().constFirst().title(), QStringLiteral("Image.png"));
    OneRun &next = again();
    ASSERT_EQ(next.store.items().size(), 1);
    EXPECT_TRUE(next.store.items().constFirst().isSpooled());
    EXPECT_TRUE(next.pathOf(0).endsWith("/Image.png")) << "under the name that it had";
    EXPECT_EQ(contents(file_url::fromNativePath(next.pathOf(0))), "pixels");
}

TEST_F(KeptItemsTest, AProgramThatEndsBeforeEverythingIsSpooledKeepsItAgain)
{
    fill();
    const QStringList before = run->shown();
    run->end();
    start().end();
    EXPECT_EQ(machine.keptFiles().size(), 2);
    EXPECT_EQ(start().shown().size(), 4);
    run->finishWork();
    EXPECT_EQ(run->shown(), before);
}

TEST_F(KeptItemsTest, AProgramThatDiesBeforeEverythingIsSpooledHasLostNothing)
{
    fill();
    const QStringList before = run->shown();
    run->end();
    start();
    run = nullptr;
    start().finishWork();
    EXPECT_EQ(run->shown(), before) << "and has nothing twice";
}

TEST_F(KeptItemsTest, WhatWasRemovedOrDraggedOutDoesNotComeBack)
{
    fill();
    again();
    run->store.discard(1, true);
    run->store.ejected(0, false);
    const QStringList before = run->shown();
    EXPECT_EQ(again().shown(), before);
    run->store.clearAll();
    EXPECT_EQ(again().shown(), QStringList());
    EXPECT_FALSE(exists(machine.kept()));
}

TEST_F(KeptItemsTest, WhatIsRemovedWhileItIsBeingSpooledIsGone)
{
    run->dropPng("pixels");
    run->finishWork();
    run->end();
    start().store.discard(0, true);
    run->finishWork();
    run->deletions.runAll();
    EXPECT_EQ(machine.keptFiles(), QStringList());
    EXPECT_TRUE(again().store.items().isEmpty());
}

TEST_F(KeptItemsTest, TurningItOffGivesBackWhatWasKeptOnceMoreAndDeletesItAtTheEnd)
{
    fill();
    const QStringList before = run->shown();
    run->end();
    machine.settings.setKeepItems(false);
    start().finishWork();
    EXPECT_EQ(run->shown(), before);
    run->end();
    EXPECT_FALSE(exists(machine.kept()));
    EXPECT_TRUE(start().store.items().isEmpty());
}

TEST_F(KeptItemsTest, TurningItOffBeforeEverythingIsSpooledDeletesWhatWasKeptToo)
{
    fill();
    run->end();
    start();
    machine.settings.setKeepItems(false);
    run->end();
    EXPECT_FALSE(exists(machine.kept()));
}

TEST_F(KeptItemsTest, ASecondProgramHasNoneOfItAndDoesNotReplaceIt)
{
    fill();
    const QStringList before = run->shown();
    run->end();
    start();
    {
        OneRun second(machine);
        EXPECT_TRUE(second.store.items().isEmpty());
        second.dropText(QStringLiteral("of the second"));
        second.end();
    }
    run->finishWork();
    EXPECT_EQ(again().shown(), before);
}

TEST_F(KeptItemsTest, WhatAnotherProgramKeptMeanwhileIsNotReplaced)
{
    OneRun &first = *run;
    first.dropText(QStringLiteral("of the first"));
    OneRun second(machine);
    second.dropText(QStringLiteral("of the second"));
    first.end();
    second.end();
    ASSERT_EQ(start().store.items().size(), 1);
    EXPECT_EQ(run->store.items().constFirst().title(), QStringLiteral("of the first"));
}

TEST_F(KeptItemsTest, TheNextProgramMayStartBeforeThisOneIsGone)
{
    fill();
    const QStringList before = run->shown();
    run->end();
    OneRun next(machine);
    next.finishWork();
    EXPECT_EQ(next.shown(), before);
}

TEST_F(KeptItemsTest, OnlyTheUserCanReadIt)
{
    fill();
    run->end();
    struct stat status = {};
    ASSERT_EQ(::stat(machine.kept().constData(), &status), 0);
    EXPECT_EQ(status.st_mode & ALLPERMS, 0700U);
    for (const QString &name : machine.keptFiles()) {
        ASSERT_EQ(::stat(machine.kept(name.toUtf8()).constData(), &status), 0);
        EXPECT_EQ(status.st_mode & ALLPERMS, 0600U) << name.toStdString();
    }
}

TEST_F(KeptItemsTest, WhenTimeIsUpTheRestIsKept)
{
    fill();
    QStringList before = run->shown();
    // It would have to be copied, since the file has another name.
    ASSERT_EQ(::link(run->pathOf(1).constData(), machine.disk.path("other").constData()), 0);
    run->end([] { return false; });
    start().finishWork();
    before.removeAt(1);
    EXPECT_EQ(run->shown(), before);
}

TEST_F(KeptItemsTest, WhatNeedsNoTimeIsWrittenBeforeAnyFileIs)
{
    fill();
    // It has to be copied, since the file has another name.
    ASSERT_EQ(::link(run->pathOf(1).constData(), machine.disk.path("other").constData()), 0);
    std::optional<QByteArray> record;
    run->end([&] {
        if (!record)
            record = contents(machine.disk.url("data/corvane/kept/items"));
        return true;
    });
    const auto items = kept_record::decode(record.value_or(QByteArray()));
    ASSERT_TRUE(items);
    EXPECT_EQ(items->size(), 3) << "all but the picture";
    start().finishWork();
    EXPECT_EQ(run->store.items().size(), 4);
}

TEST_F(KeptItemsTest, WhatAKilledProgramLeftWithoutARecordIsDeletedAtTheNextStart)
{
    fill();
    run->end();
    const QStringList files = machine.keptFiles();
    machine.disk.write("data/corvane/kept/0123456789abcdef.png", "half");
    start();
    EXPECT_EQ(machine.keptFiles(), files);
    run = nullptr;
    ASSERT_EQ(::unlink(machine.kept("items").constData()), 0);
    start();
    EXPECT_EQ(machine.keptFiles(), QStringList());
}

TEST_F(KeptItemsTest, WhatStaysInTheFolderAloneComesBackToAProgramThatDied)
{
    run->dropText(QStringLiteral("x"));
    run->dropPng("pixels");
    run->finishWork();
    run->end();
    machine.disk.write("tmp/Corvane-2", "in the way");
    start().finishWork();
    run->deletions.runAll();
    run->store.discard(0, true);
    start().finishWork();
    ASSERT_EQ(run->store.items().size(), 1);
    EXPECT_EQ(contents(file_url::fromNativePath(run->pathOf(0))), "pixels");
}

TEST_F(KeptItemsTest, WhatAnotherVersionKeptIsLeftToIt)
{
    fill();
    run->end();
    QByteArray record = contents(machine.disk.url("data/corvane/kept/items"));
    machine.disk.write("data/corvane/kept/items", record.replace(", 1\n", ", 2\n"));
    const QStringList files = machine.keptFiles();
    for (const bool keepItems : {true, false}) {
        machine.settings.setKeepItems(keepItems);
        EXPECT_TRUE(start().store.items().isEmpty());
        run->dropText(QStringLiteral("x"));
        run->end();
        EXPECT_EQ(machine.keptFiles(), files);
        EXPECT_EQ(contents(machine.disk.url("data/corvane/kept/items")), record);
    }
}

TEST_F(KeptItemsTest, AFullDiskLeavesWhatWasKeptBefore)
{
    fill();
    const QStringList before = run->shown();
    run->end();
    const QStringList files = machine.keptFiles();
    start().dropText(QStringLiteral("one more"));
    {
        const test::FullDisk full;
        run->end();
    }
    EXPECT_EQ(machine.keptFiles(), files) << "and nothing else";
    start().finishWork();
    EXPECT_EQ(run->shown(), before);
}

TEST_F(KeptItemsTest, AFolderThatCannotBeMadeIsNoMoreThanALogLine)
{
    machine.disk.write("data", "in the way");
    fill();
    run->end();
    EXPECT_TRUE(start().store.items().isEmpty());
}

TEST_F(KeptItemsTest, AFolderThatOthersMayReadIsNotUsed)
{
    fill();
    run->end();
    ASSERT_EQ(::chmod(machine.kept().constData(), 0755), 0);
    {
        const test::LogLines log;
        start();
        EXPECT_EQ(log.lines().size(), 1) << "it is told of at once";
    }
    EXPECT_TRUE(run->store.items().isEmpty());
    run->dropText(QStringLiteral("secret"));
    const QStringList files = machine.keptFiles();
    run->end();
    EXPECT_EQ(machine.keptFiles(), files);
}

TEST_F(KeptItemsTest, ARecordThatIsNoneIsNoMoreThanALogLineAndGoesAtTheEnd)
{
    fill();
    run->end();
    const QByteArray record = contents(machine.disk.url("data/corvane/kept/items"));
    for (qsizetype size = 0; size < record.size(); size += 7) {
        machine.disk.write("data/corvane/kept/items", record.first(size));
        EXPECT_TRUE(start().store.items().isEmpty()) << size;
    }
    run->dropText(QStringLiteral("later"));
    EXPECT_EQ(again().shown().size(), 1);
    EXPECT_EQ(machine.keptFiles(), QStringList()) << "what the record spoke of is gone, too";
}

TEST_F(KeptItemsTest, OfTheRestOfASetWhatIsWholeComesBack)
{
    fill();
    run->dropPng("other pixels");
    run->finishWork();
    run->end();
    for (const QString &name : machine.keptFiles()) {
        const QByteArray path = "data/corvane/kept/" + name.toUtf8();
        if (contents(machine.disk.url(path)) == "pixels")
            machine.disk.write(path, "pix");
    }
    start().finishWork();
    QStringList titles;
    for (const DropItem &item : run->store.items())
        titles << item.title();
    EXPECT_EQ(titles,
              (QStringList{QStringLiteral("report.txt"), QStringLiteral("/a b"),
                           QStringLiteral("two"), QStringLiteral("Image 2.png")}));
}

TEST_F(KeptItemsTest, ARecordLeadsNowhereOutOfItsFolder)
{
    run->dropText(QStringLiteral("x"));
    run->end();
    machine.disk.write("secret", "secret");
    machine.disk.write("data/corvane/kept/0123456789abcdef.png", "pixels");
    const QByteArray link = machine.kept("0123456789abcdee");
    ASSERT_EQ(::symlink(machine.disk.path("secret").constData(), link.constData()), 0);
    const QByteArray pipe = machine.kept("0123456789abcded");
    ASSERT_EQ(::mkfifo(pipe.constData(), 0600), 0);
    ASSERT_EQ(::mkdir(machine.kept("0123456789abcdec").constData(), 0700), 0);
    const QList<kept_record::Item> record{
        kept_record::Saved{"../../../secret", 6, QStringLiteral("a")},
        kept_record::Saved{machine.disk.path("secret"), 6, QStringLiteral("b")},
        kept_record::Saved{"0123456789abcdee", 6, QStringLiteral("c")},
        kept_record::Saved{"0123456789abcded", 0, QStringLiteral("d")},
        kept_record::Saved{"0123456789abcdec", 4096, QStringLiteral("e")},
        kept_record::Saved{"0123456789abcdeb", 6, QStringLiteral("f")},
        kept_record::Saved{"items", 6, QStringLiteral("g")},
        kept_record::Saved{"", -1, QStringLiteral("h")},
        kept_record::File{"relative"},
        kept_record::File{QByteArray("/a\0b", 4)},
        kept_record::Link{"file:///etc/passwd", QStringLiteral("i"), {}},
        kept_record::Link{"javascript:alert(1)", QStringLiteral("j"), {}},
        kept_record::Saved{"0123456789abcdef.png", 6, QStringLiteral("../../x/../Good.png")},
    };
    machine.disk.write("data/corvane/kept/items", kept_record::encode(record));
    start().finishWork();
    ASSERT_EQ(run->store.items().size(), 1);
    EXPECT_EQ(run->shown(),
              QStringList{QString::fromLatin1("spooled Good.png|PNG · 6 bytes|pixels")});
    EXPECT_TRUE(run->spool.contains(file_url::fromNativePath(run->pathOf(0))));
    EXPECT_EQ(contents(machine.disk.url("secret")), "secret");
}

TEST_F(KeptItemsTest, ARecordThatIsAPipeOrALinkIsNotRead)
{
    fill();
    run->end();
    const QByteArray record = machine.kept("items");
    const QByteArray aside = machine.disk.path("aside");
    ASSERT_EQ(::rename(record.constData(), aside.constData()), 0);
    ASSERT_EQ(::symlink(aside.constData(), record.constData()), 0);
    EXPECT_TRUE(start().store.items().isEmpty());
    ASSERT_EQ(::unlink(record.constData()), 0);
    ASSERT_EQ(::mkfifo(record.constData(), 0600), 0);
    EXPECT_TRUE(start().store.items().isEmpty());
}

TEST_F(KeptItemsTest, ARecordOfAnotherUserIsNotRead)
{
    fill();
    run->end();
    if (::chown(machine.kept("items").constData(), 65534, 65534) != 0)
        GTEST_SKIP() << "only the superuser can give files away";
    EXPECT_TRUE(start().store.items().isEmpty());
}

TEST_F(KeptItemsTest, AFolderThatIsALinkIsNotUsed)
{
    fill();
    run->end();
    const QByteArray elsewhere = machine.disk.path("elsewhere");
    ASSERT_EQ(::rename(machine.kept().constData(), elsewhere.constData()), 0);
    ASSERT_EQ(::symlink(elsewhere.constData(), machine.kept().constData()), 0);
    EXPECT_TRUE(start().store.items().isEmpty());
}

TEST_F(KeptItemsTest, AVeryLargeFileStaysWhereItWasKept)
{
    const QByteArray path = machine.kept("0123456789abcdef.iso");
    run->dropText(QStringLiteral("x"));
    run->end();
    machine.disk.write("data/corvane/kept/0123456789abcdef.iso", "");
    ASSERT_EQ(::truncate(path.constData(), KeptItems::largestSpooled + 1), 0);
    machine.disk.write(
        "data/corvane/kept/items",
        kept_record::encode({kept_record::Saved{
            "0123456789abcdef.iso", KeptItems::largestSpooled + 1, QStringLiteral("A.iso")}}));
    start().finishWork();
    EXPECT_EQ(run->pathOf(0), path);
    // Where it is nothing has to be done for it, whatever other names it has.
    ASSERT_EQ(::link(path.constData(), machine.disk.path("other").constData()), 0);
    run->end([] { return false; });
    EXPECT_EQ(start().pathOf(0), path);
}

TEST_F(KeptItemsTest, AFolderFullOfOtherThingsKeepsThem)
{
    fill();
    run->end();
    machine.disk.write("data/corvane/kept/notes of mine.txt", "mine");
    again();
    run->store.clearAll();
    run->end();
    EXPECT_EQ(machine.keptFiles(), QStringList{QStringLiteral("notes of mine.txt")});
}

/// Any shelf, ended and started again.
struct AnyShelf {
    explicit AnyShelf(test::RandomSteps & /*steps*/)
    {
        machine.settings.setKeepItems(true);
        run = std::make_unique<OneRun>(machine);
    }
    QByteArray bytes(test::RandomSteps &steps, int most)
    {
        QByteArray some;
        for (int i = steps.below(most); i >= 0; --i)
            some += static_cast<char>(steps.below(256));
        return some;
    }
    QString text(test::RandomSteps &steps)
    {
        QString some = QStringLiteral("t");
        for (int i = steps.below(40); i > 0; --i)
            some += QChar(static_cast<char16_t>(steps.below(0x10000)));
        return some;
    }
    QByteArray fileName(test::RandomSteps &steps)
    {
        QByteArray name = bytes(steps, 30).replace('\0', "0").replace('/', "-");
        return name == "." || name == ".." ? QByteArray("dots") : name;
    }
    void step(test::RandomSteps &steps)
    {
        switch (steps.below(8)) {
        case 0: {
            const QByteArray path = machine.disk.path(fileName(steps));
            steps.note(QStringLiteral("file ") + QString::fromLatin1(path.toHex()));
            if (!steps.oneIn(3))
                ::mkdir(path.constData(), 0700);
            run->dropFile(file_url::fromNativePath(path));
            break;
        }
        case 1:
            steps.note(QStringLiteral("picture"));
            run->dropPng(bytes(steps, 2'000));
            break;
        case 2:
            steps.note(QStringLiteral("text"));
            run->dropText(text(steps));
            break;
        case 3:
            steps.note(QStringLiteral("link"));
            run->dropLink("https://" + QByteArray::number(steps.below(1'000)) + ".example/"
                          + bytes(steps, 20).toPercentEncoding());
            break;
        case 4:
            steps.note(QStringLiteral("remove"));
            if (!run->store.items().isEmpty())
                run->store.discard(steps.below(static_cast<int>(run->store.items().size())), true);
            break;
        case 5:
            steps.note(QStringLiteral("end before anything is ready"));
            run->end();
            run = std::make_unique<OneRun>(machine);
            break;
        default: {
            steps.note(QStringLiteral("end"));
            run->finishWork();
            const QStringList before = run->shown();
            run->end();
            run = std::make_unique<OneRun>(machine);
            run->finishWork();
            run->deletions.runAll();
            EXPECT_EQ(run->shown(), before);
            EXPECT_EQ(machine.keptFiles(), QStringList());
        }
        }
    }

    Machine machine;
    std::unique_ptr<OneRun> run;
};

TEST(AnyShelfTest, IsTheSameAfterTheNextStart)
{
    test::playAtRandom<AnyShelf>(40, 30);
}

} // namespace
} // namespace corvane
