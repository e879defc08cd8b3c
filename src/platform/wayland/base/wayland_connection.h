#pragma once

#include <functional>

struct wl_display;
struct wl_event_queue;
struct wl_output;
struct wl_registry;
struct wl_seat;
struct wl_surface;
struct zwlr_layer_shell_v1;

class QScreen;
class QWindow;

namespace corvane {

/// The compositor, on the connection that Qt has to it, and what Qt does not use there; nothing
/// where Qt has none. Made once there is an application object, which must outlive it. Main thread
/// only.
class WaylandConnection {
public:
    WaylandConnection();
    ~WaylandConnection();
    WaylandConnection(const WaylandConnection &) = delete;
    WaylandConnection &operator=(const WaylandConnection &) = delete;

    wl_display *display() const { return m_display; }
    /// Null where the compositor has none.
    zwlr_layer_shell_v1 *layerShell() const { return m_layerShell; }
    /// The user's devices; null where there are none, and no keyboard is among them.
    wl_seat *seatWithKeyboard() const { return m_hasKeyboard ? m_seat : nullptr; }
    /// Called when there is a keyboard, or none any more.
    std::function<void()> onKeyboardChanged;

    /// Hands the keyboard to whatever something is dragged over, and takes it back from nobody that
    /// does not want it any more, as KWin does.
    bool leavesKeyboardBehind() const { return m_leavesKeyboardBehind; }

    /// Null before the window has a platform window, and once it is hidden.
    static wl_surface *surfaceOf(QWindow &window);
    /// Null for a screen that stands for none.
    static wl_output *outputOf(QScreen *screen);

    /// Sends everything off and handles what comes of it on that queue, without handling what is on
    /// its way to Qt, until `isDone` or nothing more is to be expected in time. Whether it is done.
    bool waitOn(wl_event_queue *queue, const std::function<bool()> &isDone) const;
    void flush() const;

private:
    struct Listeners;

    wl_display *m_display = nullptr;
    zwlr_layer_shell_v1 *m_layerShell = nullptr;
    wl_seat *m_seat = nullptr;
    bool m_hasKeyboard = false;
    bool m_leavesKeyboardBehind = false;
};

} // namespace corvane
