#include "e2e/desktop/nested_compositor.h"

#include "e2e/desktop/eventually.h"

namespace corvane::e2e {

using namespace Qt::StringLiterals;

void NestedCompositor::addTo(QProcessEnvironment &environment) const
{
    environment.insert(u"WAYLAND_DISPLAY"_s, socket());
    environment.insert(u"QT_QPA_PLATFORM"_s, u"wayland"_s);
    environment.insert(u"GDK_BACKEND"_s, u"wayland"_s);
    environment.insert(u"XDG_SESSION_TYPE"_s, u"wayland"_s);
    environment.insert(u"XDG_CURRENT_DESKTOP"_s, desktopName());
    if (m_display.isEmpty())
        environment.remove(u"DISPLAY"_s);
    else
        environment.insert(u"DISPLAY"_s, m_display);
    addOwnTo(environment);
}

QRect scaled(const QRect &rect, double scale)
{
    return QRectF(rect.x() * scale, rect.y() * scale, rect.width() * scale, rect.height() * scale)
        .toRect();
}

bool NestedCompositor::showsWallpaper(XServer &screen, const QRect &area)
{
    return eventually([&] {
        const QImage picture = screen.picture(area);
        return (picture.pixel(0, 0) | 0xff000000U) == wallpaper
            && (picture.pixel(picture.width() - 1, picture.height() - 1) | 0xff000000U)
            == wallpaper;
    });
}

} // namespace corvane::e2e
