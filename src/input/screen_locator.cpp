#include "input/screen_locator.h"

#include "platform/base/geometry.h"
#include "platform/reports/pointer.h"

#include <algorithm>

namespace corvane {

ScreenLocator::ScreenLocator(const Screens &screens, const Pointer &pointer)
    : m_screens(screens)
    , m_pointer(pointer)
{
}

ScreenPointer ScreenLocator::activeScreen() const
{
    const auto screens = m_screens.screens();
    // Asking for the pointer waits for the window system, and the shelf is laid out anew for each
    // of ten thousand thumbnails.
    if (screens.size() == 1)
        return screens.front();
    if (const auto location = m_pointer.location()) {
        for (const ScreenPointer &screen : screens) {
            if (contains(screen->frame, *location))
                return screen;
        }
    }
    return m_screens.mainScreen();
}

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
