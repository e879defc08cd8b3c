#pragma once

#include <QtGlobal>

namespace corvane {

/// The desktop-wide pasteboard that a drag carries its contents on.
class DragPasteboard {
public:
    virtual ~DragPasteboard() = default;

    /// Grows each time another program starts to drag contents. Our own drags do not count: they
    /// are known anyway. Costs no more than reading a number.
    virtual qint64 changeCount() const = 0;
};

} // namespace corvane
