#pragma once

#include "platform/base/callback_list.h"
#include "platform/x11/base/x11_reply.h"

#include <QObject>

#include <xcb/xcb.h>

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <span>
#include <string>

class QSocketNotifier;

namespace corvane {

/// A connection to the X server of our own, beside Qt's. Events selected here do not change the
/// event masks that Qt sets, and they arrive also while a drag runs an event loop of its own.
///
/// When the server goes away, `onLost` is called once, on the main thread; no events come after
/// that. It is called even if Qt notices first and calls `exit`. Main thread only.
class X11Connection : public QObject {
public:
    using Listener = std::function<void(const xcb_generic_event_t &)>;

    explicit X11Connection(std::function<void()> onLost = {});
    ~X11Connection() override;

    /// Never null. After the connection was lost, requests on it do nothing.
    xcb_connection_t *get() const { return m_connection; }
    bool isConnected() const;
    xcb_window_t root() const { return m_root; }
    int screenNumber() const { return m_screenNumber; }
    /// The atom of that name, asked of the server once; `XCB_NONE` without an answer.
    xcb_atom_t atom(const char *name);

    bool hasXFixes() const { return m_xfixesEvent != 0; }
    /// Whether an event is XFixes' report about a selection's owner.
    bool isSelectionNotify(const xcb_generic_event_t &event) const;
    bool hasXInput() const { return m_xinputOpcode != 0; }
    std::uint8_t xinputOpcode() const { return m_xinputOpcode; }
    /// Whether the server has pointer barriers and reports when the pointer hits them (XFixes 5 and
    /// XInput 2.3).
    bool hasPointerBarriers() const { return m_hasPointerBarriers; }

    /// In milliseconds: how long a request waits for its answer. A server that takes longer counts
    /// as silent, as it is while another program has grabbed it. Slow or distant servers take far
    /// less.
    static constexpr int answerPatience = 1'000;

    /// False while the server is silent. Nothing is sent then, because the socket would take only
    /// a few hundred requests before sending blocks; so what repeats itself should ask this first.
    bool isAnswering();
    /// The answer to a request that was made on this connection: null for an error, and from a
    /// server that is silent, which is not waited for again before it has answered. Events that
    /// come before the answer are handled afterwards, in their order.
    ///
    /// Before the first turn of the event loop there is no bound: what is asked then is needed as
    /// long as the program runs.
    template<typename Reply, typename Cookie>
    X11Reply<Reply> reply(Cookie cookie)
    {
        return X11Reply<Reply>(static_cast<Reply *>(answerTo(cookie.sequence)));
    }
    enum class Outcome {
        Done,
        /// At least one of them was refused.
        Refused,
        /// The server is silent and may still do them.
        Unknown,
    };
    /// What became of checked requests that were made on this connection.
    Outcome outcomeOf(std::span<const xcb_void_cookie_t> requests);

    /// In milliseconds: how long `serverTime` waits for the server.
    static constexpr int timePatience = 100;

    /// The server's present time, asked of the server. `XCB_CURRENT_TIME` if the server is gone or
    /// does not answer in time; the server takes that as its time when the request arrives. Events
    /// that arrive before the answer are delivered later, in their order.
    xcb_timestamp_t serverTime();

    /// Each event of this connection is passed to all listeners, in the order in which they were
    /// added, until the subscription ends. A listener may add and remove listeners.
    Subscription addListener(Listener listener);

    /// Sends what was asked for, unless the server is silent: then it is sent when it has answered.
    void flush();

private:
    void setUpExtensions();
    void internAtoms();
    void *answerTo(unsigned int sequence);
    bool waitForNews(int patience);
    void makeClock();
    void readEvents();
    void handleQueuedEvents();
    using Poll = xcb_generic_event_t *(*)(xcb_connection_t *);
    void handleEvents(Poll poll);
    void handleEventsAndFlush(Poll poll);
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
    /// Events that came while an answer was awaited.
    std::deque<X11Reply<xcb_generic_event_t>> m_setAside;
    /// The request that the server has left unanswered.
    std::optional<unsigned int> m_overdue;
    /// Whether the event loop has had its first turn.
    bool m_isInUse = false;
    /// A window that is never shown; `serverTime` changes a property of it. Made at the first use.
    xcb_window_t m_clock = XCB_NONE;
    CallbackList<const xcb_generic_event_t &> m_listeners;
    std::map<std::string, xcb_atom_t> m_atoms;
};

} // namespace corvane
