#include "platform/system/sealed_memory.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <array>

namespace corvane {

TEST(SealedMemory, IsReadByTheOneWhoGetsIt)
{
    const QByteArray bytes = QByteArray("a\0b\xff", 4).repeated(100'000);
    const FileDescriptor memory = sealed_memory::holding(bytes);
    ASSERT_TRUE(memory.isOpen());
    EXPECT_EQ(sealed_memory::contents(memory.number(), bytes.size()), bytes);
    const FileDescriptor empty = sealed_memory::holding({});
    EXPECT_EQ(sealed_memory::contents(empty.number(), 0), QByteArray());
}

TEST(SealedMemory, MoreThanTheLimitIsNotRead)
{
    const FileDescriptor memory = sealed_memory::holding("abc");
    EXPECT_FALSE(sealed_memory::contents(memory.number(), 2));
}

TEST(SealedMemory, CannotBeChangedAnyMore)
{
    const FileDescriptor memory = sealed_memory::holding("abc");
    EXPECT_LT(::pwrite(memory.number(), "x", 1, 0), 0);
    EXPECT_NE(::ftruncate(memory.number(), 0), 0);
}

TEST(SealedMemory, WhatMayBlockOrChangeIsNotRead)
{
    const FileDescriptor file(::open("/proc/self/exe", O_RDONLY | O_CLOEXEC));
    EXPECT_FALSE(sealed_memory::contents(file.number(), 1'000'000'000));
    std::array<int, 2> ends = {};
    ASSERT_EQ(::pipe(ends.data()), 0);
    const FileDescriptor reading(ends[0]);
    const FileDescriptor writing(ends[1]);
    EXPECT_FALSE(sealed_memory::contents(reading.number(), 1'000'000'000));
    const FileDescriptor open(::memfd_create("open", MFD_CLOEXEC | MFD_ALLOW_SEALING));
    EXPECT_FALSE(sealed_memory::contents(open.number(), 1'000'000'000));
    EXPECT_FALSE(sealed_memory::contents(-1, 1'000'000'000));
}

} // namespace corvane
