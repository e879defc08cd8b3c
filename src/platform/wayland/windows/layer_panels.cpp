#include "platform/wayland/windows/layer_panels.h"

#include <QInputDevice>

#include <algorithm>

namespace corvane {

bool WaylandPointingDevices::isTouchpad(std::int64_t device)
{
    return std::ranges::any_of(QInputDevice::devices(), [device](const QInputDevice *known) {
        return known->systemId() == device && known->type() == QInputDevice::DeviceType::TouchPad;
    });
}

/// Where the pointer is on the panel, its leaving says enough.
void LayerPanels::keyboardMoved()
{
    if (surface.panelWithKeyboard() != WindowNumber::None && !surface.isPointerAtKeyboard())
        pointerElsewhere.watch();
    else
        pointerElsewhere.stop();
}

} // namespace corvane
