#include "platform/pictures/picture_memory.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>

namespace corvane {
namespace {

TEST(PictureMemoryTest, IsReadAsItWasWritten)
{
    const QByteArray bytes(10'000, 'x');
    const FileDescriptor memory = picture_memory::of(bytes);
    const uchar *const address = picture_memory::map(memory, bytes.size());
    ASSERT_NE(address, nullptr);
    EXPECT_EQ(std::memcmp(address, bytes.constData(), 10'000), 0);
    picture_memory::unmap(address, bytes.size());
}

TEST(PictureMemoryTest, CannotBeChangedAnyMore)
{
    const FileDescriptor memory = picture_memory::of("bytes");
    EXPECT_EQ(::pwrite(memory.number(), "x", 1, 0), -1);
    EXPECT_EQ(::ftruncate(memory.number(), 0), -1);
}

TEST(PictureMemoryTest, IsSoundAtItsOwnSizeOnly)
{
    const FileDescriptor memory = picture_memory::of("bytes");
    EXPECT_TRUE(picture_memory::isSound(memory, 5));
    EXPECT_FALSE(picture_memory::isSound(memory, 4));
    EXPECT_FALSE(picture_memory::isSound(memory, 6));
    EXPECT_EQ(picture_memory::map(memory, 6), nullptr);
    EXPECT_FALSE(picture_memory::isSound(FileDescriptor(), 0));
}

TEST(PictureMemoryTest, MemoryThatCouldBeShortenedIsNotMapped)
{
    const FileDescriptor open(::memfd_create("open", MFD_CLOEXEC | MFD_ALLOW_SEALING));
    ASSERT_TRUE(open.write("bytes"));
    EXPECT_EQ(picture_memory::map(open, 5), nullptr);
    ASSERT_EQ(::fcntl(open.number(), F_ADD_SEALS, F_SEAL_WRITE), 0);
    EXPECT_EQ(picture_memory::map(open, 5), nullptr) << "it could still be shortened";
    ASSERT_EQ(::fcntl(open.number(), F_ADD_SEALS, F_SEAL_SHRINK), 0);
    const uchar *const address = picture_memory::map(open, 5);
    ASSERT_NE(address, nullptr);
    picture_memory::unmap(address, 5);
}

TEST(PictureMemoryTest, MemoryThatCouldBeChangedIsNotMapped)
{
    const FileDescriptor open(::memfd_create("open", MFD_CLOEXEC | MFD_ALLOW_SEALING));
    ASSERT_TRUE(open.write("bytes"));
    ASSERT_EQ(::fcntl(open.number(), F_ADD_SEALS, F_SEAL_SHRINK | F_SEAL_GROW), 0);
    EXPECT_EQ(picture_memory::map(open, 5), nullptr);
}

TEST(PictureMemoryTest, AFileOfADiskIsNoMemory)
{
    FILE *const file = std::tmpfile();
    std::fputs("bytes", file);
    std::fflush(file);
    EXPECT_FALSE(picture_memory::isSound(FileDescriptor(::dup(::fileno(file))), 5));
    std::fclose(file);
}

} // namespace
} // namespace corvane
