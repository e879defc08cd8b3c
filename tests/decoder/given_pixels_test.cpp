#include "decoder/given_pixels.h"

#include <QList>

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <thread>
#include <utility>
#include <vector>

namespace corvane {
namespace {

/// A program that takes what it is given bit by bit.
struct GivenPixelsTest : testing::Test {
    GivenPixelsTest()
    {
        std::array<int, 2> ends = {-1, -1};
        EXPECT_EQ(::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()), 0);
        ours = FileDescriptor(ends[0]);
        theirs = FileDescriptor(ends[1]);
    }

    static QImage picture(int height)
    {
        QImage image(1'024, height, QImage::Format_RGB32);
        image.fill(qRgb(1, 2, 3));
        return image;
    }
    /// Of the memory from there on.
    static qint64 bytesInMemory(const uchar *begin, qint64 bytes)
    {
        const auto page = static_cast<std::uintptr_t>(::sysconf(_SC_PAGESIZE));
        const auto address = reinterpret_cast<std::uintptr_t>(begin) / page * page;
        std::vector<unsigned char> isThere(static_cast<std::size_t>(bytes) / page);
        EXPECT_EQ(
            ::mincore(reinterpret_cast<void *>(address), isThere.size() * page, isThere.data()), 0);
        return std::ranges::count_if(isThere, [](unsigned char there) { return (there & 1) != 0; })
            * static_cast<qint64>(page);
    }
    bool take(qint64 bytes) const
    {
        std::vector<char> some(65'536);
        while (bytes > 0) {
            const auto most = std::min<qint64>(bytes, qint64(some.size()));
            const ssize_t count = ::read(ours.number(), some.data(), std::size_t(most));
            if (count <= 0)
                return false;
            bytes -= count;
        }
        return true;
    }

    FileDescriptor ours;
    FileDescriptor theirs;
};

TEST_F(GivenPixelsTest, OfALargePictureWhatIsWrittenIsNotHeldTwice)
{
    constexpr int pieces = 5;
    const QImage image = picture(pieces * 1'024);
    const qint64 bytes = image.sizeInBytes();
    ASSERT_EQ(bytes, pieces * given_pixels::piece);
    const uchar *const pixels = image.constBits();
    ASSERT_GE(bytesInMemory(pixels, bytes), bytes - given_pixels::piece);
    bool isWritten = false;
    std::thread writer([&] { isWritten = given_pixels::write(theirs, image, bytes); });
    // Something of the third piece is only there once the first two are done with.
    EXPECT_TRUE(take(2 * given_pixels::piece + 1));
    // Pages in which a piece begins or ends.
    constexpr qint64 edges = 32'768;
    EXPECT_LE(bytesInMemory(pixels, 2 * given_pixels::piece), edges);
    EXPECT_TRUE(take(bytes - 2 * given_pixels::piece - 1));
    writer.join();
    EXPECT_TRUE(isWritten);
    EXPECT_LE(bytesInMemory(pixels, bytes), edges);
}

TEST_F(GivenPixelsTest, WhatOthersStillNeedStays)
{
    const QImage image = picture(2 * 1'024);
    const QList<QImage> others{image};
    const qint64 bytes = image.sizeInBytes();
    std::thread reader([&] { EXPECT_TRUE(take(bytes)); });
    EXPECT_TRUE(given_pixels::write(theirs, image, bytes));
    reader.join();
    EXPECT_EQ(others.first(), picture(2 * 1'024)) << "frames are made of the one before";
}

TEST_F(GivenPixelsTest, ASmallPictureKeepsItsPixels)
{
    const QImage image = picture(16);
    std::thread reader([&] { EXPECT_TRUE(take(image.sizeInBytes())); });
    EXPECT_TRUE(given_pixels::write(theirs, image, image.sizeInBytes()));
    reader.join();
    EXPECT_EQ(image, picture(16));
}

} // namespace
} // namespace corvane
