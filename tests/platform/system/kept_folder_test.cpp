#include "fakes/disk_waits.h"
#include "fakes/full_disk.h"
#include "platform/system/kept_folder.h"
#include "platform/system/private_folder.h"

#include <QDir>
#include <QFile>
#include <QStringBuilder>
#include <QTemporaryDir>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <optional>

namespace corvane {
namespace {

constexpr auto always = [] { return true; };

struct KeptFolderTest : testing::Test {
    QByteArray path(const QByteArray &name) const { return base + '/' + name; }
    QByteArray write(const QByteArray &name, const QByteArray &bytes) const
    {
        QFile file(QFile::decodeName(path(name)));
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.write(bytes);
        return path(name);
    }
    static QByteArray read(const QByteArray &path)
    {
        QFile file(QFile::decodeName(path));
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    }
    int entries() const
    {
        return int(QDir(QFile::decodeName(folder.path()))
                       .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)
                       .size());
    }

    QTemporaryDir temporary;
    QByteArray base = QFile::encodeName(temporary.path());
    KeptFolder folder{base + "/x/kept"};
};

TEST_F(KeptFolderTest, IsMadeOnlyWhenThatIsAskedFor)
{
    EXPECT_FALSE(folder.hold());
    EXPECT_FALSE(QFile::exists(QFile::decodeName(folder.path())));
    ASSERT_TRUE(folder.makeAndHold());
    EXPECT_FALSE(folder.hasRecord());
    struct stat status = {};
    ASSERT_EQ(::stat(folder.path().constData(), &status), 0);
    EXPECT_EQ(status.st_mode & ALLPERMS, 0700U);
}

TEST_F(KeptFolderTest, IsHeldByOneAtATime)
{
    KeptFolder other(folder.path());
    ASSERT_TRUE(folder.makeAndHold());
    EXPECT_FALSE(other.hold());
    folder.release();
    EXPECT_TRUE(other.hold());
    EXPECT_FALSE(folder.hold());
}

TEST_F(KeptFolderTest, IsHeldNoLongerOnceItIsAnotherFolder)
{
    ASSERT_TRUE(folder.makeAndHold());
    ASSERT_EQ(::rename(folder.path().constData(), path("aside").constData()), 0);
    EXPECT_FALSE(folder.isHeld());
    EXPECT_TRUE(folder.makeAndHold());
}

TEST_F(KeptFolderTest, ASetIsThereOnceItsRecordIs)
{
    ASSERT_TRUE(folder.makeAndHold());
    const auto one = folder.add(write("a", "one"), "png", always);
    const auto two = folder.addBytes("two", "no extension");
    ASSERT_TRUE(one && two);
    EXPECT_FALSE(folder.hasRecord());
    ASSERT_TRUE(folder.commit("record", {one->name, two->name}));
    EXPECT_EQ(folder.record(6), QByteArray("record"));
    EXPECT_FALSE(folder.record(5)) << "too long";
    EXPECT_TRUE(folder.has(*one) && folder.has(*two));
    EXPECT_TRUE(one->name.endsWith(".png"));
    EXPECT_FALSE(two->name.contains('.'));
    EXPECT_EQ(read(folder.pathOf(one->name)), "one");
    EXPECT_EQ(read(folder.pathOf(two->name)), "two");
}

TEST_F(KeptFolderTest, ASetTakesThePlaceOfTheOneBefore)
{
    ASSERT_TRUE(folder.makeAndHold());
    const auto first = folder.addBytes("first", {});
    const auto second = folder.addBytes("second", {});
    ASSERT_TRUE(folder.commit("1", {first->name, second->name}));
    const auto third = folder.addBytes("third", {});
    ASSERT_TRUE(folder.commit("2", {second->name, third->name}));
    EXPECT_FALSE(folder.has(*first));
    EXPECT_TRUE(folder.has(*second) && folder.has(*third)) << "a file may go on in the next set";
    EXPECT_EQ(folder.record(100), QByteArray("2"));
    EXPECT_EQ(entries(), 3);
    ASSERT_TRUE(folder.rewrite("3"));
    EXPECT_EQ(folder.record(100), QByteArray("3"));
    EXPECT_EQ(entries(), 3);
}

TEST_F(KeptFolderTest, ANewFolderIsFoundAfterThePowerIsLost)
{
    const test::DiskWaits waits;
    ASSERT_TRUE(folder.makeAndHold());
    EXPECT_EQ(waits.paths, (QByteArrayList{base, path("x")})) << "they have the names of new ones";
    folder.release();
    ASSERT_TRUE(folder.makeAndHold());
    EXPECT_EQ(waits.paths.size(), 2);
}

TEST_F(KeptFolderTest, ASetIsOnTheDiskBeforeItTakesThePlaceOfTheOneBefore)
{
    ASSERT_TRUE(folder.makeAndHold());
    ASSERT_TRUE(folder.commit("1", {}));
    test::DiskWaits waits;
    waits.onWait = [&](const QByteArray &path) {
        const bool isLast = waits.paths.size() == 4;
        EXPECT_EQ(folder.record(100), QByteArray(isLast ? "2" : "1")) << path.constData();
    };
    const auto added = folder.addBytes("bytes", {});
    ASSERT_TRUE(folder.commit("2", {added->name}));
    EXPECT_EQ(waits.paths,
              (QByteArrayList{folder.pathOf(added->name), folder.pathOf("items.unfinished"),
                              folder.path(), folder.path()}));
    waits.onWait = nullptr;
    waits.paths.clear();
    ASSERT_TRUE(folder.rewrite("3"));
    EXPECT_EQ(waits.paths.value(0), folder.pathOf("items.unfinished"));
}

TEST_F(KeptFolderTest, WhatWasEmptiedDoesNotComeBackAfterThePowerIsLost)
{
    ASSERT_TRUE(folder.makeAndHold());
    const auto added = folder.addBytes("bytes", {});
    ASSERT_TRUE(folder.commit("record", {added->name}));
    write("x/kept/mine.txt", "mine");
    test::DiskWaits waits;
    waits.onWait = [&](const QByteArray &) { EXPECT_EQ(entries(), 1) << "what is not its own"; };
    folder.empty();
    EXPECT_EQ(waits.paths, QByteArrayList{folder.path()});
}

TEST(PrivateFolderTest, IsWaitedForByItsPath)
{
    const QTemporaryDir temporary;
    const QByteArray path = QFile::encodeName(temporary.path());
    const test::DiskWaits waits;
    private_folder::sync(path);
    private_folder::sync(path + "/nothing");
    EXPECT_EQ(waits.paths, QByteArrayList{path});
}

TEST_F(KeptFolderTest, ASetThatCannotBeWrittenLeavesTheOneBefore)
{
    ASSERT_TRUE(folder.makeAndHold());
    const auto first = folder.addBytes("first", {});
    ASSERT_TRUE(folder.commit("record", {first->name}));
    ASSERT_TRUE(folder.addBytes("second", {}));
    {
        const test::FullDisk fullDisk;
        EXPECT_FALSE(folder.addBytes(QByteArray(100, 'x'), {}));
        EXPECT_FALSE(folder.commit(QByteArray(100, 'x'), {}));
    }
    EXPECT_TRUE(folder.has(*first));
    EXPECT_EQ(folder.record(100), QByteArray("record"));
    EXPECT_EQ(entries(), 2);
}

TEST_F(KeptFolderTest, AFileWithAnotherNameIsCopiedAsLongAsThereIsTime)
{
    ASSERT_TRUE(folder.makeAndHold());
    const QByteArray bytes(1'000'000, 'x');
    const QByteArray file = write("a", bytes);
    ASSERT_EQ(::link(file.constData(), path("b").constData()), 0);
    int pieces = 0;
    EXPECT_FALSE(folder.add(file, {}, [&pieces] { return ++pieces < 3; }));
    EXPECT_EQ(entries(), 0);
    const auto added = folder.add(file, {}, always);
    ASSERT_TRUE(added);
    write("b", "changed under the other name");
    EXPECT_EQ(read(folder.pathOf(added->name)), bytes);
}

TEST_F(KeptFolderTest, OnlyRegularFilesAreAddedAndNoLinks)
{
    ASSERT_TRUE(folder.makeAndHold());
    ASSERT_EQ(::symlink(write("a", "x").constData(), path("link").constData()), 0);
    ASSERT_EQ(::mkfifo(path("pipe").constData(), 0600), 0);
    for (const char *name : {"link", "pipe", "x", "nothing"})
        EXPECT_FALSE(folder.add(path(name), {}, always)) << name;
    EXPECT_EQ(entries(), 0);
}

TEST_F(KeptFolderTest, IsEmptiedOfItsOwnFilesAlone)
{
    ASSERT_TRUE(folder.makeAndHold());
    const auto first = folder.addBytes("first", {});
    ASSERT_TRUE(folder.commit("record", {first->name}));
    folder.addBytes("not yet in a set", {});
    write("x/kept/mine.txt", "mine");
    folder.empty();
    EXPECT_EQ(entries(), 1);
    ASSERT_EQ(::unlink(path("x/kept/mine.txt").constData()), 0);
    folder.empty();
    EXPECT_FALSE(QFile::exists(QFile::decodeName(folder.path())));
}

TEST_F(KeptFolderTest, CopiesAFileThatIsAsLongAsItHasToBe)
{
    const QByteArray file = write("a", QByteArray(300'000, 'x'));
    for (const qint64 size : {299'999, 300'000, 300'001}) {
        FileDescriptor to(::open(path("b").constData(), O_WRONLY | O_CREAT | O_TRUNC, 0600));
        EXPECT_EQ(KeptFolder::copy(file, size, to), size == 300'000);
    }
}

TEST_F(KeptFolderTest, LiesWhereTheEnvironmentSays)
{
    const QByteArray before = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", "/data");
    EXPECT_EQ(KeptFolder::environmentPath(), "/data/corvane/kept");
    qputenv("XDG_DATA_HOME", "relative");
    EXPECT_EQ(KeptFolder::environmentPath(), qgetenv("HOME") + "/.local/share/corvane/kept");
    qputenv("XDG_DATA_HOME", before);
}

} // namespace
} // namespace corvane
