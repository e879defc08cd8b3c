// Files of the formats that Qt finds out itself (bitmaps, icons, HEIF and others, as far as there
// are plug-ins for them), none of which comes from the web.

#include "support/decoder_under_test.h"
#include "support/signature.h"

#include <array>

namespace {

using namespace std::string_view_literals;

/// These have a fuzzer of their own.
constexpr std::array others
    = {"\x89PNG"sv, "\xff\xd8\xff"sv, "GIF8"sv, "RIFF"sv, "II*\0"sv, "MM\0*"sv, "%PDF"sv};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto isAnother
        = [&](std::string_view signature) { return corvane::fuzz::begins(data, size, signature); };
    const bool isDrawing = std::string_view(reinterpret_cast<const char *>(data), size).find("<svg")
        != std::string_view::npos;
    // The fifth byte on says what it is: AVIF may come from the web.
    const bool isAvif = size > 8 && corvane::fuzz::begins(data + 4, size - 4, "ftypavi");
    if (!isDrawing && std::none_of(others.begin(), others.end(), isAnother))
        corvane::fuzz::decode(data, size,
                              isAvif ? corvane::fuzz::Origin::WebAndDisk
                                     : corvane::fuzz::Origin::DiskAlone);
    return 0;
}
