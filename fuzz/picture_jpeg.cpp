// JPEG files: what the decoder makes of them, whatever it is asked.

#include "support/decoder_under_test.h"
#include "support/signature.h"

namespace {

using namespace std::string_view_literals;

constexpr auto signature = "\xff\xd8\xff"sv;

} // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size,
                                               std::size_t maximum, unsigned int)
{
    return corvane::fuzz::mutatedBehind(signature, data, size, maximum);
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (corvane::fuzz::begins(data, size, signature))
        corvane::fuzz::decode(data, size, corvane::fuzz::Origin::WebAndDisk);
    return 0;
}
