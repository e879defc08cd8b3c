// Drawings (SVG): what the decoder makes of them, whatever it is asked. A drawing may take any
// time, which is bounded from outside; those that repeat what they have, dash it or are made of
// many parts are not tried here, so that a run gets to many.

#include "support/decoder_under_test.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace {

using namespace std::string_view_literals;

bool mayTakeLong(std::string_view drawing)
{
    constexpr std::array words = {"use"sv, "dash"sv, "pattern"sv, "ENTITY"sv};
    constexpr std::size_t longest = 4'096;
    return drawing.size() > longest || std::any_of(words.begin(), words.end(), [&](auto word) {
               return drawing.find(word) != std::string_view::npos;
           });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string_view drawing(reinterpret_cast<const char *>(data), size);
    if (drawing.find("<svg") != std::string_view::npos && !mayTakeLong(drawing))
        corvane::fuzz::decode(data, size, corvane::fuzz::Origin::DiskAlone);
    return 0;
}
