#pragma once

#include "app/sessions/desktop_session.h"
#include "input/first_hot_keys.h"
#include "input/timed_drag_watch.h"
#include "platform/base/lifetime.h"
#include "platform/desktop/abilities.h"
#include "platform/desktop/outside_clicks.h"
#include "platform/desktop/screen_locator.h"
#include "platform/freedesktop/shortcuts/action_shortcuts.h"
#include "platform/freedesktop/shortcuts/kde_shortcuts.h"
#include "platform/freedesktop/shortcuts/portal_shortcuts.h"
#include "platform/wayland/base/wayland_connection.h"
#include "platform/wayland/drags/wayland_drag_carrier.h"
#include "platform/wayland/drags/wayland_drop_support.h"
#include "platform/wayland/keys/wayland_keyboard_layout.h"
#include "platform/wayland/windows/edge_strips.h"
#include "platform/wayland/windows/layer_panels.h"
#include "platform/wayland/windows/layer_window_activation.h"
#include "platform/x11/drags/xwayland_drags.h"

namespace corvane {

/// Where the pointer, or what is dragged, last came to the edge of a screen: nobody tells where it
/// is otherwise. The screens must outlive it.
class LastSeenScreen : public ScreenLocator {
public:
    explicit LastSeenScreen(const Screens &screens)
        : m_screens(screens)
    {
    }

    /// That one, else the main screen, which may be none.
    ScreenPointer activeScreen() const override;
    void cameTo(const ScreenPointer &screen) { m_last = screen; }

private:
    const Screens &m_screens;
    std::weak_ptr<const Screen> m_last;
};

/// A session that keeps clicks in other programs to itself.
class UnheardClicks : public OutsideClicks {
public:
    Subscription watch(Handler /*onPressed*/) override { return {}; }
};

/// A session whose compositor hangs our panels from its screens' edges, and tells us nothing of
/// other programs: neither where the pointer is, nor what is dragged, except where that comes to a
/// window of ours. An X server that the compositor may keep for X11's programs tells when a drag
/// begins.
struct LayerSession : RunningSession {
    explicit LayerSession(const SessionNeeds &needs);

    /// Before there is an application object: has Qt leave the panels' windows to us.
    static void prepare();

    DesktopSession desktop() override;

    WaylandConnection connection;
    SessionAbilities abilities;
    LastSeenScreen screenLocator;
    TimedDragWatch dragWatch;
    EdgeStrips edgeStrips;
    UnheardClicks outsideClicks;
    WaylandKeyboardLayout keyboardLayout;
    KdeShortcuts kdeShortcuts;
    PortalShortcuts portalShortcuts;
    ActionShortcuts actionShortcuts;
    FirstHotKeys hotKeys;
    LayerPanels panels;
    LayerWindowActivation windowActivation;
    WaylandDragCarrier dragCarrier;
    WaylandDropSupport dropSupport;
    XWaylandDrags xwaylandDrags;
    bool mayDragGoOn = false;
    Lifetime lifetime;

private:
    KeyNaming keyNaming() const;
    void wireDrags();
    void dragIsNoticed();
    void wireStrips();
    void updateStrips();
    void tellAbilities();
};

} // namespace corvane
