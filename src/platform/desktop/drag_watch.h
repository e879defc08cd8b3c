#pragma once

#include <functional>

namespace corvane {

/// Notices when the user drags something with another program's contents, anywhere on the desktop,
/// and when that is over. Each kind of session has its own way to find that out. Main thread only.
class DragWatch {
public:
    virtual ~DragWatch() = default;

    /// A drag that began before this is not seen. Once, after both callbacks are set.
    virtual void start() = 0;
    /// May be called again. In the middle of a drag its end is never reported.
    virtual void stop() = 0;

    /// Each may be left empty, and may destroy the watch.
    std::function<void()> onDragBegan;
    std::function<void()> onDragEnded;
};

} // namespace corvane
