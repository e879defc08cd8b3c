#include "fakes/fake_pasteboard.h"
#include "platform/display.h"
#include "platform/pasteboard/pasteboard_writer.h"
#include "platform/qt/pasteboard/fetched_pasteboard.h"
#include "platform/qt/pasteboard/mime_encoding.h"
#include "platform/qt/pasteboard/pasteboard_text.h"
#include "platform/qt/pasteboard/qt_clipboard.h"
#include "platform/qt/pasteboard/qt_pasteboard.h"
#include "platform/system/file_url.h"

#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QMimeData>
#include <QProcess>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

struct FakeOffer {
    FakePasteboard pasteboard;
    void offer(const QList<QUrl> &urls) { pasteboard.offerUrls(urls); }
    void offer(const QString &text) { pasteboard.offerText(text); }
    void offer(const QByteArray &data, const QString &type) { pasteboard.offerData(data, type); }
};

struct FetchedOffer {
    FetchedPasteboard pasteboard{{QStringLiteral("text/uri-list"), QStringLiteral("text/plain"),
                                  QStringLiteral("image/png")}};
    void offer(const QList<QUrl> &urls)
    {
        QByteArray list;
        for (const QUrl &url : urls)
            list += url.toEncoded() + "\r\n";
        pasteboard.setBytes(QStringLiteral("text/uri-list"), list);
    }
    void offer(const QString &text)
    {
        pasteboard.setBytes(QStringLiteral("text/plain"), text.toUtf8());
    }
    void offer(const QByteArray &data, const QString &type) { pasteboard.setBytes(type, data); }
};

struct QtOffer {
    QMimeData mimeData;
    QtPasteboard pasteboard{&mimeData};
    void offer(const QList<QUrl> &urls) { mimeData.setUrls(urls); }
    void offer(const QString &text) { mimeData.setText(text); }
    void offer(const QByteArray &data, const QString &type) { mimeData.setData(type, data); }
};

template<typename Source>
class PasteboardContract : public testing::Test {
protected:
    Source source;
    Pasteboard &pasteboard = source.pasteboard;
};

using Sources = testing::Types<FakeOffer, FetchedOffer, QtOffer>;
TYPED_TEST_SUITE(PasteboardContract, Sources);

const auto png = QStringLiteral("image/png");
const QUrl file = file_url::fromNativePath("/a b#c/\xFF.txt");
const QUrl link(QStringLiteral("https://example.org/x"));

QByteArray dataOf(const PasteboardContents &contents, const char *type,
                  PasteboardKind kind = PasteboardKind::Drag)
{
    return mimeDataFor(contents, kind)->data(QLatin1String(type));
}

} // namespace

TYPED_TEST(PasteboardContract, anEmptyOneHasNothing)
{
    EXPECT_TRUE(this->pasteboard.urls().isEmpty());
    EXPECT_FALSE(this->pasteboard.string());
    EXPECT_FALSE(this->pasteboard.dataFor(UTType::png()));
    EXPECT_FALSE(this->pasteboard.promisedFile());
}

TYPED_TEST(PasteboardContract, givesAddressesInOrderAndFilesAmongThem)
{
    this->source.offer(QList<QUrl>{link, file});
    EXPECT_TRUE(this->pasteboard.offers(QStringLiteral("text/uri-list")));
    EXPECT_EQ(this->pasteboard.urls(), QList<QUrl>({link, file}));
    ASSERT_EQ(this->pasteboard.fileUrls().size(), 1);
    EXPECT_EQ(file_url::nativePath(this->pasteboard.fileUrls().constFirst()), "/a b#c/\xFF.txt");
}

TYPED_TEST(PasteboardContract, givesTextAsItIs)
{
    this->source.offer(QStringLiteral("one\r\ntwo\n"));
    EXPECT_EQ(this->pasteboard.string(), QStringLiteral("one\r\ntwo\n"));
}

TYPED_TEST(PasteboardContract, givesBytesUnderTheirType)
{
    this->source.offer(QByteArray("bytes"), png);
    EXPECT_TRUE(this->pasteboard.offers(QStringLiteral("IMAGE/PNG")));
    EXPECT_EQ(this->pasteboard.dataFor(UTType::png()), QByteArray("bytes"));
    EXPECT_FALSE(this->pasteboard.dataFor(UTType::tiff()));
}

TEST(QtPasteboard, aTypeThatCameBackEmptyGivesNone)
{
    QMimeData mimeData;
    mimeData.setData(png, {});
    EXPECT_FALSE(QtPasteboard(&mimeData).dataFor(UTType::png()));
    EXPECT_FALSE(QtPasteboard(nullptr).string());
}

TEST(PasteboardText, isTakenUnderTheMostExactName)
{
    const QStringList types = {QStringLiteral("image/png"),
                               QStringLiteral("TEXT"),
                               QStringLiteral("STRING"),
                               QStringLiteral("text/plain;charset=iso-8859-1"),
                               QStringLiteral("text/unicode"),
                               QStringLiteral("text/plain"),
                               QStringLiteral("text/plain;charset=utf-16"),
                               QStringLiteral("text/plain; charset=UTF-8"),
                               QStringLiteral("UTF8_STRING"),
                               QStringLiteral("text/plain;charset=ISO-10646-UCS-2"),
                               QStringLiteral("text/plain")};
    EXPECT_EQ(pasteboard_text::typesByExactness(types),
              QStringList({types[8], types[7], types[6], types[9], types[5], types[4], types[3],
                           types[2], types[1]}));
}

TEST(QtPasteboard, exactTextComesBeforeOtherSpellings)
{
    QMimeData mimeData;
    mimeData.setData(QStringLiteral("text/plain"), "caf\xE9");
    mimeData.setData(QStringLiteral("text/plain;charset=UTF-8"), "caf\xC3\xA9!");
    EXPECT_EQ(QtPasteboard(&mimeData).string(), QStringLiteral("café!"));
}

TEST(QtPasteboard, anEmptyAddressListLetsTheNextTypeSpeak)
{
    QMimeData mimeData;
    mimeData.setData(QStringLiteral("text/x-moz-url"),
                     QByteArray("h\0t\0t\0p\0:\0/\0/\0a\0/\0\n\0T\0", 22));
    EXPECT_EQ(QtPasteboard(&mimeData).urls(), QList<QUrl>{QUrl(QStringLiteral("http://a/"))});
    QMimeData netscape;
    netscape.setData(QStringLiteral("_NETSCAPE_URL"), "http://b/\nTitle");
    EXPECT_EQ(QtPasteboard(&netscape).urls(), QList<QUrl>{QUrl(QStringLiteral("http://b/"))});
}

TEST(MimeEncoding, filesAndLinksAreOneListWithExactBytes)
{
    const PasteboardContents contents{
        {{PasteboardWriter::File{file}}, {PasteboardWriter::Link{link}}}, {}};
    EXPECT_EQ(dataOf(contents, "text/uri-list"),
              "file:///a%20b%23c/%FF.txt\r\nhttps://example.org/x\r\n");
    const auto text = dataOf(contents, "text/plain");
    EXPECT_TRUE(text.endsWith("\nhttps://example.org/x")) << text.constData();
}

TEST(MimeEncoding, onlyTheClipboardCarriesCopiedFiles)
{
    const PasteboardContents contents{
        {{PasteboardWriter::File{file}}, {PasteboardWriter::File{link}}}, QStringLiteral("own")};
    const auto type = "x-special/gnome-copied-files";
    EXPECT_TRUE(dataOf(contents, type).isEmpty());
    EXPECT_EQ(dataOf(contents, type, PasteboardKind::Clipboard), "copy\nfile:///a%20b%23c/%FF.txt");
    EXPECT_EQ(dataOf(contents, "text/plain"), "own");
}

TEST(MimeEncoding, pictureBytesKeepTheirType)
{
    const PasteboardContents contents{{{PasteboardWriter::Data{"one", UTType(png)}},
                                       {PasteboardWriter::Data{"two", UTType(png)}}},
                                      {}};
    EXPECT_EQ(dataOf(contents, "image/png"), "one");
    EXPECT_FALSE(mimeDataFor(contents, PasteboardKind::Drag)->hasText());
}

TEST(MimeEncoding, whatIsWrittenIsReadAgain)
{
    const auto mimeData = mimeDataFor({{{PasteboardWriter::File{file}}}, {}}, PasteboardKind::Drag);
    QtPasteboard pasteboard(mimeData.get());
    ASSERT_EQ(pasteboard.fileUrls().size(), 1);
    EXPECT_EQ(file_url::nativePath(pasteboard.fileUrls().constFirst()), "/a b#c/\xFF.txt");
}

TEST(QtClipboard, replacesTheClipboard)
{
    QtClipboard general;
    general.write({{{PasteboardWriter::Data{"bytes", UTType(png)}}}, {}});
    general.write({{{PasteboardWriter::Text{QStringLiteral("text")}}}, {}});
    const QMimeData *clipboard = QGuiApplication::clipboard()->mimeData();
    EXPECT_EQ(clipboard->text(), QStringLiteral("text"));
    EXPECT_FALSE(clipboard->hasFormat(png));
}

TEST(QtPasteboard, givesTheFilesOfMountedRemotePlaces)
{
    const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/gvfs");
    ASSERT_TRUE(QDir().mkpath(folder + QStringLiteral("/sftp:host=example.org,user=me")));
    QMimeData mimeData;
    mimeData.setData(QStringLiteral("text/uri-list"),
                     "sftp://me@example.org/a%20b\r\n"
                     "sftp://me@elsewhere.org/c\r\n"
                     "file:///d\r\n");
    QtPasteboard pasteboard(&mimeData);
    const QList<QUrl> files = pasteboard.fileUrls();
    ASSERT_EQ(files.size(), 2);
    EXPECT_EQ(file_url::nativePath(files[0]),
              QFile::encodeName(folder) + "/sftp:host=example.org,user=me/a b");
    EXPECT_EQ(file_url::nativePath(files[1]), "/d");
    EXPECT_EQ(pasteboard.urls().size(), 3);
    QDir(folder).removeRecursively();
}

TEST(QtPasteboard, aTextThatIsTooLargeIsNoneRatherThanHalf)
{
    QMimeData mimeData;
    mimeData.setData(QStringLiteral("text/plain"),
                     QByteArray(QtPasteboard::maximumTextBytes + 1, 'x'));
    EXPECT_FALSE(QtPasteboard(&mimeData).string());
}

TEST(QtClipboard, countsWhatAnotherProgramPutsThere)
{
    QtClipboard general;
    general.write({{{PasteboardWriter::Text{QStringLiteral("ours")}}}, {}});
    const qint64 count = general.changeCount();
    QProcess other;
    other.start(QStringLiteral("xclip"),
                {QStringLiteral("-selection"), QStringLiteral("clipboard")});
    other.write("theirs");
    other.closeWriteChannel();
    EXPECT_TRUE(eventually([&] { return general.changeCount() > count; }));
}

TEST(QtClipboard, anotherProgramGetsALargeTextWhole)
{
    const QByteArray text = numberedBytes(20'000'000);
    QtClipboard().write({{{PasteboardWriter::Text{QString::fromUtf8(text)}}}, {}});
    QProcess reader;
    reader.start(QStringLiteral("xclip"),
                 {QStringLiteral("-selection"), QStringLiteral("clipboard"), QStringLiteral("-o"),
                  QStringLiteral("-target"), QStringLiteral("UTF8_STRING")});
    ASSERT_TRUE(eventually([&] { return reader.state() == QProcess::NotRunning; }));
    EXPECT_TRUE(reader.readAllStandardOutput() == text);
    QGuiApplication::clipboard()->clear();
}

} // namespace corvane::test
