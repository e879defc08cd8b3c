#pragma once

#include <QBackingStore>
#include <QRegion>
#include <QWindow>

#include <functional>

class QPainter;

namespace corvane {

/// The bare window of a panel with its pixels; no widget, which would cost memory and a second
/// layer of events.
///
/// Made without flags and without a platform window: both are up to the session.
///
/// Repaints are gathered until control is back in the event loop, then done at once, ahead of
/// everything else that waits there.
class PanelCanvas : public QWindow {
public:
    /// Paints into a painter in Qt's coordinates that is clipped to what needs it.
    using Paint = std::function<void(QPainter &)>;
    /// Handles an event of the window; false leaves it to Qt.
    using Handle = std::function<bool(QEvent &)>;

    PanelCanvas(Paint paint, Handle handle);

    /// Asks for a repaint of part of the window; kept until it is shown.
    void repaintSoon(const QRegion &region);
    /// The size to paint at from now on, which the window system may report later.
    void setCanvasSize(QSize size);
    /// Calls nobody any more.
    void forgetOwner();

protected:
    bool event(QEvent *event) override;

private:
    void exposed(const QRegion &region);
    void repaint();
    bool prepareStore();

    Paint m_paint;
    Handle m_handle;
    QBackingStore m_store;
    QSize m_size;
    double m_storeScale = 0;
    QRegion m_dirty;
    bool m_isRepaintDue = false;
    bool m_hasOwner = true;
};

} // namespace corvane
