#include "platform/qt/pasteboard/uri_list.h"
#include "platform/qt/system/remote_mounts.h"
#include "platform/system/file_url.h"

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

/// Where the file behind an address stands below the mounts' folder; empty where it is not mounted.
QByteArray found(const QList<QByteArray> &names, const char *address)
{
    const auto file = RemoteMounts("/mounts", names).localFile(uri_list::parseLine(address));
    const QByteArray path = file ? file_url::nativePath(*file) : QByteArray();
    return path.startsWith("/mounts/") ? path.sliced(8) : path;
}

} // namespace

TEST(RemoteMounts, findTheFileBelowItsPlace)
{
    EXPECT_EQ(found({"sftp:host=example.org"}, "sftp://example.org/home/me/a.txt"),
              "sftp:host=example.org/home/me/a.txt");
    EXPECT_EQ(found({"ftp:host=example.org"}, "ftp://example.org/a"), "ftp:host=example.org/a");
    EXPECT_EQ(found({"sftp:host=example.org"}, "sftp://example.org/"), "sftp:host=example.org");
    EXPECT_EQ(found({"sftp:host=example.org"}, "sftp://example.org//a//b/"),
              "sftp:host=example.org/a/b");
}

TEST(RemoteMounts, theWholePlaceMustBeTheSame)
{
    const QList<QByteArray> names = {"sftp:host=example.org,user=me", "sftp:host=example.org"};
    EXPECT_EQ(found(names, "sftp://me@example.org/a"), names[0] + "/a");
    EXPECT_EQ(found(names, "sftp://example.org/a"), names[1] + "/a");
    EXPECT_EQ(found(names, "sftp://you@example.org/a"), "");
    EXPECT_EQ(found(names, "sftp://me@example.org:2222/a"), "");
    EXPECT_EQ(found(names, "ftp://me@example.org/a"), "");
    EXPECT_EQ(found(names, "sftp://me@example.com/a"), "");
    EXPECT_EQ(found({"sftp:host=example.org,port=2222"}, "sftp://example.org:2222/a"),
              "sftp:host=example.org,port=2222/a");
}

TEST(RemoteMounts, theUsualPortIsNone)
{
    EXPECT_EQ(found({"sftp:host=h"}, "sftp://h:22/a"), "sftp:host=h/a");
    EXPECT_EQ(found({"dav:host=h,port=443,ssl=true"}, "davs://h/a"),
              "dav:host=h,port=443,ssl=true/a");
    EXPECT_EQ(found({"dav:host=h,ssl=true"}, "davs://h:80/a"), "");
}

TEST(RemoteMounts, ofAWindowsServerTheShareBelongsToThePlace)
{
    const QList<QByteArray> names = {"smb-share:server=nas,share=photos",
                                     "smb-share:domain=work,server=nas,share=docs,user=me",
                                     "smb-share:server=nas,share=two%20words"};
    EXPECT_EQ(found(names, "smb://nas/photos/2024/a.jpg"), names[0] + "/2024/a.jpg");
    EXPECT_EQ(found(names, "smb://NAS/Photos/A.jpg"), names[0] + "/A.jpg");
    EXPECT_EQ(found(names, "smb://WORK;me@nas/docs/a"), names[1] + "/a");
    EXPECT_EQ(found(names, "smb://nas/two%20words/a"), names[2] + "/a");
    EXPECT_EQ(found(names, "smb://nas/music/a"), "");
    EXPECT_EQ(found(names, "smb://nas/"), "");
    EXPECT_EQ(found(names, "smb://nas"), "");
}

TEST(RemoteMounts, aMountOfARemoteFolderHoldsWhatIsBelowThat)
{
    const QByteArray outer = "dav:host=h,ssl=true,prefix=%2Fdav";
    const QByteArray inner = "dav:host=h,ssl=true,prefix=%2Fdav%2Fme";
    EXPECT_EQ(found({outer, inner}, "davs://h/dav/me/a"), inner + "/a");
    EXPECT_EQ(found({outer, inner}, "davs://h/dav/you/a"), outer + "/you/a");
    EXPECT_EQ(found({outer}, "davs://h/david/a"), "");
    EXPECT_EQ(found({outer}, "davs://h/"), "");
    EXPECT_EQ(found({outer}, "dav://h/dav/a"), "");
    EXPECT_EQ(found({"dav:host=h,prefix=%2Fa%2541"}, "dav://h/a%2541/b"),
              "dav:host=h,prefix=%2Fa%2541/b");
}

TEST(RemoteMounts, phonesArePlacesToo)
{
    const QByteArray phone = "mtp:host=SAMSUNG_Android_5200a1b2";
    EXPECT_EQ(found({phone}, "mtp://SAMSUNG_Android_5200a1b2/Internal%20storage/a.jpg"),
              phone + "/Internal storage/a.jpg");
    EXPECT_EQ(found({"afc:host=00008030-001,port=3"}, "afc://00008030-001:3/a"),
              "afc:host=00008030-001,port=3/a");
}

TEST(RemoteMounts, bytesOfNamesAreKept)
{
    EXPECT_EQ(found({"sftp:host=h"}, "sftp://h/a%FF%23%25%3F"), "sftp:host=h/a\xFF#%?");
    EXPECT_EQ(found({"sftp:host=%5Bfe80%3A%3A1%5D"}, "sftp://[fe80::1]/a"),
              "sftp:host=%5Bfe80%3A%3A1%5D/a");
}

TEST(RemoteMounts, noAddressLeadsOutOfItsPlace)
{
    const QList<QByteArray> names = {"sftp:host=h", "smb-share:server=h,share=..", "sftp:host="};
    for (const char *address :
         {"sftp://h/../x", "sftp://h/a/../../x", "sftp://h/%2e%2e/x", "sftp://h/..%2Fx",
          "sftp://h/a%2F..%2F..%2Fx", "sftp://h/a%00b", "sftp://h/./x", "smb://h/../x",
          "smb://h/%2e%2e/x", "sftp:///x", "sftp:/x", "sftp:x", "sftp://h/a?b", "sftp://h/a#b"})
        EXPECT_EQ(found(names, address), "") << address;
}

TEST(RemoteMounts, foldersThatNameNoPlaceAreNone)
{
    for (const char *name :
         {"", ".", "..", ":", "sftp", "sftp:", "sftp:host", "sftp:host=", ":host=h", "sftp:=h",
          "sftp:host=h,unheard=of", "sftp:host=h,port=x", "sftp:host=h,prefix=%2F..%2Fa"})
        EXPECT_EQ(found({name}, "sftp://h/a"), "") << name;
}

TEST(RemoteMounts, whatIsCommonIsNotLookedFor)
{
    for (const char *address : {"file:///a", "http://h/a", "https://h/a", "mailto:a@h",
                                "about:blank", "trash:///a", "data:text/plain,a"})
        EXPECT_FALSE(RemoteMounts::mayHold(uri_list::parseLine(address))) << address;
    EXPECT_TRUE(RemoteMounts::mayHold(QUrl(QStringLiteral("sftp://h/a"))));
}

} // namespace corvane::test
