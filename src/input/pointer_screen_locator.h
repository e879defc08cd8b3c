#pragma once

#include "platform/desktop/screen_locator.h"

namespace corvane {

class Pointer;

/// For desktops that tell where the pointer is: the user is on the screen that it is on. Both
/// references must outlive it. Main thread only.
class PointerScreenLocator : public ScreenLocator {
public:
    PointerScreenLocator(const Screens &screens, const Pointer &pointer);

    /// The screen under the pointer, else the main screen; null when no screen is attached. With
    /// several screens the window system is asked for the pointer.
    ScreenPointer activeScreen() const override;

private:
    const Screens &m_screens;
    const Pointer &m_pointer;
};

} // namespace corvane
