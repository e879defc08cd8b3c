#include "platform/freedesktop/file_system_kind.h"
#include "platform/freedesktop/mount_table.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

#include <optional>
#include <utility>

namespace corvane::test {

namespace {

/// A folder whose `net` is said to be mounted from elsewhere; really everything is local.
class MountTableTest : public testing::Test {
protected:
    MountTableTest()
    {
        for (const char *name : {"net", "net/deep", "local", "two words"})
            ::mkdir(path(name).constData(), 0700);
        mount("net", "nfs4");
        mount("two\\040words", "fuse.sshfs");
    }

    QByteArray path(const QByteArray &name) const { return top + '/' + name; }
    void mount(const QByteArray &name, const QByteArray &type, const QByteArray &source = "server")
    {
        lines += "36 35 98:0 / " + path(name) + " rw,noatime master:1 - " + type + ' ' + source
            + " rw\n";
        writeTable();
    }
    void writeTable()
    {
        QFile file(folder.filePath(QStringLiteral("table")));
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(lines);
        table.emplace(path("table"));
    }
    void link(const QByteArray &target, const char *name) const
    {
        ASSERT_EQ(::symlink(target.constData(), path(name).constData()), 0);
    }
    bool isRemote(const QByteArray &name) const { return table->isRemote(path(name)); }

    QTemporaryDir folder;
    QByteArray top = QFile::encodeName(folder.path());
    QByteArray lines = "22 1 0:21 / / rw - ext4 /dev/vda rw\nnonsense\n1 2 3\n";
    std::optional<MountTable> table;
};

} // namespace

TEST_F(MountTableTest, tellsWhatLiesBehindANetwork)
{
    EXPECT_TRUE(isRemote("net"));
    EXPECT_TRUE(isRemote("net/a.png"));
    EXPECT_TRUE(isRemote("net/deep/a.png"));
    EXPECT_TRUE(isRemote("two words/a"));
    EXPECT_FALSE(isRemote("local/a.png"));
    EXPECT_FALSE(isRemote("network"));
    EXPECT_FALSE(isRemote(""));
    EXPECT_FALSE(table->isRemote("/"));
    EXPECT_FALSE(table->isRemote(""));
}

TEST_F(MountTableTest, readsATableOfAnyLengthToItsEnd)
{
    // It is read in pieces of this size, so that the last one is a single byte.
    constexpr qsizetype piece = 65'536;
    const QByteArray last = "\n36 35 98:0 / " + path("local") + " rw - nfs";
    lines += QByteArray(piece + 1 - lines.size() - last.size(), '#') + last;
    writeTable();
    EXPECT_TRUE(isRemote("local/a.png"));
}

TEST_F(MountTableTest, followsLinksAndDotsWithoutTouchingWhatIsRemote)
{
    link(path("net"), "absolute");
    link("../net/deep", "local/relative");
    link("local/relative", "chain");
    link("local", "home");
    EXPECT_TRUE(isRemote("absolute/a"));
    EXPECT_TRUE(isRemote("local/relative"));
    EXPECT_TRUE(isRemote("chain/a"));
    EXPECT_TRUE(isRemote("local/../net/a"));
    EXPECT_TRUE(isRemote("./local//..//net/a"));
    EXPECT_FALSE(isRemote("home/a"));
}

TEST_F(MountTableTest, linksThatLeadInACircleEnd)
{
    link("two", "one");
    link("one", "two");
    EXPECT_FALSE(isRemote("one/a"));
}

TEST_F(MountTableTest, aMountCoversTheOneBelowIt)
{
    mount("net", "ext4");
    EXPECT_FALSE(isRemote("net/a"));
    mount("net", "autofs");
    EXPECT_TRUE(isRemote("net/a")) << "touching it would mount it";
}

TEST_F(MountTableTest, knowsTheKindsOfFileSystems)
{
    for (const char *type :
         {"nfs", "nfs4", "cifs", "smb3", "9p", "afs", "ceph", "autofs", "fuse", "fuse.gvfsd-fuse",
          "fuse.kio-fuse", "fuse.sshfs", "fuse.rclone", "fuse.jmtpfs", "fuse.nobody-knows"})
        EXPECT_TRUE(file_system_kind::isRemote(type, "/mnt")) << type;
    for (const char *type : {"ext4", "btrfs", "xfs", "tmpfs", "overlay", "fuseblk", "zfs", "vfat"})
        EXPECT_FALSE(file_system_kind::isRemote(type, "/mnt")) << type;
}

TEST_F(MountTableTest, aProgramsFileSystemIsRemoteOnlyIfItReallyIs)
{
    for (const char *type : {"fuse.gocryptfs", "fuse.encfs", "fuse.cryfs", "fuse.portal",
                             "fuse.bindfs", "fuse.mergerfs", "fuse.Some_Program-x86_64.AppImage"})
        EXPECT_FALSE(file_system_kind::isRemote(type, "/mnt")) << type;
    EXPECT_FALSE(file_system_kind::isRemote("fuse.program", "/tmp/.mount_progra3xQ7"));
    mount("local", "fuse.gocryptfs", path("cipher"));
    EXPECT_FALSE(isRemote("local/a"));
    mount("local", "fuse.sshfs", "host:/home");
    EXPECT_TRUE(isRemote("local/a"));
}

TEST_F(MountTableTest, whatShowsAnotherFolderIsAsRemoteAsThat)
{
    mount("local", "fuse.gocryptfs", path("net/cipher"));
    EXPECT_TRUE(isRemote("local/a"));
    mount("local", "fuse.cryfs", "cryfs@" + path("net/deep"));
    EXPECT_TRUE(isRemote("local/a"));
    mount("local", "fuse.cryfs", "cryfs@" + path("other"));
    EXPECT_FALSE(isRemote("local/a"));
    mount("local", "fuse.mergerfs", path("other") + ':' + path("net"));
    EXPECT_TRUE(isRemote("local/a"));
    mount("local", "fuse.mergerfs", path("other") + ':' + path("another"));
    EXPECT_FALSE(isRemote("local/a"));
    mount("deep", "fuse.bindfs", path("two\\040words/a"));
    EXPECT_TRUE(isRemote("deep/a")) << "also through a name that is written in another way";
}

TEST_F(MountTableTest, whatShowsFoldersThatItDoesNotNameIsRemote)
{
    for (const auto &[program, source] :
         {std::pair("encfs", "encfs"), std::pair("mergerfs", "disk1:disk2"),
          std::pair("mhddfs", "mhddfs"), std::pair("unionfs", "unionfs"),
          std::pair("unionfs-fuse", "none"), std::pair("bindfs", "name@of-the-users-own")}) {
        mount("local", QByteArray("fuse.") + program, source);
        EXPECT_TRUE(isRemote("local/a")) << program;
    }
    mount("local", "fuse.mhddfs", path("other") + ';' + path("net"));
    EXPECT_TRUE(isRemote("local/a"));
    mount("local", "fuse.mhddfs", path("other") + ';' + path("another"));
    EXPECT_FALSE(isRemote("local/a"));
    mount("local", "fuse.encfs", path("cipher"));
    EXPECT_FALSE(isRemote("local/a"));
    mount("local", "fuse.portal", "portal");
    EXPECT_FALSE(isRemote("local/a")) << "it shows no folders";
}

TEST_F(MountTableTest, inspectsWhatIsLocalAndOnlyThat)
{
    QFile file(QFile::decodeName(path("local/a")));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write("123");
    file.close();
    link("a", "local/link");
    link("../net/deep", "local/away");
    link("local", "home");
    const timeval longAgo[2] = {{1000, 0}, {1000, 0}};
    ASSERT_EQ(::utimes(path("local").constData(), longAgo), 0);
    const auto found = table->inspect(
        {path("local/a"), path("local/link"), path("local/away"), path("local/away/a"),
         path("local/gone"), path("gone/a"), path("net"), path("net/deep/"), path("local/"),
         path("home/a"), path("home/../local/a"), path("local/.."), "/", "", "relative",
         path("local/a") + QByteArray(1, '\0') + "b"});
    QByteArray summary;
    for (const auto &inspection : found) {
        const auto &version = inspection.version;
        summary += inspection.isRemote                   ? "remote"
            : !version                                   ? "none"
            : version->kind == FileVersion::Kind::Folder ? "folder"
                                                         : QByteArray::number(version->size);
        summary += ' ';
    }
    EXPECT_EQ(summary,
              "3 3 remote remote none none remote remote folder 3 3 folder folder none none none ");
    EXPECT_EQ(found[9].version->path, path("home/a")) << "as it was asked for";
    EXPECT_EQ(found[8].version->modificationTime, 1000);
    EXPECT_NE(found[11].version->modificationTime, 1000) << "that of the folder above";
}

TEST_F(MountTableTest, withoutATableNothingIsRemote)
{
    EXPECT_FALSE(MountTable("/nonexistent").isRemote(path("net/a")));
}

TEST_F(MountTableTest, readsTheKernelsOwn)
{
    const MountTable own;
    EXPECT_FALSE(own.isRemote("/proc/self/status"));
    EXPECT_FALSE(own.isRemote(path("local/a")));
}

} // namespace corvane::test
