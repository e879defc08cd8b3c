#pragma once

#include "platform/desktop/screens.h"

#include <functional>

namespace corvane {

/// Finds the screen that the user is on, where the shelf appears. Each kind of session implements
/// it in its own way. Main thread only.
class ScreenLocator {
public:
    struct Notch {
        /// Height of the band in points, 0 without a notch.
        double inset = 0;
        /// Width of the cut-out in points, 0 where it is not known.
        double width = 0;

        friend bool operator==(const Notch &, const Notch &) = default;
    };

    virtual ~ScreenLocator() = default;

    /// Null when no screen is attached.
    virtual ScreenPointer activeScreen() const = 0;
    /// Calls `then` once `activeScreen` is where the user is now: at once, or, where the desktop
    /// has to be asked, later and in the order of the calls.
    virtual void locate(const std::function<void()> &then) { then(); }

    /// The notch of a screen; all 0 for null and for a screen without one.
    static Notch notch(const ScreenPointer &screen);
};

} // namespace corvane
