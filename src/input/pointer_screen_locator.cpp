#include "input/pointer_screen_locator.h"

#include "platform/base/geometry.h"
#include "platform/reports/pointer.h"

namespace corvane {

PointerScreenLocator::PointerScreenLocator(const Screens &screens, const Pointer &pointer)
    : m_screens(screens)
    , m_pointer(pointer)
{
}

ScreenPointer PointerScreenLocator::activeScreen() const
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

} // namespace corvane
