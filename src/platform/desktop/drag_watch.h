#pragma once

#include <functional>

namespace corvane {

/// How a watch knows that a drag is over.
enum class DragEnd {
    Seen,
    /// The end could not be seen, and nothing was heard of the drag for a while; it may still go
    /// on.
    Assumed,
};

/// Notices when the user drags something with another program's contents, anywhere on the desktop,
/// and when that is over. Each kind of session implements it in its own way. Main thread only.
///
/// If the end cannot be seen the watch assumes one after some time. If the drag then comes over a
/// panel, it was not over: its end is reported once more. A drag that begins before that time is
/// over is told of, too, so that two beginnings may have one end.
class DragWatch {
public:
    virtual ~DragWatch() = default;

    /// Starts watching; a drag that is already going on is not noticed. To be called once, after
    /// both callbacks are set.
    virtual void start() = 0;
    /// Stops watching; may be called several times. If a drag is going on, its end is not reported.
    virtual void stop() = 0;

    /// To be called when a drag of our own has begun and when it is over; the callbacks are not
    /// called for those.
    virtual void ownDrag(bool isUnderWay) = 0;
    /// To be called when another program's drag has come over a panel, and when it has left it or
    /// was dropped there. While it is over a panel no end is assumed.
    virtual void overPanel(bool isOver) = 0;

    /// Both may be empty, and may destroy the watch.
    std::function<void()> onDragBegan;
    std::function<void(DragEnd)> onDragEnded;
};

} // namespace corvane
