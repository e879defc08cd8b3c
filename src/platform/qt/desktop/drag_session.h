#pragma once

#include "platform/desktop/panel_window.h"

#include <functional>

class QWindow;

namespace corvane {

class DragSupport;

/// As `DragOutEvents`, but knows what the target promised when the user let go: none where the drag
/// came to nothing.
struct DragSessionEvents {
    std::function<void(DragOperation promised)> released;
    std::function<void(const DragOutEnd &)> ended;
};

/// Drags `drag` out of `window`. Returns when the user has let go; until then an event loop of its
/// own runs. How it ended may be told later, by whoever supports it; without support by what the
/// target said while the drag was over it. Copy and link are offered, never a move: a file manager
/// would take the file away from under an item that may stay. `window` may be destroyed meanwhile.
void runDragSession(QWindow &window, const DragOut &drag, DragSupport *support,
                    const DragSessionEvents &events);

} // namespace corvane
