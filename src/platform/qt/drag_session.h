#pragma once

#include "platform/panel_events.h"

class QWindow;

namespace corvane {

class DragSupport;
struct DragOut;

/// Drags `drag` out of `window` until the user lets go, in an event loop of its own, and gives what
/// the target did. Copy and link are offered, never a move: a file manager would take the file away
/// from under an item that may stay. `window` may be destroyed meanwhile.
DragOperation runDragSession(QWindow &window, const DragOut &drag, DragSupport *support);

} // namespace corvane
