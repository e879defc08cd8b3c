#include "platform/qt/desktop/qt_panel_window.h"

#include "platform/base/main_queue.h"
#include "platform/desktop/clipboard_source.h"
#include "platform/desktop/compositing.h"
#include "platform/desktop/keyboard_loan.h"
#include "platform/desktop/panel_surface.h"
#include "platform/qt/desktop/drag_session.h"
#include "platform/qt/desktop/outline_region.h"
#include "platform/qt/desktop/qt_geometry.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPainter>

#include <utility>

namespace corvane {

QtPanelWindow::QtPanelWindow(const PanelDesktop &desktop, MainQueue &queue,
                             DropSupport *dropSupport, DragSupport *dragSupport,
                             WorkQueue *workQueue)
    : m_desktop(desktop)
    , m_queue(queue)
    , m_dragSupport(dragSupport)
    , m_canvas(std::make_unique<PanelCanvas>([this](QPainter &painter) { paint(painter); },
                                             [this](QEvent &event) { return handle(event); }))
    , m_dropTarget(*m_canvas, dropSupport, {workQueue, &queue})
    , m_accessible(
          {.canvas = *m_canvas,
           .queue = queue,
           .read = [this] { return m_content ? m_content->accessible() : AccessibleNode(); },
           .perform =
               [this](const QString &key, const QString &action) {
                   if (m_content)
                       m_content->perform(key, action);
               },
           .toWindow = [this](const QRectF &inPanel) { return toWindow(inPanel); }})
{
    m_desktop.surface.adopt(*m_canvas);
    m_number = WindowNumber{m_canvas->winId()};
    m_desktop.keyboard.join(m_number);
    m_desktop.compositing.observeChanges(m_lifetime.guard([this] { updateRegions(); }));
}

QtPanelWindow::~QtPanelWindow()
{
    // Callbacks that the steps below cause must not reach this any more.
    m_lifetime.restart();
    m_content = nullptr;
    m_dropTarget.setContent(nullptr);
    QtPanelWindow::orderOut();
    m_desktop.keyboard.leave(m_number);
    // Qt's drag goes on, and needs the window that it began in.
    if (m_isDragging)
        m_canvas.release()->forgetOwner();
}

void QtPanelWindow::setContent(PanelContent *content)
{
    m_content = content;
    m_dropTarget.setContent(content);
    m_accessible.changed();
    setNeedsDisplay({{}, contentSize()});
}

void QtPanelWindow::place(const PanelPlacement &placement)
{
    const QRect before = toWindow({{}, contentSize()});
    m_frame = frameOf(placement);
    const bool hasOtherScale = std::exchange(m_contentScale, placement.scale) != placement.scale;
    const PanelSpace space = m_desktop.surface.place(*m_canvas, placement);
    m_origin = space.panel;
    m_canvas->setCanvasSize(space.window);
    // Where the window stays as it is, its panel has moved in it.
    if (const QRect now = toWindow({{}, contentSize()}); now != before || hasOtherScale)
        m_canvas->repaintSoon(before | now);
    updateRegions();
    if (hasOtherScale)
        m_accessible.changed();
}

const QScreen *QtPanelWindow::screen() const
{
    return m_desktop.surface.screenOf(*m_canvas);
}

void QtPanelWindow::orderFrontRegardless()
{
    m_desktop.keyboard.shown(m_number);
    if (std::exchange(m_isVisible, true)) {
        m_canvas->raise();
        return;
    }
    updateRegions();
    m_desktop.surface.willShow(*m_canvas);
    // Raised before it is mapped, or it would appear at its old place in the stack.
    m_canvas->raise();
    m_canvas->show();
    m_accessible.shown();
}

void QtPanelWindow::orderOut()
{
    if (!std::exchange(m_isVisible, false))
        return;
    m_desktop.keyboard.willHide(m_number);
    m_accessible.willHide();
    m_canvas->hide();
    m_desktop.surface.didHide(*m_canvas);
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
    m_desktop.keyboard.wantedByHand(m_number);
}

void QtPanelWindow::makeKeyAmongPanels()
{
    m_desktop.keyboard.wantedAmongPanels(m_number);
}

void QtPanelWindow::resignKey()
{
    m_desktop.keyboard.resigned(m_number);
}

void QtPanelWindow::userWentOn()
{
    m_desktop.keyboard.userWentOn(m_number);
}

void QtPanelWindow::paste()
{
    const QClipboard *clipboard = QGuiApplication::clipboard();
    // What is our own is here already, and its owner, which is this thread, would be waited for.
    if (!m_desktop.clipboard || clipboard->ownsClipboard()) {
        m_dropTarget.paste(clipboard->mimeData());
        return;
    }
    m_desktop.clipboard->look(
        m_lifetime.guard([this](const std::shared_ptr<IncomingDrag> &contents) {
            if (contents)
                m_dropTarget.paste(contents);
        }));
}

void QtPanelWindow::setNeedsDisplay(const QRectF &rect)
{
    m_canvas->repaintSoon(toWindow(rect));
}

void QtPanelWindow::beginDraggingSession(DragOut drag, DragOutEvents events)
{
    if (std::exchange(m_isDragging, true)) {
        events.released();
        events.ended({});
        return;
    }
    drag.image.size *= m_contentScale;
    drag.hotSpot *= m_contentScale;
    PanelCanvas *canvas = m_canvas.get();
    const auto released = [this, life = m_lifetime.token(), canvas,
                           tell = std::move(events.released)](DragOperation promised) {
        if (life.isOver()) {
            // Later, because this runs inside the handling of one of its events.
            canvas->deleteLater();
            return;
        }
        m_isDragging = false;
        m_desktop.keyboard.dragLetGo(promised);
        tell();
    };
    const auto ended = m_lifetime.guard(std::move(events.ended));
    if (m_desktop.dragCarrier)
        carryDrag(*canvas, drag, *m_desktop.dragCarrier, {released, ended});
    else
        runDragSession(*canvas, drag, m_dragSupport, {released, ended});
}

QTransform QtPanelWindow::toDevicePixels() const
{
    const double pixels = m_canvas->devicePixelRatio();
    const double scale = pixels * m_contentScale;
    return QTransform(scale, 0, 0, -scale, m_origin.x() * pixels, bottom() * pixels);
}

QPointF QtPanelWindow::toPanel(QPointF inWindow) const
{
    return (qt_geometry::flipped(inWindow, bottom()) - QPointF(m_origin.x(), 0)) / m_contentScale;
}

QRect QtPanelWindow::toWindow(const QRectF &inPanel) const
{
    const QRectF inPoints(inPanel.topLeft() * m_contentScale, inPanel.size() * m_contentScale);
    return qt_geometry::flipped(inPoints.translated(m_origin.x(), 0), bottom()).toAlignedRect();
}

void QtPanelWindow::updateRegions()
{
    const QTransform toPixels = toDevicePixels();
    const QRectF body = m_body.value_or(QRectF({}, contentSize()));
    const QRegion input = m_ignoresMouseEvents ? QRegion() : toPixels.mapRect(body).toRect();
    if (std::exchange(m_inputRegion, input) != input)
        m_desktop.surface.setInputRegion(*m_canvas, input);

    QRegion bounding;
    if (m_body && !m_desktop.compositing.isComposited()) {
        const QSize pixels = (m_frame.size() * m_canvas->devicePixelRatio()).toSize();
        const QPainterPath outline = toPixels.map(m_outline);
        // Making the region looks at every pixel, and most changes of the shelf leave the outline
        // as it is.
        if (pixels != m_shapedSize || outline != m_shapedOutline) {
            m_shapedSize = pixels;
            m_shapedOutline = outline;
            m_shape = outlineRegion(outline, pixels);
        }
        bounding = m_shape;
        // An empty region would mean the whole window, so one pixel at its edge stands for none.
        if (bounding.isEmpty())
            bounding = QRect(0, 0, 1, 1);
    }
    if (std::exchange(m_boundingRegion, bounding) != bounding)
        m_desktop.surface.setBoundingRegion(*m_canvas, bounding);
}

void QtPanelWindow::paint(QPainter &painter)
{
    if (!m_content)
        return;
    // Where the window is larger, lines that reach over the panel's edge would stay there: what
    // lies beyond it is not painted again when the panel changes.
    painter.setClipRect(toWindow({{}, contentSize()}), Qt::IntersectClip);
    painter.translate(m_origin.x(), bottom());
    painter.scale(m_contentScale, -m_contentScale);
    m_content->paint(painter, contentSize(), m_canvas->devicePixelRatio() * m_contentScale);
}

} // namespace corvane
