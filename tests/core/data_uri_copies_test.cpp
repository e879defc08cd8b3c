// What copying as a data URI puts on the clipboard, and what instead where it cannot be one.

#include "core/quick_actions_fixture.h"

#include <sys/stat.h>

namespace corvane::test {

namespace {

struct DataUriCopies : QuickActionsTest {
    void copyAsDataUri(const DropItem &item)
    {
        actions.copy(item, true);
        finishWork();
    }
    /// What copying as a data URI puts on the clipboard.
    std::optional<QString> dataUri(const DropItem &item)
    {
        copyAsDataUri(item);
        return messages.last() == QStringLiteral("Data URI copied")
            ? pasteboard.writes.back().string
            : std::nullopt;
    }
};

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

} // namespace corvane::test
