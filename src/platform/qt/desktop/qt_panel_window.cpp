#include "platform/qt/desktop/qt_panel_window.h"

#include "platform/base/main_queue.h"
#include "platform/desktop/panel_surface.h"
#include "platform/qt/desktop/drag_session.h"
#include "platform/qt/desktop/outline_region.h"
#include "platform/qt/desktop/qt_geometry.h"

#include <QPainter>

#include <utility>

namespace corvane {

QtPanelWindow::QtPanelWindow(PanelSurface &surface, MainQueue &queue, DropSupport *dropSupport,
                             DragSupport *dragSupport, WorkQueue *workQueue)
    : m_surface(surface)
    , m_queue(queue)
    , m_dragSupport(dragSupport)
    , m_canvas(std::make_unique<PanelCanvas>([this](QPainter &painter) { paint(painter); },
                                             [this](QEvent &event) { return handle(event); }))
    , m_dropTarget(*m_canvas, dropSupport, {workQueue, &queue})
{
    m_surface.adopt(*m_canvas);
    m_surface.observeComposited(m_lifetime.guard([this] { updateRegions(); }));
}

QtPanelWindow::~QtPanelWindow()
{
    // What the steps below make others do must not come back to this.
    m_lifetime.restart();
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
        giveKeyboardBack();
    m_canvas->hide();
    m_surface.didHide(*m_canvas);
    if (!userWentOn)
        return;
    // Now would be too early: the window manager may hear of the click after us, and our wish would
    // come after the user's. What was clicked may also be something that takes no keyboard.
    m_queue.asyncAfter(focusDelay, m_lifetime.guard([this] {
        if (!m_isVisible)
            m_surface.giveUnclaimedKeyboardBack();
    }));
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
    m_resignsOnRelease = false;
    if (m_isVisible)
        m_surface.takeKeyboard(*m_canvas);
}

void QtPanelWindow::makeKeyAmongPanels()
{
    if (m_isVisible && m_surface.keyboardHolder() != KeyboardHolder::Other)
        makeKey();
}

void QtPanelWindow::resignKey()
{
    if (m_isVisible)
        giveKeyboardBack();
}

void QtPanelWindow::giveKeyboardBack()
{
    // What a key has closed is not to be repeated in the program behind.
    if (const auto held = std::exchange(m_heldKey, std::nullopt))
        m_surface.swallowRepeats(held->key, held->modifiers);
    m_surface.giveKeyboardBack(*m_canvas);
}

void QtPanelWindow::setNeedsDisplay(const QRectF &rect)
{
    m_canvas->repaintSoon(qt_geometry::flipped(rect, m_frame.height()).toAlignedRect());
}

void QtPanelWindow::beginDraggingSession(DragOut drag, DragOutEvents events)
{
    if (std::exchange(m_isDragging, true)) {
        events.released();
        events.ended({});
        return;
    }
    PanelCanvas *canvas = m_canvas.get();
    const auto released = [this, life = m_lifetime.token(), canvas,
                           tell = std::move(events.released)](DragOperation promised) {
        if (life.isOver()) {
            // Later: one of its events is what we are in.
            canvas->deleteLater();
            return;
        }
        m_isDragging = false;
        letGo(promised);
        tell();
    };
    const auto ended = m_lifetime.guard(std::move(events.ended));
    runDragSession(*canvas, drag, m_dragSupport, {released, ended});
}

void QtPanelWindow::letGo(DragOperation operation)
{
    if (operation == DragOperation::None && m_wasKeyBeforePress)
        return;
    // With the button and a key still down it was Escape that ended the drag. Its repeats are
    // nobody else's. Another button ends a drag, too, and then there is no release to wait for.
    m_resignsOnRelease = operation == DragOperation::None && m_surface.isLeftButtonDown()
        && m_surface.isAnyKeyDown();
    if (!m_resignsOnRelease)
        m_surface.giveKeyboardBack();
}

QTransform QtPanelWindow::toDevicePixels() const
{
    const double scale = m_canvas->devicePixelRatio();
    return QTransform(scale, 0, 0, -scale, 0, m_frame.height() * scale);
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

} // namespace corvane
