#pragma once

class QMimeData;

namespace corvane {

/// What drags out of our panels need of the window system beyond what Qt does for them. There is
/// one for each window system, where it is needed; it serves all panels. Main thread only.
class DragSupport {
public:
    virtual ~DragSupport() = default;

    /// A drag of our own is about to start with `contents`. Some targets fetch them in ways, and at
    /// times, that Qt's drag does not answer; they are answered with this until the next drag.
    virtual void dragWillBegin(const QMimeData &contents) = 0;
};

} // namespace corvane
