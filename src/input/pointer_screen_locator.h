#pragma once

#include "platform/desktop/screen_locator.h"

namespace corvane {

class Pointer;

/// Where the desktop tells where the pointer is, that is the screen that the user is on. Both
/// references must outlive it. Main thread only.
class PointerScreenLocator : public ScreenLocator {
public:
    PointerScreenLocator(const Screens &screens, const Pointer &pointer);

    /// The screen under the pointer, else the main screen, which may be none.
    ScreenPointer activeScreen() const override;

private:
    const Screens &m_screens;
    const Pointer &m_pointer;
};

} // namespace corvane
