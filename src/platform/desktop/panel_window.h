#pragma once

#include "platform/desktop/accessible_node.h"
#include "platform/desktop/panel_events.h"
#include "platform/desktop/panel_placement.h"
#include "platform/pasteboard/pasteboard_writer.h"
#include "platform/pictures/image.h"

#include <QList>
#include <QPainterPath>
#include <QRectF>
#include <QStringList>
#include <QUrl>

#include <functional>
#include <optional>

class QPainter;
class QScreen;

namespace corvane {

/// The content of a panel: paints it and handles its events. All calls come on the main thread.
class PanelContent {
public:
    virtual ~PanelContent() = default;

    /// Paints the panel, which is `size` points large. The painter works in points, origin at the
    /// bottom left, y upward; `scale` is pixels per point. What is not painted is transparent.
    /// These points, and those of events and of everything in the panel's coordinates, are the
    /// content's own (`PanelPlacement::scale`).
    virtual void paint(QPainter &painter, QSizeF size, double scale) = 0;

    virtual void mouseDown(const MouseEvent &event) = 0;
    virtual void mouseDragged(const MouseEvent &event) = 0;
    virtual void mouseUp(const MouseEvent &event) = 0;
    virtual void mouseEntered(const MouseEvent &event) = 0;
    virtual void mouseMoved(const MouseEvent &event) = 0;
    virtual void mouseExited() = 0;
    virtual void scrollWheel(const ScrollEvent &event) = 0;
    /// False if the key is not handled.
    virtual bool keyDown(const KeyEvent &event) = 0;

    virtual DragOperation draggingEntered(const DraggingInfo &info) = 0;
    virtual DragOperation draggingUpdated(const DraggingInfo &info) = 0;
    virtual void draggingExited() = 0;
    /// Whether the answer to a drag that offers these types depends on the addresses it carries. If
    /// so they are fetched before `draggingEntered`, which cannot read other contents yet.
    virtual bool needsAddresses(const QStringList & /*types*/) const { return false; }
    /// The drag was dropped here, and its contents are being fetched, which may take long.
    /// `performDragOperation` follows exactly once when they are here, perhaps with none; other
    /// drags may come and go between.
    virtual void dropIsAwaited() { }
    /// The place where the source of an awaited drop may write a file. `name` comes from the source
    /// and is not trusted. None if there is no such place.
    virtual std::optional<QUrl> placeForPromisedFile(const QString & /*name*/)
    {
        return std::nullopt;
    }
    virtual bool performDragOperation(const DraggingInfo &info) = 0;
    /// Called after a drop or an exit: the drag is over for this panel.
    virtual void draggingEnded() = 0;
    /// Whether the clipboard's contents may be pasted here now. They then come as a drop does:
    /// `dropIsAwaited` if they have to be waited for, and `performDragOperation`.
    virtual bool takesPaste() const { return false; }
    /// The panel no longer has the keyboard.
    virtual void keyboardLost() { }

    /// What is on the panel, for assistive technologies; asked for only while one is in use. Tell
    /// the panel when it changes (`PanelWindow::accessibleChanged`).
    virtual AccessibleNode accessible() const { return {}; }
    /// A user of an assistive technology wants an action of the thing with that key. Either may be
    /// gone meanwhile.
    virtual void perform(const QString & /*key*/, const QString & /*action*/) { }
};

/// What is dragged out of a panel.
struct DragOut {
    using Ready = std::function<void(std::optional<PasteboardContents>)>;

    PasteboardContents contents;
    /// The picture under the pointer and the point of it that the pointer holds, in points from its
    /// bottom left.
    Image image;
    QPointF hotSpot;
    /// Set if some of `contents` are still being made. They then only tell what is offered: as many
    /// writers, of the same kinds and in the same order, as the final ones.
    ///
    /// Called once, as the drag begins. `ready` must then be called once, on the main thread, now
    /// or later: with the final contents, or with none if there will be none. Targets that ask
    /// earlier wait for that, and are refused after a while.
    std::function<void(Ready ready)> whenReady = {};
};

/// How a drag-out ended, by what the target said at the end and by which contents it got.
struct DragOutEnd {
    DragOperation operation = DragOperation::None;
    /// The places of the writers whose contents the target has, ascending. Empty if `operation` is
    /// `None`.
    QList<qsizetype> taken;
    /// Whether it was dropped on a target that had accepted it, whether or not that took anything.
    bool wasDropped = false;
};

/// Both are called exactly once, in this order, perhaps before `beginDraggingSession` returns: a
/// drag may run an event loop of its own.
struct DragOutEvents {
    /// The user let go, or gave up. What becomes of the contents is not known yet.
    std::function<void()> released;
    std::function<void(const DragOutEnd &)> ended;
};

/// A borderless window that floats above everything, on every workspace and over full-screen
/// windows, in no task list, and takes no focus when it appears. Made hidden.
class PanelWindow {
public:
    virtual ~PanelWindow() = default;

    /// The content must outlive the panel, or be removed with null before.
    virtual void setContent(PanelContent *content) = 0;

    virtual void place(const PanelPlacement &placement) = 0;
    /// `frameOf` the last placement, as it was at that moment: the window system may not tell where
    /// a window really is. Empty before the first.
    virtual QRectF frame() const = 0;
    /// Its size in its content's own points.
    virtual QSizeF contentSize() const = 0;
    /// The screen that it is on, or will appear on; null when it is on none.
    virtual const QScreen *screen() const = 0;

    virtual bool isVisible() const = 0;
    /// Shows the panel above everything, whichever program is active, without taking the focus.
    virtual void orderFrontRegardless() = 0;
    /// Hides it, and gives the keyboard back to the window that had it.
    virtual void orderOut() = 0;

    /// While set, clicks go to the windows below.
    virtual void setIgnoresMouseEvents(bool ignores) = 0;
    /// The part that takes clicks, and the outline that the panel is cut to where the desktop
    /// cannot blend windows; both in the panel's coordinates.
    virtual void setBody(const QRectF &rect, const QPainterPath &outline) = 0;

    /// Takes the keyboard. Only for a user's click or key that asks for it: a window must not take
    /// the keyboard on its own.
    virtual void makeKey() = 0;
    /// The same, but not from a window that is no panel: for changes that the user did not cause
    /// just now.
    virtual void makeKeyAmongPanels() = 0;
    /// Gives the keyboard back to the window that had it, and stays on screen.
    virtual void resignKey() = 0;
    /// The user clicked in another program, which is about to get the keyboard. Until the panel is
    /// shown again, hiding it does not move the keyboard. If what was clicked takes no keyboard,
    /// the panel gives it back, as in `resignKey`.
    virtual void userWentOn() = 0;
    /// Hands what is on the clipboard to the content, as something that was dropped there, if the
    /// content takes it (`PanelContent::takesPaste`).
    virtual void paste() = 0;

    /// Asks for a repaint of part of the panel, in its coordinates.
    virtual void setNeedsDisplay(const QRectF &rect) = 0;

    /// To be called when the content's `accessible` may have another answer. Costs nothing while no
    /// assistive technology is in use.
    virtual void accessibleChanged() = 0;
    /// Has screen readers say a text at once, wherever the keyboard is.
    virtual void announce(const QString &text) = 0;

    /// Starts a drag that offers copy and link; the button must be down. The contents are fixed at
    /// this moment. Another drag may begin after `released`, while this one's target is still busy.
    ///
    /// When the user lets go, the keyboard goes back to the window that had it before the press,
    /// without waiting for the target. If that was a panel and another program takes the drop, it
    /// goes to the window that had it before the panels, because the user goes on there.
    virtual void beginDraggingSession(DragOut drag, DragOutEvents events) = 0;
};

} // namespace corvane
