#pragma once

#include <functional>

namespace corvane {

/// How a watch knows that a drag is over.
enum class DragEnd {
    Seen,
    /// It could not be seen, and nothing was heard of the drag for a while: it may go on.
    Assumed,
};

/// Notices when the user drags something with another program's contents, anywhere on the desktop,
/// and when that is over. Each kind of session has its own way to find that out. Main thread only.
///
/// Where the end cannot be seen the watch assumes one after a time. A drag that comes over a panel
/// after that goes on after all: its end is reported once more.
class DragWatch {
public:
    virtual ~DragWatch() = default;

    /// Starts watching; a drag that is already going on is not noticed. To be called once, after
    /// both callbacks are set.
    virtual void start() = 0;
    /// Stops watching; may be called several times. If a drag is going on, its end is not reported.
    virtual void stop() = 0;

    /// A drag of our own has begun, or is over. None of those is ever reported.
    virtual void ownDrag(bool isUnderWay) = 0;
    /// A drag of another program has come over a panel, or has left it or was dropped there. As
    /// long as it is there no end of it is assumed.
    virtual void overPanel(bool isOver) = 0;

    /// Each may be left empty, and may destroy the watch.
    std::function<void()> onDragBegan;
    std::function<void(DragEnd)> onDragEnded;
};

} // namespace corvane
