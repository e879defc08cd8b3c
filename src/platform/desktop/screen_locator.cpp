#include "platform/desktop/screen_locator.h"

#include <algorithm>

namespace corvane {

ScreenLocator::Notch ScreenLocator::notch(const ScreenPointer &screen)
{
    // Not "inset <= 0": an inset that is not a number counts as none, too.
    if (!screen || !(screen->safeAreaInsets.top > 0))
        return {};
    const double inset = screen->safeAreaInsets.top;
    const auto &left = screen->auxiliaryTopLeftArea;
    const auto &right = screen->auxiliaryTopRightArea;
    if (!left || !right)
        return {inset, 0};
    const double width = screen->frame.width() - left->width() - right->width();
    return {inset, std::max(width, 0.0)};
}

} // namespace corvane
