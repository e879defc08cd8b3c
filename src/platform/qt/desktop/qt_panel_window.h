#pragma once

#include "platform/base/lifetime.h"
#include "platform/desktop/keyboard_focus.h"
#include "platform/desktop/panel_desktop.h"
#include "platform/desktop/panel_window.h"
#include "platform/qt/desktop/key_repeats.h"
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

/// A panel on a Qt window of its own. Everything that it is given must outlive it; without the
/// supports drops and drags are what Qt makes of them, and large texts are decoded on the work
/// queue where there is one. Main thread only.
class QtPanelWindow : public PanelWindow {
public:
    QtPanelWindow(const PanelDesktop &desktop, MainQueue &queue, DropSupport *dropSupport = nullptr,
                  DragSupport *dragSupport = nullptr, WorkQueue *workQueue = nullptr);
    ~QtPanelWindow() override;

    void setContent(PanelContent *content) override;
    QRectF frame() const override { return m_frame; }
    void setFrame(const QRectF &frame) override;
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
    void setNeedsDisplay(const QRectF &rect) override;
    void beginDraggingSession(DragOut drag, DragOutEvents events) override;

    /// The window itself, for its back end's tests.
    QWindow &window() { return *m_canvas; }

private:
    void paint(QPainter &painter);
    bool handle(QEvent &event);
    bool handleMouse(QMouseEvent &event);
    bool handleKey(QKeyEvent &event);
    void handleWheel(QWheelEvent &event);
    bool handleDrag(QEvent &event);
    void updateRegions();
    QTransform toDevicePixels() const;
    QPointF middleOfPixel(QPointF position) const;

    PanelDesktop m_desktop;
    MainQueue &m_queue;
    DragSupport *m_dragSupport;
    PanelContent *m_content = nullptr;
    std::unique_ptr<PanelCanvas> m_canvas;
    PanelDropTarget m_dropTarget;
    WindowNumber m_number = WindowNumber::None;
    QRectF m_frame;
    bool m_isVisible = false;
    bool m_ignoresMouseEvents = false;
    /// The whole panel until it is told.
    std::optional<QRectF> m_body;
    QPainterPath m_outline;
    std::optional<QRegion> m_inputRegion;
    std::optional<QRegion> m_boundingRegion;
    /// The region of an outline, and what it was made from. In device pixels.
    QRegion m_shape;
    QPainterPath m_shapedOutline;
    QSize m_shapedSize;
    bool m_isDragging = false;
    KeyRepeats m_repeats;
    WheelSteps m_wheelSteps;
    Lifetime m_lifetime;
};

} // namespace corvane
