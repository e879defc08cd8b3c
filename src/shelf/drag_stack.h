#pragma once

#include "platform/pictures/image.h"

#include <vector>

namespace corvane {

struct Theme;

namespace drag_stack {

/// More would not be seen.
constexpr std::size_t maximumCards = 3;

/// The picture of several items under the pointer: the cards, of `side` points each and the front
/// one first, lie fanned on each other, with `count` in a badge. It is square and larger than a
/// card, the front card in its middle. `cards` is not empty; what is beyond the maximum is left
/// out.
Image image(const std::vector<Image> &cards, qsizetype count, double side, const Theme &theme,
            double scale);

} // namespace drag_stack
} // namespace corvane
