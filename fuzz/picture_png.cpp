// PNG files: what the decoder makes of them, whatever it is asked. The sums of their chunks are put
// right, or nearly no change would be looked at.

#include "support/decoder_under_test.h"
#include "support/signature.h"

#include <zlib.h>

namespace {

using namespace std::string_view_literals;

constexpr auto signature = "\x89PNG\r\n\x1a\n"sv;
/// Of a chunk's length, and its sum.
constexpr std::size_t number = 4;
constexpr std::size_t kind = 4;

std::uint32_t numberAt(const std::uint8_t *bytes)
{
    return std::uint32_t{bytes[0]} << 24 | std::uint32_t{bytes[1]} << 16
        | std::uint32_t{bytes[2]} << 8 | bytes[3];
}

void rightSums(std::uint8_t *data, std::size_t size)
{
    std::size_t at = signature.size();
    while (size - at >= number + kind + number) {
        const std::size_t length = numberAt(data + at);
        if (length > size - at - number - kind - number)
            return;
        const std::size_t end = at + number + kind + length;
        const auto sum = ::crc32(0, data + at + number, static_cast<uInt>(kind + length));
        for (std::size_t i = 0; i < number; ++i)
            data[end + i] = static_cast<std::uint8_t>(sum >> (24 - 8 * i));
        at = end + number;
    }
}

} // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size,
                                               std::size_t maximum, unsigned int seed)
{
    size = corvane::fuzz::mutatedBehind(signature, data, size, maximum);
    // Now and then one that is wrong is tried, too.
    if (seed % 16 != 0 && size > signature.size())
        rightSums(data, size);
    return size;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (corvane::fuzz::begins(data, size, signature))
        corvane::fuzz::decode(data, size, corvane::fuzz::Origin::WebAndDisk);
    return 0;
}
