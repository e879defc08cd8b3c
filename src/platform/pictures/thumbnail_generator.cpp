#include "platform/pictures/thumbnail_generator.h"

#include <algorithm>
#include <cmath>

namespace corvane {

int ThumbnailRequest::pixels() const
{
    constexpr double largest = 16'384;
    const double side = std::max(size.width(), size.height()) * scale;
    return static_cast<int>(std::clamp(std::round(side), 1.0, largest));
}

} // namespace corvane
