#include "platform/wayland/windows/layer_strip_surface.h"

#include "platform/wayland/windows/invisible_window.h"
#include "platform/wayland/windows/toolkit_screen.h"

#include <QScreen>

namespace corvane {

std::unique_ptr<QWindow> LayerStripSurface::show(const Screen &screen, const QRect &area)
{
    QScreen *const found = toolkitScreen(screen);
    if (!found)
        return nullptr;
    auto window = std::make_unique<InvisibleWindow>(
        m_connection, LayerSurface::Place{found, LayerSurface::Layer::Top, area},
        LayerSurface::Keyboard::Never);
    // Told before Qt takes away what the place belongs to.
    QObject::connect(window.get(), &QWindow::visibleChanged, window.get(),
                     [strip = window.get()](bool isVisible) {
                         if (!isVisible)
                             strip->takeAway();
                     });
    return window;
}

} // namespace corvane
