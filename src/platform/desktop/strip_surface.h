#pragma once

#include <memory>

class QRect;
class QWindow;

namespace corvane {

struct Screen;

/// Makes invisible windows for strips at a screen's top edge: above other windows, but below those
/// that fill the screen, in no task list, and never with the keyboard. There is one for each window
/// system that has strips. Main thread only.
class StripSurface {
public:
    virtual ~StripSurface() = default;

    /// A window that is shown until it is hidden, for good, or destroyed. `area` is in points from
    /// the screen's top left. Null where the screen is gone.
    virtual std::unique_ptr<QWindow> show(const Screen &screen, const QRect &area) = 0;
    /// False if the window system says that the pointer enters a window where it last was, even if
    /// it is elsewhere by now. Moves are told truly.
    virtual bool tellsTrulyWhatEnters() const { return true; }
};

} // namespace corvane
