#include "core/data_uris.h"
#include "core/feedback.h"
#include "core/item_preparation.h"
#include "core/quick_actions.h"
#include "core/saved_pictures.h"
#include "core/spool_place.h"
#include "core/temporary_spool.h"
#include "fakes/fake_clipboard.h"
#include "fakes/fake_file_locality.h"
#include "fakes/fake_remote_files.h"
#include "fakes/fake_work_queue.h"
#include "fakes/test_clock.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace corvane {
namespace {

const DropItem text(DropItem::Text{QStringLiteral("h\u00e9llo\n")}, {}, {}, false);
const DropItem link(DropItem::Link{QUrl(QStringLiteral("https://x.org/a%20b?q#f"))}, {}, {}, false);
const DropItem image(DropItem::ImageBytes{"png bytes", UTType::png()}, {}, {}, false);
const DropItem another(DropItem::ImageBytes{"more", UTType::png()}, {}, {}, false);

struct QuickActionsTest : testing::Test {
    QuickActionsTest()
    {
        feedback.handler = [this](const QString &message) { messages << message; };
    }

    DropItem file(const QByteArray &name, const QByteArray &contents)
    {
        return DropItem(DropItem::File{temporary.write(name, contents)}, {}, {}, false);
    }
    /// An item whose file is still being made and will hold that; where it is null, the item turns
    /// into a picture in memory.
    DropItem being(const char *name, const char *contents)
    {
        const QString title = QString::fromLatin1(name);
        const auto place = scratch.spool.keepPlace(title, QStringLiteral("png"));
        return preparation.begin({DropItem::beingMade({place->url()}, title, {}, {}),
                                  {place},
                                  [place, contents] {
                                      if (!contents)
                                          return DropItem(
                                              DropItem::ImageBytes{"in memory", UTType::png()}, {},
                                              {}, false);
                                      place->write(contents);
                                      return DropItem(DropItem::File{place->url()}, {}, {}, true);
                                  },
                                  {}});
    }
    const PasteboardContents &written()
    {
        EXPECT_EQ(pasteboard.writes.size(), 1U);
        return pasteboard.writes.back();
    }
    /// The only writer of the last write, if it is of that kind.
    template<typename Content>
    Content writer()
    {
        EXPECT_EQ(written().writers.size(), 1U);
        return std::get<Content>(written().writers.front().content);
    }
    void copyAsDataUri(const DropItem &item)
    {
        actions.copy(item, true);
        finishWork();
    }
    /// And what that gives rise to.
    void finishWork()
    {
        do {
            work.runAll();
            clock.runPending();
        } while (work.pendingCount() > 0);
    }
    /// The contents of the files that the last copy put on the clipboard; of the rest nothing.
    QList<QByteArray> copiedFiles() const
    {
        QList<QByteArray> copied;
        for (const PasteboardWriter &writer : pasteboard.writes.back().writers) {
            const auto *file = std::get_if<PasteboardWriter::File>(&writer.content);
            copied << (file ? test::contents(file->url) : QByteArray());
        }
        return copied;
    }
    /// What copying as a data URI puts on the clipboard.
    std::optional<QString> dataUri(const DropItem &item)
    {
        copyAsDataUri(item);
        return messages.last() == QStringLiteral("Data URI copied")
            ? pasteboard.writes.back().string
            : std::nullopt;
    }

    test::TemporaryFolder temporary;
    test::FakeClipboard pasteboard;
    Feedback feedback;
    test::FakeFileLocality locality;
    test::FakeRemoteFiles remoteFiles;
    test::FakeWorkQueue work;
    test::TestClock clock;
    DataUris dataUris{locality, remoteFiles, work, clock};
    test::TemporarySpool scratch;
    ItemPreparation preparation{scratch.spool, clock, work};
    SavedPictures pictures{scratch.spool, preparation};
    QuickActions actions{pasteboard, feedback, dataUris, preparation, pictures};
    QStringList messages;
};

TEST_F(QuickActionsTest, SaysThatItWasCopiedOnceItIs)
{
    std::vector<std::size_t> writesWhenTold;
    feedback.handler = [&](const QString &) { writesWhenTold.push_back(pasteboard.writes.size()); };
    actions.copy(text, false);
    actions.copy({text, link});
    EXPECT_EQ(writesWhenTold, (std::vector<std::size_t>{1, 2}));
}

TEST_F(QuickActionsTest, CopiesAFileAndItsPath)
{
    const DropItem item = file("a #1.txt", "x");
    actions.copy(item, false);
    EXPECT_EQ(writer<PasteboardWriter::File>().url, temporary.url("a #1.txt"));
    EXPECT_EQ(written().string, QString::fromUtf8(temporary.path("a #1.txt")));
    EXPECT_EQ(messages, QStringList{QStringLiteral("Path copied")});
}

TEST_F(QuickActionsTest, CopiesAnImage)
{
    actions.copy(image, false);
    EXPECT_EQ(writer<PasteboardWriter::Data>().bytes, "png bytes");
    EXPECT_EQ(writer<PasteboardWriter::Data>().type, UTType::png());
    EXPECT_FALSE(written().string.has_value());
    EXPECT_EQ(messages, QStringList{QStringLiteral("Image copied")});
}

TEST_F(QuickActionsTest, CopiesATextAsItIs)
{
    actions.copy(text, false);
    EXPECT_EQ(written().string, QStringLiteral("h\u00e9llo\n"));
    EXPECT_EQ(messages, QStringList{QStringLiteral("Text copied")});
}

TEST_F(QuickActionsTest, CopiesALinkAndItsFullText)
{
    actions.copy(link, false);
    EXPECT_EQ(writer<PasteboardWriter::Link>().url, std::get<DropItem::Link>(link.payload()).url);
    EXPECT_EQ(written().string, QStringLiteral("https://x.org/a%20b?q#f"));
    EXPECT_EQ(messages, QStringList{QStringLiteral("Link copied")});
}

TEST_F(QuickActionsTest, CopiesNothingOfNothing)
{
    actions.copy(QList<DropItem>());
    EXPECT_TRUE(pasteboard.writes.empty());
    EXPECT_TRUE(messages.isEmpty());
}

TEST_F(QuickActionsTest, CopiesAListOfOneLikeTheOne)
{
    actions.copy({link});
    EXPECT_EQ(written().string, QStringLiteral("https://x.org/a%20b?q#f"));
    EXPECT_EQ(messages, QStringList{QStringLiteral("Link copied")});
}

TEST_F(QuickActionsTest, CopiesSeveralInOneGoAndCountsThem)
{
    actions.copy({text, link});
    ASSERT_EQ(written().writers.size(), 2U);
    EXPECT_TRUE(std::holds_alternative<PasteboardWriter::Text>(written().writers[0].content));
    EXPECT_TRUE(std::holds_alternative<PasteboardWriter::Link>(written().writers[1].content));
    EXPECT_FALSE(written().string.has_value());
    EXPECT_EQ(messages, QStringList{QStringLiteral("2 items copied")});
}

TEST_F(QuickActionsTest, CopiesSeveralPicturesInMemoryAsFiles)
{
    actions.copy({image, text, another});
    EXPECT_TRUE(pasteboard.writes.empty()) << "they are written beside the main thread";
    finishWork();
    EXPECT_EQ(written().writers.size(), 3U);
    EXPECT_EQ(copiedFiles(), (QList<QByteArray>{"png bytes", {}, "more"}));
    EXPECT_EQ(messages, QStringList{QStringLiteral("3 items copied")});
}

TEST_F(QuickActionsTest, MakesNoMoreFilesForPicturesThatAreCopiedAgain)
{
    actions.copy({image, another});
    finishWork();
    actions.copy({another, image});
    ASSERT_EQ(pasteboard.writes.size(), 2U) << "nothing is left to do";
    EXPECT_EQ(copiedFiles(), (QList<QByteArray>{"more", "png bytes"}));
    EXPECT_EQ(QDir(scratch.spool.directory().toLocalFile()).entryList(QDir::Files).size(), 2);
}

TEST_F(QuickActionsTest, DoesNotCountPicturesThatCouldNotBeSaved)
{
    scratch.spoil();
    actions.copy({image, another, text, link});
    EXPECT_EQ(written().writers.size(), 4U);
    actions.copy({image, another});
    EXPECT_EQ(messages,
              (QStringList{QStringLiteral("2 items copied"), QStringLiteral("1 items copied")}));
}

TEST_F(QuickActionsTest, DoesNotCopyWhatIsRemovedBeforeItIsSaved)
{
    actions.copy({image, another, text});
    pictures.itemLeft(image.id(), true);
    finishWork();
    EXPECT_EQ(copiedFiles(), (QList<QByteArray>{"more", {}}));
    EXPECT_EQ(messages, QStringList{QStringLiteral("2 items copied")});
}

TEST_F(QuickActionsTest, CopiesNothingWhereAllIsRemovedBeforeItIsSaved)
{
    actions.copy({image, another});
    pictures.itemLeft(image.id(), true);
    pictures.itemLeft(another.id(), true);
    finishWork();
    EXPECT_TRUE(pasteboard.writes.empty());
    EXPECT_TRUE(messages.isEmpty());
}

TEST_F(QuickActionsTest, PicturesThatAreBeingSavedGiveWayToWhatWasCopiedMeanwhile)
{
    actions.copy({image, another});
    actions.copy({text, link});
    finishWork();
    EXPECT_EQ(messages, QStringList{QStringLiteral("2 items copied")});
    EXPECT_TRUE(std::holds_alternative<PasteboardWriter::Text>(written().writers[0].content));
}

TEST_F(QuickActionsTest, CopiesAFileOnceItIsThere)
{
    const DropItem item = being("scan", "pixels");
    actions.copy(item, false);
    EXPECT_TRUE(pasteboard.writes.empty()) << "a paste would find nothing";
    EXPECT_TRUE(messages.isEmpty());
    finishWork();
    EXPECT_EQ(copiedFiles(), QList<QByteArray>{"pixels"});
    EXPECT_EQ(written().string, QString::fromUtf8(scratch.temporary.path("Corvane-4711/scan.png")));
    EXPECT_EQ(messages, QStringList{QStringLiteral("Path copied")});
}

TEST_F(QuickActionsTest, WhatIsStillBeingMadeGivesWayToWhatWasCopiedInAnotherProgram)
{
    actions.copy(being("scan", "pixels"), false);
    ++pasteboard.changes;
    finishWork();
    EXPECT_TRUE(pasteboard.writes.empty());
    EXPECT_TRUE(messages.isEmpty());
}

TEST_F(QuickActionsTest, CopiesWhatAnItemHasBecome)
{
    const DropItem item = being("scan", nullptr);
    actions.copy({item});
    finishWork();
    EXPECT_EQ(writer<PasteboardWriter::Data>().bytes, "in memory");
    EXPECT_EQ(messages, QStringList{QStringLiteral("Image copied")});
}

TEST_F(QuickActionsTest, CopiesSeveralOnceTheLastIsThere)
{
    actions.copy({being("scan", "pixels"), text, being("page", "more")});
    EXPECT_TRUE(pasteboard.writes.empty());
    work.runOne();
    clock.runPending();
    EXPECT_TRUE(pasteboard.writes.empty());
    finishWork();
    EXPECT_EQ(copiedFiles(), (QList<QByteArray>{"pixels", {}, "more"}));
    EXPECT_EQ(messages, QStringList{QStringLiteral("3 items copied")});
}

TEST_F(QuickActionsTest, SavesWhatTurnsOutToBeHeldInMemory)
{
    actions.copy({being("scan", nullptr), image});
    finishWork();
    EXPECT_EQ(copiedFiles(), (QList<QByteArray>{"in memory", "png bytes"}));
    EXPECT_EQ(messages, QStringList{QStringLiteral("2 items copied")});
}

TEST_F(QuickActionsTest, DoesNotCopyWhatIsRemovedBeforeItIsMade)
{
    const DropItem item = being("scan", "pixels");
    actions.copy(item, false);
    scratch.spool.discard(std::get<DropItem::File>(item.payload()).url);
    finishWork();
    EXPECT_TRUE(pasteboard.writes.empty());
    EXPECT_TRUE(messages.isEmpty());
}

TEST_F(QuickActionsTest, CopiesTheOtherOneWhereOneOfTwoIsRemovedBeforeItIsMade)
{
    const DropItem item = being("scan", "pixels");
    actions.copy({item, link});
    scratch.spool.discard(std::get<DropItem::File>(item.payload()).url);
    finishWork();
    EXPECT_EQ(writer<PasteboardWriter::Link>().url, std::get<DropItem::Link>(link.payload()).url);
    EXPECT_EQ(messages, QStringList{QStringLiteral("Link copied")});
}

TEST_F(QuickActionsTest, WhatIsStillBeingMadeGivesWayToWhatWasCopiedMeanwhile)
{
    actions.copy(being("scan", "pixels"), false);
    actions.copy({being("page", "more"), text});
    actions.copy(link, false);
    finishWork();
    EXPECT_EQ(written().string, QStringLiteral("https://x.org/a%20b?q#f"));
    EXPECT_EQ(messages, QStringList{QStringLiteral("Link copied")});
}

TEST_F(QuickActionsTest, WorksWhereNobodyShowsMessages)
{
    feedback.handler = {};
    actions.copy(text, false);
    EXPECT_EQ(pasteboard.writes.size(), 1U);
}

using DataUriCopies = QuickActionsTest;

TEST_F(DataUriCopies, AreMadeOfText)
{
    EXPECT_EQ(dataUri(text), QStringLiteral("data:text/plain;base64,aMOpbGxvCg=="));
    EXPECT_TRUE(written().writers.empty());
    EXPECT_EQ(messages, QStringList{QStringLiteral("Data URI copied")});
}

TEST_F(DataUriCopies, AreMadeOfImages)
{
    EXPECT_EQ(dataUri(image), QStringLiteral("data:image/png;base64,cG5nIGJ5dGVz"));
    const DropItem untyped(DropItem::ImageBytes{"x", UTType()}, {}, {}, false);
    EXPECT_EQ(dataUri(untyped), QStringLiteral("data:application/octet-stream;base64,eA=="));
}

TEST_F(DataUriCopies, OfFilesGoByTheirExtensionAndNotTheirContents)
{
    EXPECT_EQ(dataUri(file("a.txt", "\x89PNG\r\n\x1a\n")),
              QStringLiteral("data:text/plain;base64,iVBORw0KGgo="));
    EXPECT_EQ(dataUri(file("plain", "text")),
              QStringLiteral("data:application/octet-stream;base64,dGV4dA=="));
    EXPECT_EQ(dataUri(file("empty.png", "")), QStringLiteral("data:image/png;base64,"));
}

TEST_F(DataUriCopies, HaveNoLineBreaks)
{
    const auto uri = dataUri(file("a.bin", QByteArray(10'000, '\xff')));
    ASSERT_TRUE(uri.has_value());
    EXPECT_FALSE(uri->contains(QLatin1Char('\n')));
}

TEST_F(DataUriCopies, EndJustBelowTheLimit)
{
    EXPECT_TRUE(dataUri(file("below", QByteArray(8'388'607, 'x'))).has_value());
    EXPECT_FALSE(dataUri(file("at", QByteArray(8'388'608, 'x'))).has_value());
}

TEST_F(DataUriCopies, OfTextsEndAtTheSameSize)
{
    const auto sized = [](qsizetype size) {
        return DropItem(DropItem::Text{QString(size, QLatin1Char('x'))}, {}, {}, false);
    };
    EXPECT_TRUE(dataUri(sized(8'388'607)).has_value());
    EXPECT_FALSE(dataUri(sized(8'388'608)).has_value());
    EXPECT_FALSE(dataUri(DropItem(DropItem::Text{QString(5'000'000, QChar(0xe9))}, {}, {}, false)))
        << "two bytes each";
    EXPECT_EQ(messages.last(), QStringLiteral("Text copied"));
}

TEST_F(DataUriCopies, OfFilesBehindANetworkAreReadWhereNobodyWaits)
{
    locality.remoteFolder = "/nowhere/remote";
    const DropItem remote(DropItem::File{QUrl(QStringLiteral("file:///nowhere/remote/a.txt"))}, {},
                          {}, false);
    copyAsDataUri(remote);
    EXPECT_TRUE(pasteboard.writes.empty());
    ASSERT_EQ(remoteFiles.readings.size(), 1U);
    EXPECT_EQ(remoteFiles.readings[0].limit, 8'388'607);
    remoteFiles.readings[0].answer("text");
    work.runAll();
    clock.runPending();
    EXPECT_EQ(written().string, QStringLiteral("data:text/plain;base64,dGV4dA=="));
}

TEST_F(DataUriCopies, OfFilesThatAreStillBeingMadeHoldTheFinishedFile)
{
    EXPECT_EQ(dataUri(being("scan", "pixels")), QStringLiteral("data:image/png;base64,cGl4ZWxz"));
    EXPECT_EQ(messages, QStringList{QStringLiteral("Data URI copied")});
}

TEST_F(DataUriCopies, GiveWayToWhatWasCopiedMeanwhile)
{
    actions.copy(file("a.txt", "x"), true);
    actions.copy(link, false);
    work.runAll();
    clock.runPending();
    EXPECT_EQ(messages, QStringList{QStringLiteral("Link copied")});
    EXPECT_EQ(pasteboard.writes.size(), 1U);
}

TEST_F(DataUriCopies, GiveWayToWhatWasCopiedInAnotherProgramMeanwhile)
{
    actions.copy(file("a.txt", "x"), true);
    ++pasteboard.changes;
    finishWork();
    EXPECT_TRUE(pasteboard.writes.empty());
    EXPECT_TRUE(messages.isEmpty());
}

TEST_F(DataUriCopies, OfFilesThatAreTooLargeGiveWayToThePath)
{
    copyAsDataUri(file("large.bin", QByteArray(9'000'000, 'x')));
    EXPECT_EQ(writer<PasteboardWriter::File>().url, temporary.url("large.bin"));
    EXPECT_EQ(written().string, QString::fromUtf8(temporary.path("large.bin")));
    EXPECT_EQ(messages, QStringList{QStringLiteral("Path copied")});
}

TEST_F(DataUriCopies, OfWhatCannotBeReadGiveWayToThePath)
{
    EXPECT_FALSE(dataUri(DropItem(DropItem::File{temporary.url("gone")}, {}, {}, false)));
    EXPECT_FALSE(dataUri(DropItem(DropItem::File{temporary.url("")}, {}, {}, false)));
    ASSERT_EQ(::mkfifo(temporary.path("pipe").constData(), 0600), 0);
    EXPECT_FALSE(dataUri(DropItem(DropItem::File{temporary.url("pipe")}, {}, {}, false)));
    EXPECT_EQ(messages.last(), QStringLiteral("Path copied"));
}

TEST_F(DataUriCopies, OfLinksGiveWayToTheLink)
{
    EXPECT_FALSE(dataUri(link).has_value());
    EXPECT_EQ(messages, QStringList{QStringLiteral("Link copied")});
}

} // namespace
} // namespace corvane
