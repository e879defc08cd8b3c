#include "platform/qt/desktop/qt_geometry.h"

#include "platform/base/whole_points.h"

#include <QGuiApplication>
#include <QScreen>

namespace corvane::qt_geometry {

double primaryHeight()
{
    const QScreen *primary = QGuiApplication::primaryScreen();
    return primary ? primary->geometry().y() + primary->geometry().height() : 0;
}

QPointF toGlobal(QPointF qtPoint)
{
    return flipped(qtPoint, primaryHeight());
}

QRectF toGlobal(const QRectF &qtRect)
{
    return flipped(qtRect, primaryHeight());
}

QRect toQt(const QRectF &rect)
{
    return inWholePoints(flipped(rect, primaryHeight()));
}

} // namespace corvane::qt_geometry
