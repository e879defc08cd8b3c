#pragma once

#include "platform/base/callback_list.h"
#include "platform/desktop/panel_surface.h"
#include "platform/x11/keys/x11_key_shield.h"
#include "platform/x11/pointer/x11_pointing_devices.h"
#include "platform/x11/windows/x11_window_manager.h"

#include <QPointer>
#include <QWindow>

#include <vector>

namespace corvane {

/// Panels on X11: windows that no window manager manages, so that they stand exactly where they
/// should on every desktop. Requests are sent off at once, since they come from timers too. The
/// connection must outlive it.
class X11PanelSurface : public PanelSurface {
public:
    explicit X11PanelSurface(X11Connection &connection);
    ~X11PanelSurface() override;
    X11PanelSurface(const X11PanelSurface &) = delete;
    X11PanelSurface &operator=(const X11PanelSurface &) = delete;

    void adopt(QWindow &window) override;
    void place(QWindow &window, const QRect &geometry) override;
    void willShow(QWindow &window) override;
    void didHide(QWindow &window) override;
    void setInputRegion(QWindow &window, const QRegion &region) override;
    void setBoundingRegion(QWindow &window, const QRegion &region) override;
    void takeKeyboard(QWindow &window) override;
    KeyboardHolder keyboardHolder() const override;
    void giveKeyboardBack(QWindow &window) override;
    void giveKeyboardBack() override;
    void giveUnclaimedKeyboardBack() override;
    void swallowRepeats(NativeKey key, std::uint32_t modifiers) override
    {
        m_keyShield.hold(static_cast<xcb_keycode_t>(key), static_cast<std::uint16_t>(modifiers));
    }
    bool isKeyDown(NativeKey key) const override
    {
        return m_keyShield.isDown(static_cast<xcb_keycode_t>(key));
    }
    bool isAnyKeyDown() const override { return m_keyShield.isAnyDown(); }
    bool isLeftButtonDown() const override;
    bool isTouchpad(std::int64_t device) override { return m_pointingDevices.isTouchpad(device); }
    bool isComposited() const override { return m_isComposited; }
    void observeComposited(std::function<void()> callback) override;

private:
    void handle(const xcb_generic_event_t &event);
    xcb_window_t focusedWindow() const;
    void giveToPrevious();
    bool tryToFocus(xcb_window_t window, xcb_timestamp_t time);
    bool isPanel(xcb_window_t window) const;

    X11Connection &m_connection;
    X11WindowManager m_windowManager;
    X11PointingDevices m_pointingDevices;
    X11KeyShield m_keyShield;
    Subscription m_listener;
    xcb_atom_t m_compositorSelection;
    bool m_isComposited = false;
    CallbackList<> m_observers;
    /// Those that are gone leave with the next one that comes.
    std::vector<QPointer<QWindow>> m_panels;
    /// Who had the keyboard before panels took it, which may take it from each other: as the window
    /// manager names it, and as the server does where there is none.
    xcb_window_t m_previousActive = XCB_NONE;
    xcb_window_t m_previousFocus = XCB_NONE;
};

} // namespace corvane
