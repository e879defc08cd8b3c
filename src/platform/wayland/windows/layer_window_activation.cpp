#include "platform/wayland/windows/layer_window_activation.h"

#include "platform/wayland/windows/layer_panel_surface.h"

#include <QWindow>

namespace corvane {

void LayerWindowActivation::bringToFront(QWindow &window)
{
    m_panels.giveKeyboard(WindowNumber::None);
    window.raise();
    window.requestActivate();
}

} // namespace corvane
