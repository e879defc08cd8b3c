#include "core/temporary_spool.h"
#include "fakes/fake_preview_documents.h"
#include "platform/base/cancellation.h"
#include "services/preview_file.h"
#include "services/preview_text.h"

#include <QDateTime>
#include <QLocale>
#include <QMimeDatabase>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <array>

namespace corvane::test {
namespace {

constexpr QSize wanted{800, 600};

struct PreviewFileTest : testing::Test {
    PreviewContent read(const QUrl &url)
    {
        Cancellation never;
        return preview_file::read(url, wanted, documents, never);
    }
    template<class Body>
    static bool is(const PreviewContent &content)
    {
        return std::holds_alternative<Body>(content.body);
    }
    static QString textOf(const PreviewContent &content)
    {
        const auto *text = std::get_if<PreviewContent::Text>(&content.body);
        return text ? text->text : QStringLiteral("(no text)");
    }

    TemporaryFolder folder;
    FakePreviewDocuments documents;
};

TEST_F(PreviewFileTest, ShowsATextWithWhatItIs)
{
    const auto content = read(folder.write("a.txt", "hello"));
    EXPECT_EQ(textOf(content), QStringLiteral("hello"));
    EXPECT_EQ(content.details.name, QStringLiteral("a.txt"));
    EXPECT_EQ(content.details.size, QStringLiteral("5 bytes"));
    const QString kind = QMimeDatabase().mimeTypeForName(QStringLiteral("text/plain")).comment();
    EXPECT_EQ(content.details.kind, kind.left(1).toUpper() + kind.mid(1));
    EXPECT_FALSE(content.details.modified.isEmpty());
    EXPECT_TRUE(content.canBeOpened);
}

TEST_F(PreviewFileTest, TellsTheMinuteOfTheLastChange)
{
    // A locale whose short form has seconds.
    const QLocale before;
    QLocale::setDefault(QLocale::c());
    const QUrl url = folder.write("a.txt", "hello");
    const QDateTime time(QDate(2021, 3, 4), QTime(17, 8, 59));
    const std::array<timespec, 2> times
        = {{{time.toSecsSinceEpoch(), 0}, {time.toSecsSinceEpoch(), 0}}};
    ASSERT_EQ(::utimensat(AT_FDCWD, file_url::nativePath(url).constData(), times.data(), 0), 0);
    EXPECT_EQ(read(url).details.modified, QStringLiteral("Thursday, 4 March 2021, 17:08"));
    QLocale::setDefault(before);
}

TEST_F(PreviewFileTest, ShowsHtmlAsTheTextThatItIs)
{
    EXPECT_EQ(textOf(read(folder.write("a.html", "<b>bold</b><script>x()</script>"))),
              QStringLiteral("<b>bold</b><script>x()</script>"));
}

TEST_F(PreviewFileTest, ReadsATextWithoutExtensionByItsContents)
{
    EXPECT_EQ(textOf(read(folder.write("README", "read me"))), QStringLiteral("read me"));
}

TEST_F(PreviewFileTest, GivesPicturesAndDocumentsToTheirReader)
{
    const auto picture = read(folder.write("a.png", "\x89PNG\r\n\x1a\n"));
    ASSERT_TRUE(is<PreviewContent::Picture>(picture));
    EXPECT_EQ(std::get<PreviewContent::Picture>(picture.body).pixelSize, wanted);
    EXPECT_TRUE(is<PreviewContent::Pages>(read(folder.write("a.pdf", "%PDF-1.4"))));
    EXPECT_EQ(documents.opened.size(), 2);
}

TEST_F(PreviewFileTest, ShowsDetailsOfABrokenPicture)
{
    documents.isBroken = true;
    const auto content = read(folder.write("a.png", "\x89PNG\r\n\x1a\n"));
    EXPECT_TRUE(is<PreviewContent::Plain>(content));
    EXPECT_EQ(content.details.size, QStringLiteral("8 bytes"));
}

TEST_F(PreviewFileTest, ShowsADrawingThatCannotBeDrawnAsItsText)
{
    documents.isBroken = true;
    EXPECT_EQ(textOf(read(folder.write("a.svg", "<svg xmlns='http://www.w3.org/2000/svg'/>"))),
              QStringLiteral("<svg xmlns='http://www.w3.org/2000/svg'/>"));
}

TEST_F(PreviewFileTest, ShowsDetailsOfWhatIsNeither)
{
    const auto content = read(folder.write("a.zip", QByteArray("PK\3\4\0\0\0\0", 8)));
    EXPECT_TRUE(is<PreviewContent::Plain>(content));
    EXPECT_TRUE(documents.opened.isEmpty());
    EXPECT_TRUE(is<PreviewContent::Plain>(read(folder.write("empty.txt", ""))));
}

TEST_F(PreviewFileTest, SaysThatAFileIsMissing)
{
    EXPECT_TRUE(is<PreviewContent::Missing>(read(folder.url("nowhere.txt"))));
    ASSERT_EQ(::symlink("/nowhere/at/all", folder.path("dangling").constData()), 0);
    const auto dangling = read(folder.url("dangling"));
    EXPECT_TRUE(is<PreviewContent::Missing>(dangling));
    EXPECT_EQ(dangling.details.name, QStringLiteral("dangling"));
    EXPECT_FALSE(dangling.canBeOpened);
    EXPECT_TRUE(is<PreviewContent::Missing>(read(QUrl())));
    EXPECT_TRUE(is<PreviewContent::Missing>(read(QUrl(QStringLiteral("file:///a%00b")))));
}

TEST_F(PreviewFileTest, CountsWhatAFolderHolds)
{
    folder.write("inner/one", "1");
    EXPECT_EQ(read(folder.url("inner")).details.size, QStringLiteral("1 item"));
    folder.write("inner/.two", "2");
    const auto content = read(folder.url("inner"));
    EXPECT_TRUE(is<PreviewContent::Plain>(content));
    EXPECT_EQ(content.details.size, QStringLiteral("2 items"));
    EXPECT_TRUE(content.canBeOpened);
}

TEST_F(PreviewFileTest, StopsCountingInAFolderWithoutEnd)
{
    folder.write("many/0", "");
    for (int i = 0; i <= preview_file::maximumCounted; ++i)
        ASSERT_EQ(::link(folder.path("many/0").constData(),
                         folder.path("many/x" + QByteArray::number(i)).constData()),
                  0);
    EXPECT_EQ(read(folder.url("many")).details.size, QStringLiteral("More than 10000 items"));
}

TEST_F(PreviewFileTest, ReadsNoPipeAndNoDevice)
{
    ASSERT_EQ(::mkfifo(folder.path("pipe.txt").constData(), 0600), 0);
    ASSERT_EQ(::symlink("/dev/zero", folder.path("zero.txt").constData()), 0);
    for (const char *name : {"pipe.txt", "zero.txt"}) {
        const auto content = read(folder.url(name));
        EXPECT_TRUE(is<PreviewContent::Plain>(content)) << name;
        EXPECT_FALSE(content.canBeOpened) << name;
        EXPECT_EQ(content.details.size, QString()) << name;
    }
}

TEST_F(PreviewFileTest, ReadsOnlyTheBeginningOfALongFile)
{
    const QByteArray line = QByteArray(99, 'x') + '\n';
    const auto whole = read(folder.write("a.log", line.repeated(100'000)));
    EXPECT_FALSE(std::get<PreviewContent::Text>(whole.body).isCut);
    const auto more = read(folder.write("b.log", line.repeated(100'000) + 'x'));
    const auto &text = std::get<PreviewContent::Text>(more.body);
    EXPECT_TRUE(text.isCut);
    EXPECT_LE(text.text.size(), preview_text::maximumBytes);
}

TEST_F(PreviewFileTest, FollowsALinkToItsFile)
{
    folder.write("a.txt", "hello");
    ASSERT_EQ(::symlink("a.txt", folder.path("link.txt").constData()), 0);
    EXPECT_EQ(textOf(read(folder.url("link.txt"))), QStringLiteral("hello"));
}

TEST_F(PreviewFileTest, FindsAFileWhoseNameIsNoText)
{
    const QByteArray path = folder.path("a\xFF.txt");
    ASSERT_EQ(::close(::open(path.constData(), O_CREAT | O_WRONLY, 0600)), 0);
    EXPECT_FALSE(is<PreviewContent::Missing>(read(file_url::fromNativePath(path))));
    // The toolkit could not, when it clears up.
    ::unlink(path.constData());
}

TEST_F(PreviewFileTest, MakesANameHarmlessThatForges)
{
    const auto content = read(folder.write("a\xE2\x80\xAEgpj.txt\n", "x"));
    EXPECT_EQ(content.details.name, QStringLiteral("a\uFFFDgpj.txt "));
}

TEST_F(PreviewFileTest, OffersToOpenScriptsButNoPrograms)
{
    EXPECT_TRUE(read(folder.write("a.py", "import sys\n")).canBeOpened);
    EXPECT_FALSE(read(folder.write("a.desktop", "[Desktop Entry]\nExec=x\n")).canBeOpened);
    EXPECT_FALSE(read(folder.write("a",
                                   QByteArray("\x7f"
                                              "ELF\2\1\1\0\0\0\0\0\0\0\0\0\2\0",
                                              18)))
                     .canBeOpened);
}

} // namespace
} // namespace corvane::test
