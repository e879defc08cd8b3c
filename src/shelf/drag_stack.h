#pragma once

#include "platform/pictures/image.h"

#include <vector>

namespace corvane {

struct Theme;

namespace drag_stack {

/// Further cards would be covered by these.
constexpr std::size_t maximumCards = 3;

/// The drag picture of one item: its card, whose tile is translucent, on a dark ground like the
/// shelf's, so that it is seen over white windows, too.
Image onGround(const Image &card);
/// The drag picture of several items: up to `maximumCards` cards, of `side` points each and the
/// front one first, fanned on each other, with `count` in a badge. The picture is square and larger
/// than a card; the front card is in its middle. `cards` is not empty; further ones are left out.
Image image(const std::vector<Image> &cards, qsizetype count, double side, const Theme &theme,
            double scale);

} // namespace drag_stack
} // namespace corvane
