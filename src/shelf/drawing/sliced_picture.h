#pragma once

#include <QImage>
#include <QMarginsF>
#include <QSizeF>

#include <functional>

class QPainter;

namespace corvane {

/// A shape with four corners that never change and straight edges between them. It is painted once,
/// small, and put together from that for any size: a rasteriser takes longer for a thin line than
/// for all that it encloses. It stands on whole pixels, as pictures do while they move.
class SlicedPicture {
public:
    /// Paints the shape at a size, y upward, origin at its bottom left; a line may lie a point
    /// outside.
    using Paint = std::function<void(QPainter &painter, QSizeF size)>;

    /// `corners` says how far the corners reach from each side, in points, top and bottom as they
    /// are seen.
    SlicedPicture(QMarginsF corners, Paint paint);

    /// False, and nothing painted, where the size has no room for the corners.
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
