#pragma once

#include "platform/desktop/panel_events.h"
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

/// What a panel shows, and who answers its events. All calls come on the main thread.
class PanelContent {
public:
    virtual ~PanelContent() = default;

    /// Paints the panel, which is `size` points large. The painter works in points, origin at the
    /// bottom left, y upward; `scale` is pixels per point. What is not painted is transparent.
    virtual void paint(QPainter &painter, QSizeF size, double scale) = 0;

    virtual void mouseDown(const MouseEvent &event) = 0;
    virtual void mouseDragged(const MouseEvent &event) = 0;
    virtual void mouseUp(const MouseEvent &event) = 0;
    virtual void mouseEntered(const MouseEvent &event) = 0;
    virtual void mouseMoved(const MouseEvent &event) = 0;
    virtual void mouseExited() = 0;
    virtual void scrollWheel(const ScrollEvent &event) = 0;
    /// False passes the key on.
    virtual bool keyDown(const KeyEvent &event) = 0;

    virtual DragOperation draggingEntered(const DraggingInfo &info) = 0;
    virtual DragOperation draggingUpdated(const DraggingInfo &info) = 0;
    virtual void draggingExited() = 0;
    /// Whether the answer to a drag that offers these types depends on the addresses it carries.
    /// They are fetched before `draggingEntered` then; other contents are not there yet in it.
    virtual bool needsAddresses(const QStringList & /*types*/) const { return false; }
    /// The drag was let go here, and its contents are on their way, which may take long. Followed
    /// by exactly one `performDragOperation` once they are here, perhaps with none; other drags may
    /// come and go between the two.
    virtual void dropIsAwaited() { }
    /// Where a file of that name, a stranger's text, may be written for the drop that is awaited;
    /// none where nowhere.
    virtual std::optional<QUrl> placeForPromisedFile(const QString & /*name*/)
    {
        return std::nullopt;
    }
    virtual bool performDragOperation(const DraggingInfo &info) = 0;
    /// After a drop or an exit: the drag is over as far as this panel is concerned.
    virtual void draggingEnded() = 0;
};

/// What is dragged out of a panel.
struct DragOut {
    using Ready = std::function<void(std::optional<PasteboardContents>)>;

    PasteboardContents contents;
    /// The picture under the pointer and the point of it that the pointer holds, in points from its
    /// bottom left.
    Image image;
    QPointF hotSpot;
    /// Set while some of `contents` are still being made. They then stand for the final ones: as
    /// many writers of the same kinds, in the same order, so that it can be told what is offered.
    /// Called once, as the drag begins, with what is to be called on the main thread, now or later,
    /// once: with the final contents, or with none where there will be none. Targets that ask
    /// before that are answered then, or refused after a while.
    std::function<void(Ready ready)> whenReady = {};
};

/// How a drag-out ended, by what the target said at the end and by what it was given.
struct DragOutEnd {
    DragOperation operation = DragOperation::None;
    /// The places of the writers whose contents the target has, ascending. Nothing without an
    /// operation.
    QList<qsizetype> taken;
    /// It was let go over a target that would have taken it, whatever came of it.
    bool wasDropped = false;
};

/// Each is called exactly once, in this order, perhaps before the call that began the drag returns:
/// a drag may run an event loop of its own.
struct DragOutEvents {
    /// The user let go, or gave up. What becomes of the contents is not known yet.
    std::function<void()> released;
    std::function<void(const DragOutEnd &)> ended;
};

/// A borderless window that floats above everything, on every workspace and over full-screen
/// windows, in no task list, and takes no focus when it appears. Made hidden.
///
/// The frame is what was asked for: the window system may not tell where a window is.
class PanelWindow {
public:
    virtual ~PanelWindow() = default;

    /// The content must outlive the panel, or be taken away with null.
    virtual void setContent(PanelContent *content) = 0;

    /// In global points, origin at the bottom left of the primary display.
    virtual QRectF frame() const = 0;
    virtual void setFrame(const QRectF &frame) = 0;
    /// The screen that it is on, or would come up on; null where that is none.
    virtual const QScreen *screen() const = 0;

    virtual bool isVisible() const = 0;
    /// Shows the panel above everything, whichever program is active, without taking the focus.
    virtual void orderFrontRegardless() = 0;
    /// Hides it, and gives the keyboard back to the window that had it.
    virtual void orderOut() = 0;

    /// While set, clicks go to whatever lies below.
    virtual void setIgnoresMouseEvents(bool ignores) = 0;
    /// The part that takes clicks, and the outline that the panel is cut to where the desktop
    /// cannot blend windows; both in the panel's coordinates.
    virtual void setBody(const QRectF &rect, const QPainterPath &outline) = 0;

    /// Takes the keyboard. Only where the user asked for it, by a click or a key: a window that
    /// takes it by itself is a nuisance.
    virtual void makeKey() = 0;
    /// The same, unless a window that is no panel has the keyboard: for what is no answer to what
    /// the user did just now.
    virtual void makeKeyAmongPanels() = 0;
    /// Gives the keyboard back to the window that had it, and stays on screen.
    virtual void resignKey() = 0;
    /// The user clicked in another program, which is about to get the keyboard: until the panel is
    /// shown again, hiding it takes the keyboard from nobody.
    virtual void userWentOn() = 0;

    /// Asks for a repaint of part of the panel, in its coordinates.
    virtual void setNeedsDisplay(const QRectF &rect) = 0;

    /// Starts a drag that offers copy and link; the button must be down. The contents are fixed at
    /// this moment. Another one may begin once this one was released: a target may take its time.
    ///
    /// Once the user lets go, whatever the target still does, the keyboard is with the window that
    /// had it before the press. Where that was a panel and another program takes the drop, it is
    /// with the window that had it before the panels: whoever has put something there goes on
    /// there.
    virtual void beginDraggingSession(DragOut drag, DragOutEvents events) = 0;
};

} // namespace corvane
