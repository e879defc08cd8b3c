#pragma once

#include "platform/desktop/panel_events.h"
#include "platform/pasteboard/pasteboard_form.h"
#include "platform/pictures/image.h"

#include <QPoint>

#include <functional>
#include <optional>

class QWindow;

namespace corvane {

struct DragOutEnd;

/// Carries drags out of our panels in place of Qt, on window systems where Qt does not tell enough
/// of them. There is one for each window system that needs it; it serves all panels. Main thread
/// only.
class DragCarrier {
public:
    using DragId = int;

    struct Load {
        PasteboardForms forms;
        /// Forms that are not final tell only what is offered: requests wait for `formsAreReady`,
        /// for a bounded time.
        bool areFinal = true;
        Image image;
        /// The point of the image that the pointer holds, in points from its top left.
        QPoint hotSpot;
    };
    /// Both are called exactly once, in this order, perhaps before `carry` returns.
    struct Events {
        /// The user let go, or gave up; with what the target promised then.
        std::function<void(DragOperation promised)> released;
        std::function<void(const DragOutEnd &)> ended;
    };

    virtual ~DragCarrier() = default;

    /// Starts a drag that the latest press in the window allows. Copies are offered.
    virtual DragId carry(QWindow &window, Load load, Events events) = 0;
    /// The final forms of a drag; none if they could not be made.
    virtual void formsAreReady(DragId drag, std::optional<PasteboardForms> forms) = 0;
    /// Whether a drag was begun that the user has not let go yet. Whatever is dragged over our
    /// windows is that one.
    virtual bool isCarrying() const = 0;
};

} // namespace corvane
