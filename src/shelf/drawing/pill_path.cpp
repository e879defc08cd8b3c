#include "shelf/drawing/pill_path.h"

namespace corvane {

QPainterPath pillPath(QSizeF size, double cornerRadius)
{
    // The length of the tangents of a cubic that draws a quarter circle of radius 1: 4/3 (sqrt 2 -
    // 1).
    constexpr double quarter = 0.5522847498307936;
    const double w = size.width();
    const double h = size.height();
    const double f = bodyFlareRadius;
    const double r = cornerRadius;

    QPainterPath path({0, h});
    path.cubicTo(f * quarter, h, f, h - f + f * quarter, f, h - f);
    path.lineTo(f, r);
    path.cubicTo(f, r - r * quarter, f + r - r * quarter, 0, f + r, 0);
    path.lineTo(w - f - r, 0);
    path.cubicTo(w - f - r + r * quarter, 0, w - f, r - r * quarter, w - f, r);
    path.lineTo(w - f, h - f);
    path.cubicTo(w - f, h - f + f * quarter, w - f * quarter, h, w, h);
    path.closeSubpath();
    return path;
}

} // namespace corvane
