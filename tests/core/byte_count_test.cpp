#include "core/byte_count.h"

#include <gtest/gtest.h>

#include <limits>
#include <utility>
#include <vector>

namespace corvane {
namespace {

TEST(ByteCount, IsShownInDecimalUnits)
{
    const std::vector<std::pair<qint64, const char *>> counts = {
        {0, "0 bytes"},
        {1, "1 byte"},
        {512, "512 bytes"},
        {999, "999 bytes"},
        {1'000, "1 KB"},
        {1'499, "1 KB"},
        {1'500, "2 KB"},
        {2'048, "2 KB"},
        {999'499, "999 KB"},
        {999'500, "1 MB"},
        {1'000'000, "1 MB"},
        {1'049'999, "1 MB"},
        {1'050'000, "1.1 MB"},
        {1'400'000, "1.4 MB"},
        {12'000'000, "12 MB"},
        {999'949'999, "999.9 MB"},
        {999'950'000, "1 GB"},
        {3'250'000'000, "3.25 GB"},
        {3'204'000'000, "3.2 GB"},
        {1'010'000'000, "1.01 GB"},
        {2'000'000'000'000, "2 TB"},
        {std::numeric_limits<qint64>::max(), "9.22 EB"},
    };
    for (const auto &[bytes, text] : counts)
        EXPECT_EQ(formatByteCount(bytes), QString::fromLatin1(text)) << bytes;
}

} // namespace
} // namespace corvane
