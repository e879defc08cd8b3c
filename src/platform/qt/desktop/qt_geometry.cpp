#include "platform/qt/desktop/qt_geometry.h"

#include "platform/desktop/panel_surface.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <cmath>

namespace corvane::qt_geometry {

namespace {

int rounded(double value)
{
    // Outside of every desktop, and small enough to be added to.
    constexpr double limit = 1e6;
    return static_cast<int>(std::clamp(std::round(value), -limit, limit));
}

} // namespace

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
    const QRectF qtRect = flipped(rect, primaryHeight());
    return {rounded(qtRect.x()), rounded(qtRect.y()), std::max(1, rounded(qtRect.width())),
            std::max(1, rounded(qtRect.height()))};
}

PanelPlacement placementOf(const QRectF &frame)
{
    const QRect rect = toQt(frame);
    QScreen *const under = QGuiApplication::screenAt({rect.center().x(), rect.top()});
    QScreen *const screen = under ? under : QGuiApplication::primaryScreen();
    const QPoint way = rect.topLeft() - (screen ? screen->geometry().topLeft() : QPoint());
    return {screen, way.x(), way.y(), rect.size()};
}

} // namespace corvane::qt_geometry
