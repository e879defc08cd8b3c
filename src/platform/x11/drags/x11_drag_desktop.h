#pragma once

#include "platform/base/changing_list.h"
#include "platform/base/lifetime.h"
#include "platform/reports/drag_pasteboard.h"
#include "platform/reports/event_monitors.h"
#include "platform/reports/mouse_buttons.h"
#include "platform/x11/base/x11_connection.h"
#include "platform/x11/drags/x11_drag_selection.h"

#include <array>

namespace corvane {

/// Notices drags of every program on an X11 desktop.
///
/// A program that starts a drag takes the ownership of the drag selection, which the server
/// reports. The pointer is followed by raw events, which come also while a drag's source has
/// grabbed it. Motion is selected only while the left button is held, so that a pointer that merely
/// moves does not wake this process. The connection must outlive it.
class X11DragDesktop : public DragPasteboard, public EventMonitors, public MouseButtons {
public:
    explicit X11DragDesktop(X11Connection &connection);
    ~X11DragDesktop() override;
    X11DragDesktop(const X11DragDesktop &) = delete;
    X11DragDesktop &operator=(const X11DragDesktop &) = delete;

    qint64 changeCount() const override { return m_changeCount; }
    Subscription addGlobalMonitor(Handler onLeftMouseDragged) override;
    /// Always none: the global monitor gets this program's events, too.
    Subscription addLocalMonitor(Handler onLeftMouseDragged) override;
    Subscription addLeftMouseDownMonitor(Handler onLeftMouseDown) override;
    Subscription addGlobalMouseDownMonitor(Handler onMouseDown) override;
    unsigned pressedMouseButtons() const override;

private:
    enum class What {
        LeftMouseDragged,
        LeftMouseDown,
        MouseDownElsewhere,
    };
    struct Monitor {
        What what;
        Handler handler;
    };

    enum class Listening {
        Nothing,
        Buttons,
        ButtonsAndMotion,
    };

    void handle(const xcb_generic_event_t &event);
    void handleRawButton(std::uint32_t button, bool isPress);
    Subscription add(What what, Handler handler);
    void remove(ChangingList<Monitor>::Id monitor);
    bool hasMonitors(What what) const;
    void noticeLeftButton(std::uint32_t button, bool isPress);
    bool canListen() const;
    /// Selects the events that the monitors need, and no others.
    void listen();
    void listenTo(Listening what);
    void readButtonMapping();
    bool isOverOwnWindow() const;
    void notify(What what) const;

    X11Connection &m_connection;
    qint64 m_changeCount = 0;
    X11DragSelection m_selection;
    Subscription m_listener;
    Listening m_listening = Listening::Nothing;
    /// Maps physical buttons, which raw events tell, to logical ones; used to recognise wheels and
    /// disabled buttons. It is one mapping for all devices. Users may swap the buttons of a single
    /// device, so it does not tell which button is the left one.
    std::array<std::uint8_t, 256> m_buttonMapping{};
    bool m_isLeftDown = false;
    /// What the server told last.
    mutable unsigned m_lastPressed = 0;
    /// The physical button that went down as the left one; 0 if that is not known.
    std::uint32_t m_leftButton = 0;
    ChangingList<Monitor> m_monitors;
    Lifetime m_lifetime;
};

} // namespace corvane
