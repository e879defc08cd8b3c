#pragma once

#include "platform/base/callback_list.h"
#include "platform/x11/base/x11_reply.h"

#include <QObject>

#include <xcb/xcb.h>

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <string>

class QSocketNotifier;

namespace corvane {

/// A connection to the X server beside Qt's own. What is selected here cannot disturb the event
/// masks that Qt sets, and its events come also while a drag runs an event loop of its own.
///
/// When the server goes away, `onLost` is called once, on the main thread, and the connection keeps
/// silent from then on. It is called even if Qt notices first and ends the process for it. Main
/// thread only.
class X11Connection : public QObject {
public:
    using Listener = std::function<void(const xcb_generic_event_t &)>;

    explicit X11Connection(std::function<void()> onLost = {});
    ~X11Connection() override;

    /// Never null; after an error every request on it does nothing.
    xcb_connection_t *get() const { return m_connection; }
    bool isConnected() const;
    xcb_window_t root() const { return m_root; }
    int screenNumber() const { return m_screenNumber; }
    xcb_atom_t atom(const char *name);

    bool hasXFixes() const { return m_xfixesEvent != 0; }
    /// Whether an event is XFixes' news about a selection's owner.
    bool isSelectionNotify(const xcb_generic_event_t &event) const;
    bool hasXInput() const { return m_xinputOpcode != 0; }
    std::uint8_t xinputOpcode() const { return m_xinputOpcode; }
    /// Whether the server keeps pointer barriers and tells who runs against them.
    bool hasPointerBarriers() const { return m_hasPointerBarriers; }

    /// Milliseconds that a busy server may take to tell its time.
    static constexpr int timePatience = 100;

    /// The server's time at this moment, by asking it; `XCB_CURRENT_TIME`, which means the same to
    /// the server where nobody else is in between, once it is gone or does not answer. Events that
    /// come before the answer are handled afterwards, in their order.
    xcb_timestamp_t serverTime();

    /// Every event of this connection goes to every listener, in the order they were added, until
    /// its subscription ends. A listener may add and remove listeners.
    Subscription addListener(Listener listener);

    void flush() { xcb_flush(m_connection); }

private:
    void setUpExtensions();
    void makeClock();
    void readEvents();
    void handleQueuedEvents();
    using Poll = xcb_generic_event_t *(*)(xcb_connection_t *);
    void handleEvents(Poll poll);
    void noticeLoss();
    void noticeLossAtExit();

    std::function<void()> m_onLost;
    xcb_connection_t *m_connection = nullptr;
    int m_screenNumber = 0;
    xcb_window_t m_root = XCB_NONE;
    std::uint8_t m_xfixesEvent = 0;
    std::uint8_t m_xinputOpcode = 0;
    bool m_hasPointerBarriers = false;
    QSocketNotifier *m_notifier = nullptr;
    /// Came while something else was waited for.
    std::deque<X11Reply<xcb_generic_event_t>> m_setAside;
    /// Never shown: it is there to have a property changed. Made when it is first needed.
    xcb_window_t m_clock = XCB_NONE;
    CallbackList<const xcb_generic_event_t &> m_listeners;
    std::map<std::string, xcb_atom_t> m_atoms;
};

} // namespace corvane
