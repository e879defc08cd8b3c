#include "platform/qt/pasteboard/pasteboard_text.h"
#include "platform/qt/pasteboard/uri_list.h"
#include "platform/system/file_url.h"

#include <QElapsedTimer>
#include <QStringEncoder>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

QByteArrayList paths(const QList<QUrl> &urls)
{
    QByteArrayList result;
    for (const QUrl &url : urls)
        result << file_url::nativePath(url);
    return result;
}

QByteArrayList pathsOf(const QByteArray &list)
{
    return paths(uri_list::parse(list));
}

QByteArray utf16(const QString &text, QStringConverter::Encoding encoding, bool withMark)
{
    QStringEncoder encoder(
        encoding, withMark ? QStringConverter::Flag::WriteBom : QStringConverter::Flag::Default);
    return encoder(text);
}

} // namespace

TEST(UriList, readsEveryLineEnd)
{
    const QByteArrayList expected = {"/a", "/b"};
    EXPECT_EQ(pathsOf("file:///a\r\nfile:///b\r\n"), expected);
    EXPECT_EQ(pathsOf("file:///a\nfile:///b"), expected);
    EXPECT_EQ(pathsOf("file:///a\rfile:///b\r"), expected);
    EXPECT_EQ(pathsOf(QByteArray("file:///a\r\nfile:///b\0", 21)), expected);
    EXPECT_EQ(pathsOf("\r\n\n  file:///a \r\n\r\n\tfile:///b\n\n"), expected);
}

TEST(UriList, leavesCommentsAndNonsenseOut)
{
    EXPECT_EQ(pathsOf("# file:///no\r\nfile:///a\r\nnonsense\r\n\x01\x02\r\nfile:relative\r\n"),
              QByteArrayList({"/a"}));
    EXPECT_TRUE(uri_list::parse({}).isEmpty());
    EXPECT_TRUE(uri_list::parse("file:").isEmpty());
    EXPECT_TRUE(uri_list::parse("file://").isEmpty());
    EXPECT_TRUE(uri_list::parse("file://host").isEmpty());
    EXPECT_TRUE(uri_list::parse("://").isEmpty());
}

TEST(UriList, decodesPercentCodesOnce)
{
    EXPECT_EQ(pathsOf("file:///a%20b/%23%3F%25"), QByteArrayList({"/a b/#?%"}));
    EXPECT_EQ(pathsOf("file:///100%2525"), QByteArrayList({"/100%25"}));
    // The parentheses take it the long way; what ends it is a code.
    EXPECT_EQ(pathsOf("file:///Lied%20(live)%20%C3%A9"), QByteArrayList({"/Lied (live) \xC3\xA9"}));
    EXPECT_EQ(pathsOf("file:///Lied%20(live)%20%C3%A9\r\nfile:///(%25"),
              QByteArrayList({"/Lied (live) \xC3\xA9", "/(%"}));
    EXPECT_EQ(pathsOf("file:///(%4"), QByteArrayList({"/(%4"}));
    EXPECT_EQ(pathsOf("file:///%F0%9F%98%80.txt"), QByteArrayList({"/\xF0\x9F\x98\x80.txt"}));
}

TEST(UriList, keepsBytesThatAreNoText)
{
    EXPECT_EQ(pathsOf("file:///caf%E9"), QByteArrayList({"/caf\xE9"}));
    EXPECT_EQ(pathsOf("file:///caf\xE9"), QByteArrayList({"/caf\xE9"}));
    EXPECT_EQ(pathsOf("file:///%FF%FE/x"), QByteArrayList({"/\xFF\xFE/x"}));
}

TEST(UriList, takesRawPathsThatSomebodyGlued)
{
    EXPECT_EQ(pathsOf("file:///a b#c?d%e%zz%4"), QByteArrayList({"/a b#c?d%e%zz%4"}));
    EXPECT_EQ(pathsOf("file:///na\xC3\xAFve"), QByteArrayList({"/na\xC3\xAFve"}));
}

TEST(UriList, dropsTheHost)
{
    EXPECT_EQ(pathsOf("file://host/x\r\nfile://localhost/y\r\nfile:/z\r\nFILE:///w"),
              QByteArrayList({"/x", "/y", "/z", "/w"}));
}

TEST(UriList, aPathNeverHoldsNul)
{
    EXPECT_TRUE(uri_list::parse("file:///a%00b").isEmpty());
}

TEST(UriList, keepsOtherAddressesInOrder)
{
    const auto urls = uri_list::parse(
        "ftp://f.example/x\r\nhttps://example.org/a%20b?q=1#top\r\nfile:///a\r\nmailto:a@b.c");
    ASSERT_EQ(urls.size(), 4);
    EXPECT_EQ(urls[0].scheme(), QStringLiteral("ftp"));
    EXPECT_EQ(urls[1].toEncoded(), "https://example.org/a%20b?q=1#top");
    EXPECT_TRUE(urls[2].isLocalFile());
    EXPECT_EQ(urls[3].scheme(), QStringLiteral("mailto"));
}

TEST(UriList, anEndlessLineIsLeftOut)
{
    EXPECT_EQ(pathsOf("file:///" + QByteArray(1'000'000, 'a') + "\nfile:///b"),
              QByteArrayList({"/b"}));
    const QByteArray longest = "file:///" + QByteArray(uri_list::maximumLineLength - 8, 'a');
    EXPECT_EQ(pathsOf(longest).size(), 1);
    EXPECT_EQ(pathsOf(longest + 'a').size(), 0);
}

TEST(UriList, tenThousandAddressesAreRead)
{
    QByteArray list;
    for (int i = 0; i < 10'000; ++i)
        list += "file:///folder%20name/file-" + QByteArray::number(i) + ".txt\r\n";
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(uri_list::parse(list).size(), 10'000);
    RecordProperty("milliseconds", static_cast<int>(timer.elapsed()));
}

TEST(MozUrl, readsEitherByteOrderWithAndWithoutMark)
{
    const auto text = QStringLiteral("https://example.org/ä\nA title\nfile:///b\nB");
    for (const auto encoding : {QStringConverter::Utf16LE, QStringConverter::Utf16BE}) {
        for (const bool withMark : {false, true}) {
            const auto urls = uri_list::parseMozUrl(utf16(text, encoding, withMark));
            ASSERT_EQ(urls.size(), 2) << encoding << withMark;
            EXPECT_EQ(urls[0].toEncoded(), "https://example.org/%C3%A4");
            EXPECT_EQ(file_url::nativePath(urls[1]), "/b");
        }
    }
    EXPECT_EQ(uri_list::parseMozUrl("https://example.org/\nhttps://title.example/").size(), 1);
}

TEST(MozUrl, survivesHalfAUnit)
{
    EXPECT_TRUE(uri_list::parseMozUrl(QByteArray("\0", 1)).isEmpty());
    EXPECT_EQ(uri_list::parseMozUrl(QByteArray("h\0t\0t\0p\0:\0/\0/\0a\0/\0b", 19)).size(), 1);
}

TEST(NetscapeUrl, readsTheFirstLineAlone)
{
    const auto urls = uri_list::parseNetscapeUrl("https://example.org/\nhttps://title.example/");
    ASSERT_EQ(urls.size(), 1);
    EXPECT_EQ(urls[0].host(), QStringLiteral("example.org"));
}

TEST(PasteboardText, isDecodedByItsBytes)
{
    EXPECT_EQ(pasteboard_text::decoded("na\xC3\xAFve"), QStringLiteral("naïve"));
    EXPECT_EQ(pasteboard_text::decoded("caf\xE9"), QStringLiteral("café"));
    EXPECT_EQ(pasteboard_text::decoded("\xEF\xBB\xBFx"), QStringLiteral("x"));
    EXPECT_EQ(pasteboard_text::decoded(QByteArray("x\0\0", 3)), QStringLiteral("x"));
    EXPECT_EQ(pasteboard_text::decoded("a\r\nb\n"), QStringLiteral("a\r\nb\n"));
}

TEST(PasteboardText, inUtf16WithoutAMarkShowsItsByteOrder)
{
    const auto text = QStringLiteral("中 é\nx");
    const auto declared = QStringLiteral("text/plain;charset=utf-16");
    for (const auto encoding : {QStringConverter::Utf16LE, QStringConverter::Utf16BE}) {
        const QByteArray bytes = utf16(text, encoding, false);
        EXPECT_EQ(pasteboard_text::decoded(bytes), text);
        EXPECT_EQ(pasteboard_text::decoded(bytes + QByteArray(2, '\0')), text);
        EXPECT_EQ(pasteboard_text::decoded(bytes, declared), text);
        EXPECT_EQ(pasteboard_text::decoded(utf16(text, encoding, true), declared), text);
    }
    EXPECT_EQ(pasteboard_text::decoded(QByteArray("abc\0", 4)), QStringLiteral("abc"));
    EXPECT_EQ(pasteboard_text::decoded(QByteArray("a\0b", 3)), QString::fromLatin1("a\0b", 3));
}

TEST(PasteboardText, isDecodedByItsCharacterSet)
{
    const auto latin = QStringLiteral("text/plain;charset=ISO-8859-1");
    EXPECT_EQ(pasteboard_text::decoded("caf\xE9", latin), QStringLiteral("café"));
    const auto wide = QStringLiteral("text/plain; charset=\"utf-16\"");
    EXPECT_EQ(pasteboard_text::decoded(QByteArray("\xFF\xFEx\0", 4), wide), QStringLiteral("x"));
    const auto unknown = QStringLiteral("text/plain;charset=klingon");
    EXPECT_EQ(pasteboard_text::decoded("x", unknown), QStringLiteral("x"));
    const auto euro = QStringLiteral("text/plain;charset=iso-8859-15");
    EXPECT_EQ(pasteboard_text::decoded("\xA4", euro), QStringLiteral("€"));
    const auto japanese = QStringLiteral("text/plain;charset=Shift_JIS");
    EXPECT_EQ(pasteboard_text::decoded("\x93\xFA", japanese), QStringLiteral("日"));
    EXPECT_EQ(pasteboard_text::decoded("caf\xE9\xFF", japanese), QStringLiteral("caféÿ"))
        << "what is none of it";
    const auto path = QStringLiteral("text/plain;charset=../../tmp/x//IGNORE");
    EXPECT_EQ(pasteboard_text::decoded("x", path), QStringLiteral("x"));
    const auto wrong = QStringLiteral("text/plain;charset=utf-8");
    EXPECT_EQ(pasteboard_text::decoded("caf\xE9", wrong), QStringLiteral("café"));
}

} // namespace corvane::test
