#pragma once

#include "platform/base/lifetime.h"
#include "platform/desktop/keyboard_focus.h"
#include "platform/desktop/panel_desktop.h"
#include "platform/desktop/panel_window.h"
#include "platform/qt/desktop/key_repeats.h"
#include "platform/qt/desktop/panel_accessible.h"
#include "platform/qt/desktop/panel_canvas.h"
#include "platform/qt/desktop/panel_drop_target.h"
#include "platform/qt/desktop/wheel_steps.h"

#include <memory>
#include <optional>

class QKeyEvent;
class QMouseEvent;
class QWheelEvent;

namespace corvane {

class DragSupport;
class DropSupport;
class MainQueue;
class WorkQueue;

/// A panel with a Qt window of its own. Everything that it is given must outlive it. Without the
/// supports Qt alone handles drops and drags. Large texts of drops are decoded on the work queue if
/// there is one. Main thread only.
class QtPanelWindow : public PanelWindow {
public:
    QtPanelWindow(const PanelDesktop &desktop, MainQueue &queue, DropSupport *dropSupport = nullptr,
                  DragSupport *dragSupport = nullptr, WorkQueue *workQueue = nullptr);
    ~QtPanelWindow() override;

    void setContent(PanelContent *content) override;
    void place(const PanelPlacement &placement) override;
    QRectF frame() const override { return m_frame; }
    QSizeF contentSize() const override { return contentSizeOf(m_frame.size(), m_contentScale); }
    const QScreen *screen() const override;
    bool isVisible() const override { return m_isVisible; }
    void orderFrontRegardless() override;
    void orderOut() override;
    void setIgnoresMouseEvents(bool ignores) override;
    void setBody(const QRectF &rect, const QPainterPath &outline) override;
    void makeKey() override;
    void makeKeyAmongPanels() override;
    void resignKey() override;
    void userWentOn() override;
    void paste() override;
    void setNeedsDisplay(const QRectF &rect) override;
    void accessibleChanged() override { m_accessible.changed(); }
    void announce(const QString &text) override { m_accessible.announce(text); }
    void beginDraggingSession(DragOut drag, DragOutEvents events) override;

    /// The window, for tests of the back end.
    QWindow &window() { return *m_canvas; }

private:
    void paint(QPainter &painter);
    bool handle(QEvent &event);
    bool handleMouse(QMouseEvent &event);
    bool handleKey(QKeyEvent &event);
    void handleWheel(QWheelEvent &event);
    bool handleDrag(QEvent &event);
    bool isOwnDrag(const QEvent &event) const;
    void updateRegions();
    QTransform toDevicePixels() const;
    QPointF middleOfPixel(QPointF position) const;
    QPointF toPanel(QPointF inWindow) const;
    QRect toWindow(const QRectF &inPanel) const;
    /// How far below the window's top edge the panel ends.
    double bottom() const { return m_origin.y() + m_frame.height(); }

    PanelDesktop m_desktop;
    MainQueue &m_queue;
    DragSupport *m_dragSupport;
    PanelContent *m_content = nullptr;
    std::unique_ptr<PanelCanvas> m_canvas;
    PanelDropTarget m_dropTarget;
    PanelAccessible m_accessible;
    WindowNumber m_number = WindowNumber::None;
    QRectF m_frame;
    /// `PanelPlacement::scale`.
    double m_contentScale = 1;
    /// Where the panel's top left is in its window.
    QPoint m_origin;
    bool m_isVisible = false;
    bool m_ignoresMouseEvents = false;
    /// None, until it is set, for the whole panel.
    std::optional<QRectF> m_body;
    QPainterPath m_outline;
    std::optional<QRegion> m_inputRegion;
    std::optional<QRegion> m_boundingRegion;
    /// The region that `m_shapedOutline` and `m_shapedSize` gave. In device pixels.
    QRegion m_shape;
    QPainterPath m_shapedOutline;
    QSize m_shapedSize;
    bool m_isDragging = false;
    KeyRepeats m_repeats;
    WheelSteps m_wheelSteps;
    Lifetime m_lifetime;
};

} // namespace corvane
