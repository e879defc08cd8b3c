#include "preview/picture_view.h"

#include "platform/base/main_queue.h"
#include "platform/pictures/image_codec.h"
#include "platform/qt/desktop/spoken_role.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QPainter>
#include <QWheelEvent>
#include <QWindow>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace corvane {

namespace {

/// The factor of one press of a key or one notch of the wheel.
constexpr double zoomStep = 1.25;
constexpr double notch = 120;
constexpr double keyMove = 60;
/// The most pixels that vector graphics are rendered at.
constexpr double mostPixels = 24'000'000;

/// Paints a chequered ground under transparent parts, light or dark as the palette.
void paintTransparency(QPainter &painter, const QRectF &rect, const QPalette &palette)
{
    constexpr int side = 8;
    const QColor base = palette.color(QPalette::Base);
    const bool isDark = base.lightness() < 128;
    QImage tile(2 * side, 2 * side, QImage::Format_RGB32);
    tile.fill(base);
    QPainter tilePainter(&tile);
    const QColor other = isDark ? base.lighter(125) : base.darker(106);
    tilePainter.fillRect(0, 0, side, side, other);
    tilePainter.fillRect(side, side, side, side, other);
    tilePainter.end();
    painter.fillRect(rect, QBrush(tile));
}

} // namespace

PictureView::PictureView(const PreviewContent::Picture &picture, PreviewLoading &loading,
                         MainQueue &queue, QWidget *parent)
    : QWidget(parent)
    , m_picture(picture)
    , m_loading(loading)
    , m_queue(queue)
    , m_best(picture.fitted)
    , m_isAnimating(picture.isAnimated && picture.document)
{
    setFocusPolicy(Qt::StrongFocus);
    speakAs<PictureView>(QAccessible::Graphic);
    setAccessibleName(QCoreApplication::translate("PreviewWindow", "Picture"));
}

PictureView::~PictureView() = default;

bool PictureView::handleKey(int key)
{
    switch (key) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        zoom(zoomStep, middle());
        return true;
    case Qt::Key_Minus:
        zoom(1 / zoomStep, middle());
        return true;
    case Qt::Key_0:
        m_zoom.fit();
        changed();
        return true;
    case Qt::Key_1:
        m_zoom.actualSize(middle());
        changed();
        return true;
    default:
        break;
    }
    const QPointF page(0, height() * 0.9);
    const QPointF move = key == Qt::Key_Left ? QPointF(keyMove, 0)
        : key == Qt::Key_Right               ? QPointF(-keyMove, 0)
        : key == Qt::Key_Up                  ? QPointF(0, keyMove)
        : key == Qt::Key_Down                ? QPointF(0, -keyMove)
        : key == Qt::Key_PageUp              ? page
        : key == Qt::Key_PageDown            ? -page
                                             : QPointF();
    if (move.isNull())
        return false;
    m_zoom.moveBy(move);
    changed();
    return true;
}

void PictureView::changed()
{
    setCursor(m_zoom.isFitted() ? Qt::ArrowCursor : Qt::OpenHandCursor);
    askForPixels();
    update();
}

void PictureView::zoom(double factor, QPointF anchor)
{
    m_zoom.zoom(factor, anchor);
    changed();
}

QPointF PictureView::middle() const
{
    return QRectF(rect()).center();
}

QSize PictureView::shownPixels() const
{
    const QSize pixels = m_zoom.pixels(devicePixelRatioF());
    const QSize missing = pixels - m_best.size();
    // Decoding it again for what fractions are rounded to would take as long as the first time.
    const bool isNearly = std::abs(missing.width()) <= 1 && std::abs(missing.height()) <= 1;
    return m_zoom.isFitted() && isNearly ? m_best.size() : pixels;
}

QRectF PictureView::alignedRect() const
{
    // Aligned to whole device pixels: otherwise each pixel would be mixed with its neighbours.
    const double scale = devicePixelRatioF();
    const QPointF corner = m_zoom.rect().topLeft() * scale;
    return {QPointF(std::round(corner.x()), std::round(corner.y())) / scale,
            QSizeF(shownPixels()) / scale};
}

void PictureView::askForPixels()
{
    if (!m_picture.document || m_picture.isAnimated || m_isRendering || !isVisible())
        return;
    QSize wanted = shownPixels();
    if (!m_picture.isVector) {
        // Below its own size the reader scales a picture better than painting does; above it there
        // are no more pixels.
        wanted = wanted.boundedTo(m_picture.pixelSize);
    } else if (const double area = double(wanted.width()) * wanted.height(); area > mostPixels) {
        // At this size vector graphics are rendered with fewer pixels, and scaled up.
        wanted = (QSizeF(wanted) * std::sqrt(mostPixels / area)).toSize();
    }
    if (wanted == m_best.size() || std::exchange(m_asked, wanted) == wanted)
        return;
    m_isRendering = true;
    m_loading.render(m_picture.document, 0, wanted,
                     m_lifetime.guard([this](const std::optional<QImage> &image) {
                         m_isRendering = false;
                         if (image)
                             m_best = *image;
                         update();
                         // The view may have changed its size meanwhile.
                         askForPixels();
                     }));
}

void PictureView::askForFrame()
{
    const QWindow *const handle = window()->windowHandle();
    const bool isSeen = handle && handle->isExposed();
    if (!m_isAnimating || !isSeen || std::exchange(m_isFrameDue, true))
        return;
    const QSize limit = m_picture.fitted.size().expandedTo({1, 1});
    m_loading.nextFrame(m_picture.document, limit,
                        m_lifetime.guard([this](const std::optional<PreviewDocument::Frame> &next) {
                            m_isAnimating = next.has_value();
                            if (!next)
                                return;
                            m_queue.asyncAfter(
                                std::max(m_frameEnd - m_queue.now(), 0.0),
                                m_lifetime.guard([this, frame = *next] { showFrame(frame); }));
                        }));
}

void PictureView::showFrame(const PreviewDocument::Frame &frame)
{
    m_best = frame.image;
    m_frameEnd = m_queue.now() + frame.duration;
    m_isFrameDue = false;
    // Painting asks for the next one.
    update();
}

void PictureView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Window));
    const QRectF target = alignedRect();
    if (m_best.hasAlphaChannel())
        paintTransparency(painter, target, palette());
    // Enlarged pixels are shown as squares, not blurred.
    const bool isEnlarged = m_zoom.scale() >= 2 && !m_picture.isVector;
    painter.setRenderHint(QPainter::SmoothPixmapTransform, !isEnlarged);
    painter.drawImage(target, m_best);
    // Only when painted, so that an animation stops while it is not visible.
    askForFrame();
}

void PictureView::resizeEvent(QResizeEvent *)
{
    const QSizeF natural = m_picture.isVector ? QSizeF(m_picture.pixelSize)
                                              : QSizeF(m_picture.pixelSize) / devicePixelRatioF();
    const bool isFirst = m_zoom.rect().isEmpty();
    if (isFirst)
        m_zoom.setPicture(natural, m_picture.isVector);
    m_zoom.setView(size());
    changed();
}

void PictureView::showEvent(QShowEvent *)
{
    askForPixels();
}

void PictureView::wheelEvent(QWheelEvent *event)
{
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        zoom(std::pow(zoomStep, event->angleDelta().y() / notch), event->position());
    } else {
        // Without phases, pixel deltas may be in the device's own units, so the angle is used.
        const bool hasPixels = event->phase() != Qt::NoScrollPhase && !event->pixelDelta().isNull();
        m_zoom.moveBy(hasPixels ? QPointF(event->pixelDelta())
                                : QPointF(event->angleDelta()) / notch * keyMove);
        changed();
    }
    event->accept();
}

void PictureView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || m_zoom.isFitted())
        return;
    m_grip = event->position();
    setCursor(Qt::ClosedHandCursor);
}

void PictureView::mouseMoveEvent(QMouseEvent *event)
{
    if (!event->buttons().testFlag(Qt::LeftButton) || m_zoom.isFitted())
        return;
    m_zoom.moveBy(event->position() - std::exchange(m_grip, event->position()));
    askForPixels();
    update();
}

void PictureView::mouseReleaseEvent(QMouseEvent *)
{
    changed();
}

void PictureView::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (m_zoom.isFitted())
        m_zoom.actualSize(event->position());
    else
        m_zoom.fit();
    changed();
}

bool PictureView::event(QEvent *event)
{
    if (event->type() == QEvent::NativeGesture) {
        auto &gesture = dynamic_cast<QNativeGestureEvent &>(*event);
        if (gesture.gestureType() == Qt::ZoomNativeGesture) {
            zoom(1 + gesture.value(), gesture.position());
            return true;
        }
    }
    return QWidget::event(event);
}

} // namespace corvane
