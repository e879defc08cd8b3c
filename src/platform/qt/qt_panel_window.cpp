#include "platform/qt/qt_panel_window.h"

#include "platform/main_queue.h"
#include "platform/panel_surface.h"
#include "platform/qt/drag_session.h"
#include "platform/qt/outline_region.h"
#include "platform/qt/panel_event_translation.h"
#include "platform/qt/qt_geometry.h"

#include <QEnterEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QWheelEvent>

#include <utility>

namespace corvane {

QtPanelWindow::QtPanelWindow(PanelSurface &surface, MainQueue &queue, DropSupport *dropSupport,
                             DragSupport *dragSupport)
    : m_surface(surface)
    , m_queue(queue)
    , m_dragSupport(dragSupport)
    , m_canvas(std::make_unique<PanelCanvas>([this](QPainter &painter) { paint(painter); },
                                             [this](QEvent &event) { return handle(event); }))
    , m_dropTarget(*m_canvas, dropSupport)
{
    m_surface.adopt(*m_canvas);
    m_surface.observeComposited([this, alive = m_alive] {
        if (*alive)
            updateRegions();
    });
}

QtPanelWindow::~QtPanelWindow()
{
    *m_alive = false;
    m_content = nullptr;
    m_dropTarget.setContent(nullptr);
    QtPanelWindow::orderOut();
    // Its drag goes on in Qt, and needs the window that it began in.
    if (m_isDragging)
        m_canvas.release()->forgetOwner();
}

void QtPanelWindow::setContent(PanelContent *content)
{
    m_content = content;
    m_dropTarget.setContent(content);
    setNeedsDisplay({{}, m_frame.size()});
}

void QtPanelWindow::setFrame(const QRectF &frame)
{
    m_frame = frame;
    const QRect geometry = qt_geometry::toQt(frame);
    m_canvas->setCanvasSize(geometry.size());
    m_surface.place(*m_canvas, geometry);
    updateRegions();
}

void QtPanelWindow::orderFrontRegardless()
{
    m_userWentOn = false;
    if (std::exchange(m_isVisible, true)) {
        m_canvas->raise();
        return;
    }
    updateRegions();
    m_surface.willShow(*m_canvas);
    // Before it is mapped: it comes up where it was in the stack.
    m_canvas->raise();
    m_canvas->show();
}

void QtPanelWindow::orderOut()
{
    if (!std::exchange(m_isVisible, false))
        return;
    const bool userWentOn = std::exchange(m_userWentOn, false);
    if (!userWentOn)
        m_surface.giveKeyboardBack(*m_canvas);
    m_canvas->hide();
    m_surface.didHide(*m_canvas);
    if (!userWentOn)
        return;
    // Now would be too early: the window manager may hear of the click after us, and our wish would
    // come after the user's. What was clicked may also be something that takes no keyboard.
    m_queue.asyncAfter(focusDelay, [this, alive = m_alive] {
        if (*alive && !m_isVisible)
            m_surface.giveUnclaimedKeyboardBack();
    });
}

void QtPanelWindow::setIgnoresMouseEvents(bool ignores)
{
    m_ignoresMouseEvents = ignores;
    updateRegions();
}

void QtPanelWindow::setBody(const QRectF &rect, const QPainterPath &outline)
{
    m_body = rect;
    m_outline = outline;
    updateRegions();
}

void QtPanelWindow::makeKey()
{
    if (m_isVisible)
        m_surface.takeKeyboard(*m_canvas);
}

void QtPanelWindow::setNeedsDisplay(const QRectF &rect)
{
    m_canvas->repaintSoon(qt_geometry::flipped(rect, m_frame.height()).toAlignedRect());
}

void QtPanelWindow::beginDraggingSession(DragOut drag, std::function<void(DragOperation)> ended)
{
    if (std::exchange(m_isDragging, true)) {
        ended(DragOperation::None);
        return;
    }
    const auto alive = m_alive;
    PanelCanvas *canvas = m_canvas.get();
    const DragOperation operation = runDragSession(*canvas, drag, m_dragSupport);
    if (!*alive) {
        // Later: one of its events is what we are in.
        canvas->deleteLater();
        return;
    }
    m_isDragging = false;
    ended(operation);
}

QTransform QtPanelWindow::toDevicePixels() const
{
    const double scale = m_canvas->devicePixelRatio();
    return QTransform(scale, 0, 0, -scale, 0, m_frame.height() * scale);
}

/// Qt names a pixel by its upper left corner. Ours is the middle of it, so that the pixels along
/// the panel's edges, one of which is the screen's, lie inside whichever way y goes.
QPointF QtPanelWindow::middleOfPixel(QPointF position) const
{
    const double half = 0.5 / m_canvas->devicePixelRatio();
    return qt_geometry::flipped(position + QPointF(half, half), m_frame.height());
}

void QtPanelWindow::updateRegions()
{
    const QTransform toPixels = toDevicePixels();
    const QRectF body = m_body.value_or(QRectF({}, m_frame.size()));
    const QRegion input = m_ignoresMouseEvents ? QRegion() : toPixels.mapRect(body).toRect();
    if (std::exchange(m_inputRegion, input) != input)
        m_surface.setInputRegion(*m_canvas, input);

    QRegion bounding;
    if (m_body && !m_surface.isComposited()) {
        const QSize pixels = (m_frame.size() * m_canvas->devicePixelRatio()).toSize();
        const QPainterPath outline = toPixels.map(m_outline);
        // Making it looks at every pixel, and most changes of the shelf leave its outline alone.
        if (pixels != m_shapedSize || outline != m_shapedOutline) {
            m_shapedSize = pixels;
            m_shapedOutline = outline;
            m_shape = outlineRegion(outline, pixels);
        }
        bounding = m_shape;
        // An empty region would mean the whole window: a pixel at the edge stands for nothing.
        if (bounding.isEmpty())
            bounding = QRect(0, 0, 1, 1);
    }
    if (std::exchange(m_boundingRegion, bounding) != bounding)
        m_surface.setBoundingRegion(*m_canvas, bounding);
}

void QtPanelWindow::paint(QPainter &painter)
{
    if (!m_content)
        return;
    painter.translate(0, m_frame.height());
    painter.scale(1, -1);
    m_content->paint(painter, m_frame.size(), m_canvas->devicePixelRatio());
}

bool QtPanelWindow::handle(QEvent &event)
{
    if (!m_content)
        return false;
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
        return handleMouse(dynamic_cast<QMouseEvent &>(event));
    case QEvent::Enter: {
        const QPointF position = dynamic_cast<QEnterEvent &>(event).position();
        m_content->mouseEntered({middleOfPixel(position)});
        return true;
    }
    case QEvent::Leave:
        m_content->mouseExited();
        return true;
    case QEvent::Wheel:
        if (const auto scroll = scrollEventFrom(dynamic_cast<QWheelEvent &>(event), m_queue.now()))
            m_content->scrollWheel(*scroll);
        return true;
    case QEvent::KeyPress:
        event.setAccepted(m_content->keyDown(keyEventFrom(dynamic_cast<QKeyEvent &>(event))));
        return true;
    default:
        return handleDrag(event);
    }
}

bool QtPanelWindow::handleMouse(QMouseEvent &event)
{
    const MouseEvent mouse{middleOfPixel(event.position())};
    if (event.type() == QEvent::MouseMove) {
        if (event.buttons().testFlag(Qt::LeftButton))
            m_content->mouseDragged(mouse);
        else
            m_content->mouseMoved(mouse);
        return true;
    }
    if (event.button() != Qt::LeftButton)
        return true;
    // The second press of a double click comes as a press too, before it comes as what it is.
    if (event.type() == QEvent::MouseButtonRelease)
        m_content->mouseUp(mouse);
    else
        m_content->mouseDown(mouse);
    return true;
}

bool QtPanelWindow::handleDrag(QEvent &event)
{
    switch (event.type()) {
    case QEvent::DragEnter:
        m_dropTarget.enter(dynamic_cast<QDragEnterEvent &>(event), m_frame.height());
        return true;
    case QEvent::DragMove:
        m_dropTarget.move(dynamic_cast<QDragMoveEvent &>(event), m_frame.height());
        return true;
    case QEvent::DragLeave:
        m_dropTarget.leave();
        return true;
    case QEvent::Drop:
        m_dropTarget.drop(dynamic_cast<QDropEvent &>(event), m_frame.height());
        return true;
    default:
        return false;
    }
}

} // namespace corvane
