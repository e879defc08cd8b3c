#include "platform/system/private_file.h"
#include "platform/system/regular_file.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace corvane {
namespace {

struct PrivateFileTest : testing::Test {
    QTemporaryDir folder;
    QByteArray base = QFile::encodeName(folder.path());

    int entries() const
    {
        return int(QDir(folder.path())
                       .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)
                       .size());
    }
};

unsigned permissionsOf(const QByteArray &path)
{
    struct stat status = {};
    return ::lstat(path.constData(), &status) == 0 ? status.st_mode & ALLPERMS : 0U;
}

} // namespace

TEST_F(PrivateFileTest, WhatIsThereStaysAndNothingIsLeftBehind)
{
    ASSERT_TRUE(private_file::create(base + "/a", "first"));
    EXPECT_FALSE(private_file::create(base + "/a", "second"));
    EXPECT_EQ(regular_file::contents(base + "/a", 10), QByteArray("first"));
    EXPECT_EQ(entries(), 1);
}

TEST_F(PrivateFileTest, ALinkIsNotWrittenThrough)
{
    ASSERT_TRUE(
        QFile::link(QString::fromLatin1(base + "/elsewhere"), QString::fromLatin1(base + "/a")));
    EXPECT_FALSE(private_file::create(base + "/a", "bytes"));
    ASSERT_TRUE(private_file::replace(base, base, "a", "bytes"));
    EXPECT_EQ(regular_file::contents(base + "/a", 10), QByteArray("bytes"));
    EXPECT_FALSE(QFile::exists(QString::fromLatin1(base + "/elsewhere")));
}

TEST_F(PrivateFileTest, AnotherTakesTheFirstOnesPlace)
{
    ASSERT_TRUE(private_file::replace(base, base + "/x/y", "a", "first"));
    ASSERT_TRUE(private_file::replace(base, base + "/x/y", "a", "second"));
    EXPECT_EQ(regular_file::contents(base + "/x/y/a", 10), QByteArray("second"));
}

TEST_F(PrivateFileTest, OnlyTheUserMaySeeIt)
{
    ASSERT_TRUE(private_file::create(base + "/a", "bytes"));
    ASSERT_TRUE(private_file::replace(base, base + "/x/y", "a", "bytes"));
    EXPECT_EQ(permissionsOf(base + "/a"), 0600U);
    EXPECT_EQ(permissionsOf(base + "/x/y/a"), 0600U);
    EXPECT_EQ(permissionsOf(base + "/x/y"), 0700U);
}

TEST_F(PrivateFileTest, ItsLockIsHeldFromTheBeginningAndGoesWithIt)
{
    FileDescriptor made = private_file::createLocked(base + "/a", "bytes");
    ASSERT_TRUE(made.isOpen());
    const auto isFree = [this] {
        const FileDescriptor other = regular_file::open(base + "/a");
        return ::flock(other.number(), LOCK_EX | LOCK_NB) == 0;
    };
    EXPECT_FALSE(isFree());
    made.close();
    EXPECT_TRUE(isFree());
    EXPECT_FALSE(private_file::createLocked(base + "/a", "others").isOpen());
    EXPECT_EQ(regular_file::contents(base + "/a", 10), QByteArray("bytes"));
    EXPECT_EQ(entries(), 1);
}

TEST_F(PrivateFileTest, NoNameIsUsedThatSomebodyCouldForesee)
{
    // What others put there beforehand: the names that process numbers and counts lead to.
    const QByteArray victim = base + "/victim";
    ASSERT_TRUE(private_file::create(victim, "precious"));
    for (int count = 0; count < 100; ++count) {
        const QByteArray name = base + "/.unfinished-" + QByteArray::number(::getpid()) + '-'
            + QByteArray::number(count);
        ASSERT_EQ(::symlink(victim.constData(), name.constData()), 0);
    }
    const int before = entries();
    EXPECT_TRUE(private_file::create(base + "/a", "bytes"));
    EXPECT_TRUE(private_file::replace(base, base, "b", "bytes"));
    EXPECT_EQ(entries(), before + 2) << "they stay as they are";
    EXPECT_EQ(regular_file::contents(victim, 10), QByteArray("precious"));
}

TEST_F(PrivateFileTest, AFolderThatIsNoneMakesItFail)
{
    ASSERT_TRUE(private_file::create(base + "/a", "bytes"));
    EXPECT_FALSE(private_file::replace(base, base + "/a/b", "c", "bytes"));
    EXPECT_FALSE(private_file::create(base + "/none/c", "bytes"));
    EXPECT_EQ(entries(), 1);
}

} // namespace corvane
