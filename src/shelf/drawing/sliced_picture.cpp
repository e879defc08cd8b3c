#include "shelf/drawing/sliced_picture.h"

#include "shelf/drawing/drawing.h"

#include <QPainter>

#include <cmath>
#include <utility>

namespace corvane {

namespace {

/// In points: the straight part between the corners of the picture that is made. One pixel of it is
/// used.
constexpr double between = 6;

void fill(QPainter &painter, const QRect &pixels, QRgb color)
{
    const double ratio = painter.device()->devicePixelRatio();
    if (qAlpha(color) != 0 && !pixels.isEmpty())
        painter.fillRect(QRectF(QPointF(pixels.topLeft()) / ratio, QSizeF(pixels.size()) / ratio),
                         QColor::fromRgba(color));
}

} // namespace

SlicedPicture::SlicedPicture(QMarginsF corners, Paint paint)
    : m_corners(corners)
    , m_paint(std::move(paint))
{
}

void SlicedPicture::make(double scale)
{
    const QSizeF size(m_corners.left() + between + m_corners.right(),
                      m_corners.top() + between + m_corners.bottom());
    m_scale = scale;
    m_outside = static_cast<int>(std::ceil(scale));
    const auto pixels = [&](double points) {
        // One more pixel for the antialiased end of the corner.
        return m_outside + static_cast<int>(std::ceil(points * scale)) + 1;
    };
    m_cut = {pixels(m_corners.left()), pixels(m_corners.top()), pixels(m_corners.right()),
             pixels(m_corners.bottom())};
    const double margin = m_outside / scale;
    m_picture = transparentBitmap(size + QSizeF(2 * margin, 2 * margin), scale);
    QPainter painter(&m_picture);
    painter.setRenderHint(QPainter::Antialiasing);
    // The upper edge of the shape is on a pixel boundary, as it is at the screen's edge.
    painter.translate(margin, margin + size.height());
    painter.scale(1, -1);
    m_paint(painter, size);
}

bool SlicedPicture::draw(QPainter &painter, QSizeF size, double scale)
{
    if (m_scale != scale)
        make(scale);
    const QTransform toPixels = painter.deviceTransform();
    const QPointF bottomLeft = toPixels.map(QPointF(0, 0));
    const QPointF topRight = toPixels.map(QPointF(size.width(), size.height()));
    const auto whole = [](double value) { return static_cast<int>(std::round(value)); };
    const QRect shape(QPoint(whole(bottomLeft.x()), whole(topRight.y())),
                      QPoint(whole(topRight.x()) - 1, whole(bottomLeft.y()) - 1));
    const QRect outer = shape.adjusted(-m_outside, -m_outside, m_outside, m_outside);
    if (outer.width() < m_cut.left + m_cut.right || outer.height() < m_cut.top + m_cut.bottom)
        return false;
    const QTransform world = painter.worldTransform();
    const bool isSmooth = painter.testRenderHint(QPainter::Antialiasing);
    painter.resetTransform();
    painter.setRenderHint(QPainter::Antialiasing, false);
    drawCorners(painter, outer);
    drawEdges(painter, outer);
    painter.setRenderHint(QPainter::Antialiasing, isSmooth);
    painter.setWorldTransform(world);
    return true;
}

void SlicedPicture::drawCorners(QPainter &painter, const QRect &outer) const
{
    const double ratio = painter.device()->devicePixelRatio();
    const QSize all = m_picture.size();
    const auto copy = [&](QPoint to, const QRect &from) {
        painter.drawImage(QRectF(QPointF(to) / ratio, QSizeF(from.size()) / ratio), m_picture,
                          QRectF(from));
    };
    const int right = all.width() - m_cut.right;
    const int bottom = all.height() - m_cut.bottom;
    const int toRight = outer.right() + 1 - m_cut.right;
    const int toBottom = outer.bottom() + 1 - m_cut.bottom;
    copy(outer.topLeft(), {0, 0, m_cut.left, m_cut.top});
    copy({toRight, outer.top()}, {right, 0, m_cut.right, m_cut.top});
    copy({outer.left(), toBottom}, {0, bottom, m_cut.left, m_cut.bottom});
    copy({toRight, toBottom}, {right, bottom, m_cut.right, m_cut.bottom});
}

void SlicedPicture::drawEdges(QPainter &painter, const QRect &outer) const
{
    const QSize all = m_picture.size();
    const QRect middle = outer.adjusted(m_cut.left, m_cut.top, -m_cut.right, -m_cut.bottom);
    // In each strip, neighbouring columns or rows of one colour are filled at once; nearly all are
    // of one.
    const QRect left(outer.left(), middle.top(), m_cut.left, middle.height());
    const QRect right(middle.right() + 1, middle.top(), m_cut.right, middle.height());
    const QRect top(middle.left(), outer.top(), middle.width(), m_cut.top);
    const QRect bottom(middle.left(), middle.bottom() + 1, middle.width(), m_cut.bottom);
    fillColumns(painter, left, 0, m_cut.left);
    fillColumns(painter, right, all.width() - m_cut.right, all.width());
    fillRows(painter, top, 0, m_cut.top);
    fillRows(painter, bottom, all.height() - m_cut.bottom, all.height());
    fill(painter, middle, m_picture.pixel(m_cut.left, m_cut.top));
}

void SlicedPicture::fillColumns(QPainter &painter, const QRect &part, int from, int to) const
{
    for (int begin = from; begin < to;) {
        const QRgb color = m_picture.pixel(begin, m_cut.top);
        int end = begin + 1;
        while (end < to && m_picture.pixel(end, m_cut.top) == color)
            ++end;
        fill(painter, {part.left() + begin - from, part.top(), end - begin, part.height()}, color);
        begin = end;
    }
}

void SlicedPicture::fillRows(QPainter &painter, const QRect &part, int from, int to) const
{
    for (int begin = from; begin < to;) {
        const QRgb color = m_picture.pixel(m_cut.left, begin);
        int end = begin + 1;
        while (end < to && m_picture.pixel(m_cut.left, end) == color)
            ++end;
        fill(painter, {part.left(), part.top() + begin - from, part.width(), end - begin}, color);
        begin = end;
    }
}

} // namespace corvane
