#include "platform/system/file_url.h"

#include <QTemporaryDir>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

namespace corvane {
namespace {

QByteArray roundTrip(const QByteArray &path)
{
    return file_url::nativePath(file_url::fromNativePath(path));
}

TEST(FileUrl, KeepsEveryByteOfAPath)
{
    for (const char *path :
         {"/plain", "/with space", "/100% #1?", "/a%20b", "/a;b&c=d+e", "/ä/日本",
          "/\xf0\x9f\x90\xa6", "/caf\xe9", "/\xff\xfe", "/\xed\xa0\x80", "/a\nb", "/a//b",
          "/a/./b/../c", "/a\\b", "/[x]", "//double", "/\xc0\xaf"})
        EXPECT_EQ(roundTrip(path), QByteArray(path)) << path;
}

TEST(FileUrl, KeepsEachSingleByteButNull)
{
    for (int byte = 1; byte < 256; ++byte) {
        const QByteArray path = QByteArrayLiteral("/x") + static_cast<char>(byte);
        EXPECT_EQ(roundTrip(path), path) << byte;
    }
}

TEST(FileUrl, SurvivesBeingSentAsText)
{
    const QByteArray path = "/caf\xe9 #1 100%";
    const QByteArray sent = file_url::fromNativePath(path).toEncoded();
    EXPECT_EQ(file_url::nativePath(QUrl::fromEncoded(sent)), path);
    EXPECT_EQ(sent, QByteArray("file:///caf%E9%20%231%20100%25"));
}

/// What is written quickly, and what the toolkit writes.
void expectSameAddress(const QUrl &url)
{
    EXPECT_EQ(file_url::encoded(url, file_url::nativePath(url)), url.toEncoded(QUrl::FullyEncoded));
}

TEST(FileUrl, IsEncodedAsTheToolkitDoesIt)
{
    for (int byte = 1; byte < 256; ++byte)
        expectSameAddress(
            file_url::fromNativePath(QByteArrayLiteral("/x") + static_cast<char>(byte)));
    for (const char *path :
         {"/", "/plain.txt", "/with space", "//double", "/a//b/", "/a/./b/../c", "/ä/日本 (2)",
          "/\xf0\x9f\x90\xa6", "/caf\xe9", "/\xed\xa0\x80", "/\xef\xbf\xbe", "/a%20b", "/x@y:z!"}) {
        expectSameAddress(file_url::fromNativePath(path));
        expectSameAddress(QUrl::fromLocalFile(QString::fromUtf8(path)));
    }
    for (const char *address :
         {"file:/a", "FILE:///a", "file:///%41%7e%2D", "file:///a%28b%29", "file:///a(b)",
          "file:///%c3%a9", "file:///\u00e9", "file:///a b", "file://host/a", "file://localhost/a",
          "file:///a?b", "file:///a#b", "file:///a?", "file:///a#", "file:///a%00",
          "file:", "file:a", "http://x/a", ""})
        expectSameAddress(QUrl::fromEncoded(address));
}

TEST(FileUrl, OpensAFileWhoseNameIsNoUtf8)
{
    const QTemporaryDir directory;
    const QByteArray path = directory.path().toUtf8() + QByteArray("/caf\xe9");
    const int descriptor = ::open(path.constData(), O_CREAT | O_WRONLY, 0600);
    ASSERT_GE(descriptor, 0);
    ::close(descriptor);
    EXPECT_EQ(::unlink(roundTrip(path).constData()), 0);
}

TEST(FileUrl, TakesAHostForThisMachine)
{
    EXPECT_EQ(file_url::nativePath(QUrl(QStringLiteral("file://localhost/a/b"))), "/a/b");
    EXPECT_EQ(file_url::nativePath(QUrl(QStringLiteral("file://other/a"))), "/a");
}

TEST(FileUrl, HasNoPathForWhatIsNoFile)
{
    EXPECT_TRUE(file_url::nativePath(QUrl(QStringLiteral("https://x/a"))).isEmpty());
    EXPECT_TRUE(file_url::nativePath(QUrl()).isEmpty());
    EXPECT_TRUE(file_url::nativePath(QUrl(QStringLiteral("file:relative"))).isEmpty());
    EXPECT_TRUE(file_url::nativePath(QUrl(QStringLiteral("file:///a%00b"))).isEmpty());
    EXPECT_TRUE(file_url::fromNativePath({}).isEmpty());
}

TEST(FileUrl, NamesAFolderWhoseAddressEndsInASlash)
{
    EXPECT_EQ(file_url::lastPathComponent(QUrl(QStringLiteral("file:///a/Photos/"))),
              QStringLiteral("Photos"));
    EXPECT_EQ(file_url::lastPathComponent(QUrl(QStringLiteral("file:///a/Photos"))),
              QStringLiteral("Photos"));
    EXPECT_EQ(file_url::lastPathComponent(QUrl(QStringLiteral("file:///"))), QStringLiteral("/"));
    EXPECT_EQ(file_url::pathExtension(QUrl(QStringLiteral("file:///a/Photos.app/"))),
              QStringLiteral("app"));
}

TEST(FileUrl, ShowsANameThatIsNoUtf8)
{
    EXPECT_EQ(file_url::lastPathComponent(file_url::fromNativePath("/caf\xe9")),
              QStringLiteral("caf\ufffd"));
}

TEST(FileUrl, FindsTheExtension)
{
    const auto extension = [](const char *name) {
        return file_url::pathExtension(file_url::fromNativePath(QByteArray("/d.x/") + name));
    };
    EXPECT_EQ(extension("a.txt"), QStringLiteral("txt"));
    EXPECT_EQ(extension("a.TXT"), QStringLiteral("TXT"));
    EXPECT_EQ(extension("a.tar.gz"), QStringLiteral("gz"));
    EXPECT_EQ(extension("a"), QString());
    EXPECT_EQ(extension("a."), QString());
    EXPECT_EQ(extension(".bashrc"), QString());
    EXPECT_EQ(extension("..bashrc"), QString());
    EXPECT_EQ(extension(".bashrc.old"), QStringLiteral("old"));
}

TEST(FileUrl, TakesTheExtensionOffTheStem)
{
    const auto stem = [](const char *name) {
        return file_url::stem(file_url::fromNativePath(QByteArray("/d.x/") + name));
    };
    EXPECT_EQ(stem("scan.tiff"), QStringLiteral("scan"));
    EXPECT_EQ(stem("a.tar.gz"), QStringLiteral("a.tar"));
    EXPECT_EQ(stem(".bashrc"), QStringLiteral(".bashrc"));
    EXPECT_EQ(stem("a."), QStringLiteral("a."));
}

} // namespace
} // namespace corvane
