#pragma once

#include "platform/desktop/screens.h"

namespace corvane {

class Pointer;

/// Finds the screen that the shelf appears on, and measures its notch. Both references must outlive
/// it. Main thread only.
class ScreenLocator {
public:
    struct Notch {
        /// Height of the band in points, 0 without a notch.
        double inset = 0;
        /// Width of the cut-out in points, 0 where it is not known.
        double width = 0;

        friend bool operator==(const Notch &, const Notch &) = default;
    };

    ScreenLocator(const Screens &screens, const Pointer &pointer);

    /// The screen under the pointer, else the main screen; null when no screen is attached. With
    /// several screens the window system is asked for the pointer.
    ScreenPointer activeScreen() const;
    /// The notch of a screen; all 0 for null and for a screen without one.
    static Notch notch(const ScreenPointer &screen);

private:
    const Screens &m_screens;
    const Pointer &m_pointer;
};

} // namespace corvane
