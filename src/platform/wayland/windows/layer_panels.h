#pragma once

#include "platform/desktop/compositing.h"
#include "platform/desktop/keyboard_loan.h"
#include "platform/desktop/panel_desktop.h"
#include "platform/desktop/pointing_devices.h"
#include "platform/wayland/base/wayland_connection.h"
#include "platform/wayland/windows/keyboard_return.h"
#include "platform/wayland/windows/layer_keyboard_focus.h"
#include "platform/wayland/windows/layer_panel_surface.h"
#include "platform/wayland/windows/pointer_elsewhere.h"

namespace corvane {

/// Whoever shows windows here blends them.
class AlwaysComposited : public Compositing {
public:
    bool isComposited() const override { return true; }
    void observeChanges(std::function<void()> /*callback*/) override { }
};

/// The devices as Qt has been told of them.
class WaylandPointingDevices : public PointingDevices {
public:
    bool isTouchpad(std::int64_t device) override;
};

/// What a session of layer surfaces has for panels. The connection and the queue must outlive it.
struct LayerPanels {
    LayerPanels(WaylandConnection &connection, MainQueue &queue)
        : surface(connection)
        , focus(surface)
        , keyboard(focus, queue)
        , keyboardReturn(connection, queue)
        , pointerElsewhere(connection, queue)
    {
        if (connection.leavesKeyboardBehind()) {
            surface.onKeyboardLeftBehind
                = [this] { keyboardReturn.startWhere([this] { return surface.isFocused(); }); };
            return;
        }
        surface.onKeyboardMoved = [this] { keyboardMoved(); };
        pointerElsewhere.onMoved = [this] { surface.giveKeyboardBack(); };
    }

    /// Where the compositor leaves the keyboard with what of ours a drag came to, be it on a
    /// connection whose keyboard nobody looks at.
    void returnKeyboard()
    {
        if (surface.onKeyboardLeftBehind)
            keyboardReturn.start();
    }

    PanelDesktop desktop() { return {surface, keyboard, compositing, pointingDevices}; }

    LayerPanelSurface surface;
    LayerKeyboardFocus focus;
    KeyboardLoan keyboard;
    KeyboardReturn keyboardReturn;
    PointerElsewhere pointerElsewhere;
    AlwaysComposited compositing;
    WaylandPointingDevices pointingDevices;

private:
    void keyboardMoved();
};

} // namespace corvane
