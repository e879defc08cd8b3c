#pragma once

#include <functional>

namespace corvane {

/// Notices when the user drags something with another program's contents, anywhere on the desktop,
/// and when that is over. Each kind of session implements it in its own way. Main thread only.
class DragWatch {
public:
    virtual ~DragWatch() = default;

    /// Starts watching; a drag that is already going on is not noticed. To be called once, after
    /// both callbacks are set.
    virtual void start() = 0;
    /// Stops watching; may be called several times. If a drag is going on, its end is not reported.
    virtual void stop() = 0;

    /// Both may be empty, and may destroy the watch.
    std::function<void()> onDragBegan;
    std::function<void()> onDragEnded;
};

} // namespace corvane
