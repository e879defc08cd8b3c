#pragma once

#include "platform/desktop/keyboard.h"
#include "platform/desktop/keys.h"

#include <QPointF>

namespace corvane {

class Pasteboard;

/// Points are in the panel's coordinates, origin at its bottom left.
struct MouseEvent {
    QPointF location;
};

struct KeyEvent {
    /// By its position if the layout has no Latin letters.
    TypedKey key = TypedKey::Unknown;
    Modifiers modifiers;
    bool isRepeat = false;
};

struct ScrollEvent {
    enum class Phase {
        /// The device reports no phases.
        None,
        Changed,
        Ended,
    };

    /// Horizontal, positive towards the left of the contents. One wheel notch is 4.
    double deltaX = 0;
    /// In points from a touchpad; otherwise in wheel steps.
    bool hasPreciseDeltas = false;
    Phase phase = Phase::None;
    /// Seconds on the main queue's clock.
    double time = 0;
};

/// What a drop destination answers and a drag source is told.
enum class DragOperation {
    None,
    Copy,
    Link,
};

/// A drag over the panel.
struct DraggingInfo {
    /// Valid during the call only.
    Pasteboard &pasteboard;
    QPointF location;
    /// The drag started in this process.
    bool isOwn = false;
};

} // namespace corvane
