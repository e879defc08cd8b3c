#pragma once

#include <QImage>
#include <QMarginsF>
#include <QSizeF>

#include <functional>

class QPainter;

namespace corvane {

/// A shape with four fixed corners and straight edges between them. It is painted once, at a small
/// size, and put together from that picture for any other, because a rasteriser takes longer for a
/// thin outline than for filling what it encloses. Its place is rounded to whole device pixels.
class SlicedPicture {
public:
    /// Paints the shape at `size` points, y upward, origin at its bottom left. Its line may lie up
    /// to one point outside.
    using Paint = std::function<void(QPainter &painter, QSizeF size)>;

    /// `corners`: how far, in points, the corners reach inward from each side; top and bottom as
    /// seen on the screen.
    SlicedPicture(QMarginsF corners, Paint paint);

    /// False, and nothing is painted, where `size` has no room for the corners.
    bool draw(QPainter &painter, QSizeF size, double scale);

private:
    /// In pixels.
    struct Cut {
        int left = 0;
        int top = 0;
        int right = 0;
        int bottom = 0;
    };

    void make(double scale);
    void drawCorners(QPainter &painter, const QRect &outer) const;
    void drawEdges(QPainter &painter, const QRect &outer) const;
    void fillColumns(QPainter &painter, const QRect &part, int from, int to) const;
    void fillRows(QPainter &painter, const QRect &part, int from, int to) const;

    QMarginsF m_corners;
    Paint m_paint;
    QImage m_picture;
    double m_scale = 0;
    int m_outside = 0;
    Cut m_cut;
};

} // namespace corvane
