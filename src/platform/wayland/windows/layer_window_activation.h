#pragma once

#include "platform/desktop/window_activation.h"

namespace corvane {

class LayerPanelSurface;

/// A panel that has the keyboard keeps it from every window, also from one of ours that comes
/// forward: it gives it up first. Whether the window comes in front is the compositor's decision,
/// by the token that Qt asks for. The surface must outlive it.
class LayerWindowActivation : public WindowActivation {
public:
    explicit LayerWindowActivation(LayerPanelSurface &panels)
        : m_panels(panels)
    {
    }

    void bringToFront(QWindow &window) override;

private:
    LayerPanelSurface &m_panels;
};

} // namespace corvane
