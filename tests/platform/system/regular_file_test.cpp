#include "platform/system/regular_file.h"

#include <QFile>
#include <QTemporaryDir>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace corvane {
namespace {

struct RegularFileTest : testing::Test {
    QTemporaryDir folder;

    QByteArray pathOf(const char *name) const
    {
        return QFile::encodeName(folder.path()) + '/' + name;
    }
    /// The native path of a file with these contents.
    QByteArray write(const char *name, const QByteArray &data) const
    {
        QFile file(QString::fromLatin1(pathOf(name)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(data);
        return pathOf(name);
    }
};

} // namespace

TEST_F(RegularFileTest, AsManyBytesAsTheLimitAreTakenAndOneMoreIsTooMany)
{
    const QByteArray path = write("a", "12345");
    EXPECT_EQ(regular_file::contents(path, 5), QByteArray("12345"));
    EXPECT_EQ(regular_file::contents(path, 4), std::nullopt);
}

TEST_F(RegularFileTest, AnEmptyFileHasContents)
{
    EXPECT_EQ(regular_file::contents(write("a", ""), 5), QByteArray());
}

TEST_F(RegularFileTest, AFileThatIsLongerThanItTellsIsStillBounded)
{
    // The kernel tells a size of 0 for it.
    EXPECT_EQ(regular_file::contents("/proc/self/maps", 10), std::nullopt);
    EXPECT_EQ(regular_file::beginning("/proc/self/maps", 10)->size(), 10);
}

TEST_F(RegularFileTest, TheBeginningOfAShortFileIsAllOfIt)
{
    const QByteArray path = write("a", "12345");
    EXPECT_EQ(regular_file::beginning(path, 3), QByteArray("123"));
    EXPECT_EQ(regular_file::beginning(path, 100), QByteArray("12345"));
}

TEST_F(RegularFileTest, APipeThatNobodyWritesToIsNotWaitedFor)
{
    const QByteArray path = pathOf("pipe");
    ASSERT_EQ(::mkfifo(path.constData(), S_IRWXU), 0);
    QFile file;
    EXPECT_FALSE(regular_file::open(path).isOpen());
    EXPECT_FALSE(regular_file::open(file, path));
    EXPECT_EQ(regular_file::contents(path, 5), std::nullopt);
    EXPECT_EQ(regular_file::beginning(path, 5), std::nullopt);
}

TEST_F(RegularFileTest, AFolderADeviceAndNothingAreNoFiles)
{
    for (const QByteArray &path :
         {pathOf("."), QByteArray("/dev/zero"), pathOf("none"), QByteArray()})
        EXPECT_EQ(regular_file::beginning(path, 5), std::nullopt) << path.constData();
}

TEST_F(RegularFileTest, AZeroByteDoesNotEndThePath)
{
    const QByteArray path = write("a", "12345") + '\0' + ".png";
    EXPECT_EQ(regular_file::contents(path, 5), std::nullopt);
}

TEST_F(RegularFileTest, ANameThatIsNoTextIsOpened)
{
    const QByteArray path = pathOf("\xff\xfe");
    const FileDescriptor file(::creat(path.constData(), S_IRWXU));
    ASSERT_TRUE(file.write("bytes"));
    EXPECT_EQ(regular_file::contents(path, 5), QByteArray("bytes"));
    // The folder's own clean-up goes by texts.
    ::unlink(path.constData());
}

TEST(FileDescriptorTest, AFullDiskIsTold)
{
    FileDescriptor file(::open("/dev/full", O_WRONLY | O_CLOEXEC));
    EXPECT_FALSE(file.write("bytes"));
}

TEST(FileDescriptorTest, IsClosedOnceByItsLastOwner)
{
    FileDescriptor first(::open("/dev/null", O_WRONLY | O_CLOEXEC));
    const int number = first.number();
    {
        const FileDescriptor second = std::move(first);
        EXPECT_EQ(second.number(), number);
        EXPECT_NE(::fcntl(number, F_GETFD), -1);
    }
    EXPECT_EQ(::fcntl(number, F_GETFD), -1);
}

} // namespace corvane
