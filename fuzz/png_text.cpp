// The texts of a PNG of any bytes; and those that are added are read again.

#include "platform/freedesktop/thumbnails/png_text.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    namespace png_text = corvane::png_text;
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const auto before = png_text::thumbnailTexts(bytes);
    const QByteArray added = png_text::withTexts(bytes, {{"Thumb::URI", "file:///a"}});
    if (!before) {
        if (added != bytes)
            std::abort();
        return 0;
    }
    const auto after = png_text::thumbnailTexts(added);
    if (!after || after->isEmpty() || after->constFirst().second != "file:///a")
        std::abort();
    return 0;
}
