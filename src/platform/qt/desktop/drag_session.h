#pragma once

#include "platform/desktop/panel_window.h"

#include <functional>

class QWindow;

namespace corvane {

class DragCarrier;
class DragSupport;

/// Like `DragOutEvents`, but `released` is told what the target promised when the user let go;
/// `None` if the drag was cancelled or let go where nothing takes it.
struct DragSessionEvents {
    std::function<void(DragOperation promised)> released;
    std::function<void(const DragOutEnd &)> ended;
};

/// Drags `drag` out of `window`. Returns when the user has let go; until then an event loop of its
/// own runs. `ended` may be called later. With a support it reports the target's own message about
/// the end; without one what the target said while the drag was over it, and
/// contents that are still being made are not dragged.
///
/// Copy and link are offered, but not move: a file manager would take the file away although its
/// item may stay on the shelf. `window` may be destroyed meanwhile.
void runDragSession(QWindow &window, const DragOut &drag, DragSupport *support,
                    const DragSessionEvents &events);

/// The same, with the drag carried by the carrier. Returns at once, and needs the window only until
/// then.
void carryDrag(QWindow &window, const DragOut &drag, DragCarrier &carrier,
               const DragSessionEvents &events);

} // namespace corvane
