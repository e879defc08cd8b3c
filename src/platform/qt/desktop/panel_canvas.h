#pragma once

#include <QBackingStore>
#include <QRegion>
#include <QWindow>

#include <functional>

class QAccessibleInterface;
class QPainter;

namespace corvane {

/// A panel's window and its pixels. Not a widget, which would take more memory and handle events a
/// second time.
///
/// Made without window flags and without a platform window; `PanelSurface::adopt` gives it both.
///
/// Requested repaints are done together when control returns to the event loop, before other posted
/// events.
class PanelCanvas : public QWindow {
public:
    /// Paints the window. The painter is in Qt's coordinates, y downward, and clipped to what has
    /// to be painted.
    using Paint = std::function<void(QPainter &)>;
    /// Handles an event of the window; if false, Qt handles it.
    using Handle = std::function<bool(QEvent &)>;

    PanelCanvas(Paint paint, Handle handle);

    /// Requests a repaint of part of the window. While it is hidden the request is kept.
    void repaintSoon(const QRegion &region);
    /// Sets the size to paint at, in points; the window system may report it later.
    void setCanvasSize(QSize size);
    /// From now on neither `Paint` nor `Handle` is called: their owner is being destroyed.
    void forgetOwner();

    /// Makes what Qt's accessibility is told of the panel; unset for nothing. Called at most once.
    std::function<QAccessibleInterface *()> makeAccessible;
    /// None while it is hidden.
    QAccessibleInterface *accessibleRoot() const override;

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
