#include "decoder/picture_reader.h"
#include "decoder/tiff_as_stored.h"

#include <QBuffer>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace corvane {
namespace {

/// A file of which only the beginning can be read.
class BrokenFile : public QBuffer {
protected:
    qint64 readData(char *data, qint64 maximum) override
    {
        constexpr qint64 readable = 8;
        const qint64 rest = readable - pos();
        return rest > 0 ? QBuffer::readData(data, std::min(rest, maximum)) : -1;
    }
};

TEST(TiffAsStoredTest, TellsTheEndAsAFileDoes)
{
    QBuffer file;
    file.setData(QByteArray("II*\0\10\0\0\0\0\0", 10));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    TiffAsStored presented(file);
    EXPECT_EQ(presented.readAll(), file.data());
    std::array<char, 4> more{};
    EXPECT_EQ(presented.read(more.data(), more.size()), 0);
    EXPECT_TRUE(presented.seek(100));
    EXPECT_EQ(presented.read(more.data(), more.size()), 0);
}

TEST(TiffAsStoredTest, TellsTheEndWhereReadingFails)
{
    BrokenFile file;
    file.setData(QByteArray("II*\0\10\0\0\0\0\0", 10));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
    TiffAsStored presented(file);
    std::array<char, 10> read{};
    EXPECT_EQ(presented.read(read.data(), read.size()), 8);
    EXPECT_EQ(presented.read(read.data(), read.size()), 0);
}

TEST(TiffAsStoredTest, NoReaderIsToldThatReadingFails)
{
    BrokenFile file;
    file.setData(QByteArray("II*\0\10\0\0\0\0\0", 10));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
    PictureReader picture;
    ASSERT_TRUE(picture.open(file));
    QIODevice &presented = *picture.reader().device();
    std::array<char, 4> read{};
    EXPECT_TRUE(presented.seek(8));
    EXPECT_EQ(presented.read(read.data(), read.size()), 0);
    EXPECT_FALSE(picture.read().has_value());
}

} // namespace
} // namespace corvane
