#pragma once

#include "platform/desktop/screens.h"

namespace corvane {

/// Says which screen the user is on: the shelf appears there. Each kind of session has its own way
/// to find that out. Main thread only.
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

    /// None where no screen is attached.
    virtual ScreenPointer activeScreen() const = 0;

    static Notch notch(const ScreenPointer &screen);
};

} // namespace corvane
