#include "platform/x11/base/x11_connection.h"

#include "platform/x11/base/x11_qt.h"

#include <QAbstractEventDispatcher>
#include <QDeadlineTimer>
#include <QSocketNotifier>

#include <poll.h>
#include <xcb/xcbext.h>
#include <xcb/xfixes.h>
#include <xcb/xinput.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <utility>
#include <vector>

namespace corvane {

namespace {

/// All connections of the process, for the exit handler.
std::vector<X11Connection *> &liveConnections()
{
    static std::vector<X11Connection *> connections;
    return connections;
}

/// The names of which the server is asked at the start, all at once.
constexpr auto commonAtoms = {"CORVANE_SELECTION",  "INCR",
                              "MULTIPLE",           "TARGETS",
                              "TIMESTAMP",          "UTF8_STRING",
                              "WM_PROTOCOLS",       "XdndActionCopy",
                              "XdndActionLink",     "XdndDrop",
                              "XdndEnter",          "XdndFinished",
                              "XdndLeave",          "XdndPosition",
                              "XdndProxy",          "XdndSelection",
                              "XdndStatus",         "XdndTypeList",
                              "_CORVANE_TIME",      "_NET_ACTIVE_WINDOW",
                              "_NET_FRAME_EXTENTS", "_NET_REQUEST_FRAME_EXTENTS",
                              "_NET_WM_PING",       "_NET_WM_USER_TIME"};

} // namespace

X11Connection::X11Connection(std::function<void()> onLost)
    : m_onLost(std::move(onLost))
    , m_connection(xcb_connect(nullptr, &m_screenNumber))
{
    if (!isConnected())
        return;
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(m_connection));
    for (int i = 0; i < m_screenNumber && screens.rem > 1; ++i)
        xcb_screen_next(&screens);
    m_root = screens.data->root;
    setUpExtensions();
    internAtoms();

    m_notifier
        = new QSocketNotifier(xcb_get_file_descriptor(m_connection), QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &X11Connection::readEvents);
    // Waiting for a reply may read events from the socket, which then does not report them. So
    // queued events are handled whenever the event loop wakes up or is about to sleep.
    const auto *dispatcher = QAbstractEventDispatcher::instance();
    connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this,
            &X11Connection::handleQueuedEvents);
    connect(dispatcher, &QAbstractEventDispatcher::awake, this, &X11Connection::handleQueuedEvents);

    // Qt calls `exit` when its own connection breaks, and may notice before we do.
    // `liveConnections` is used before `atexit`, so that its list is destroyed after the handler
    // has run.
    liveConnections().push_back(this);
    static const int registered = std::atexit([] {
        for (X11Connection *connection : liveConnections())
            connection->noticeLossAtExit();
    });
    Q_UNUSED(registered)
}

X11Connection::~X11Connection()
{
    std::erase(liveConnections(), this);
    delete m_notifier;
    xcb_disconnect(m_connection);
}

bool X11Connection::isConnected() const
{
    return xcb_connection_has_error(m_connection) == 0;
}

void X11Connection::setUpExtensions()
{
    bool hasBarriers = false;
    const auto *xfixes = xcb_get_extension_data(m_connection, &xcb_xfixes_id);
    if (xfixes && xfixes->present) {
        const X11Reply<xcb_xfixes_query_version_reply_t> version(xcb_xfixes_query_version_reply(
            m_connection, xcb_xfixes_query_version(m_connection, 5, 0), nullptr));
        if (version) {
            m_xfixesEvent = xfixes->first_event;
            hasBarriers = version->major_version >= 5;
        }
    }
    const auto *xinput = xcb_get_extension_data(m_connection, &xcb_input_id);
    if (xinput && xinput->present) {
        // A client that announces a version below 2.2 gets no raw events while a drag's source has
        // grabbed the pointer.
        const X11Reply<xcb_input_xi_query_version_reply_t> version(xcb_input_xi_query_version_reply(
            m_connection, xcb_input_xi_query_version(m_connection, 2, 3), nullptr));
        if (version && (version->major_version > 2 || version->minor_version >= 2))
            m_xinputOpcode = xinput->major_opcode;
        // XFixes has the barriers, XInput 2.3 the events about them.
        const bool tellsHits
            = version && (version->major_version > 2 || version->minor_version >= 3);
        m_hasPointerBarriers = hasBarriers && tellsHits;
    }
}

void X11Connection::internAtoms()
{
    std::vector<xcb_intern_atom_cookie_t> asked;
    for (const char *const name : commonAtoms)
        asked.push_back(
            xcb_intern_atom(m_connection, 0, static_cast<std::uint16_t>(std::strlen(name)), name));
    auto next = asked.begin();
    for (const char *const name : commonAtoms) {
        if (const auto answer = reply<xcb_intern_atom_reply_t>(*next++))
            m_atoms.emplace(name, answer->atom);
    }
}

xcb_atom_t X11Connection::atom(const char *name)
{
    const auto known = m_atoms.find(name);
    if (known != m_atoms.end())
        return known->second;
    const auto length = static_cast<std::uint16_t>(std::strlen(name));
    const auto answer
        = reply<xcb_intern_atom_reply_t>(xcb_intern_atom(m_connection, 0, length, name));
    if (!answer)
        return XCB_NONE;
    return m_atoms.emplace(name, answer->atom).first->second;
}

bool X11Connection::isSelectionNotify(const xcb_generic_event_t &event) const
{
    const int type = event.response_type & 0x7f;
    return hasXFixes() && type == m_xfixesEvent + int{XCB_XFIXES_SELECTION_NOTIFY};
}

void *X11Connection::answerTo(unsigned int sequence)
{
    if (!isAnswering()) {
        xcb_discard_reply(m_connection, sequence);
        return nullptr;
    }
    xcb_flush(m_connection);
    const QDeadlineTimer deadline
        = m_isInUse ? QDeadlineTimer(answerPatience) : QDeadlineTimer(QDeadlineTimer::Forever);
    void *answer = nullptr;
    xcb_generic_error_t *error = nullptr;
    while (xcb_poll_for_reply(m_connection, sequence, &answer, &error) == 0) {
        if (waitForNews(static_cast<int>(deadline.remainingTime())))
            continue;
        m_overdue = sequence;
        return nullptr;
    }
    const X11Reply<xcb_generic_error_t> ignored(error);
    return answer;
}

bool X11Connection::isAnswering()
{
    if (!m_overdue)
        return true;
    while (waitForNews(0))
        continue;
    void *answer = nullptr;
    xcb_generic_error_t *error = nullptr;
    if (xcb_poll_for_reply(m_connection, *m_overdue, &answer, &error) == 0)
        return false;
    const X11Reply<void> ignored(answer);
    const X11Reply<xcb_generic_error_t> ignoredToo(error);
    m_overdue.reset();
    return true;
}

void X11Connection::flush()
{
    if (isAnswering())
        xcb_flush(m_connection);
}

/// False when nothing came within so many milliseconds, which -1 does not bound; events are kept
/// for later.
bool X11Connection::waitForNews(int patience)
{
    pollfd waiting = {xcb_get_file_descriptor(m_connection), POLLIN, 0};
    if (!isConnected())
        return false;
    const int found = ::poll(&waiting, 1, patience);
    if (found <= 0)
        return found < 0 && errno == EINTR;
    while (auto *const event = xcb_poll_for_event(m_connection))
        m_setAside.emplace_back(event);
    return true;
}

X11Connection::Outcome X11Connection::outcomeOf(std::span<const xcb_void_cookie_t> requests)
{
    // Asked for behind them: with its answer they are done.
    const bool isKnown
        = reply<xcb_get_input_focus_reply_t>(xcb_get_input_focus(m_connection)) != nullptr;
    Outcome outcome = isKnown ? Outcome::Done : Outcome::Unknown;
    for (const xcb_void_cookie_t request : requests) {
        void *none = nullptr;
        xcb_generic_error_t *error = nullptr;
        if (isKnown)
            xcb_poll_for_reply(m_connection, request.sequence, &none, &error);
        else
            xcb_discard_reply(m_connection, request.sequence);
        if (const X11Reply<xcb_generic_error_t> refusal{error})
            outcome = Outcome::Refused;
    }
    return outcome;
}

xcb_timestamp_t X11Connection::serverTime()
{
    // Before the request: asking sets events aside, which may already include its answer.
    const bool isWorthWaiting = isAnswering();
    makeClock();
    // Appends nothing to the property; the server reports the change with its time.
    const auto asked = xcb_change_property(m_connection, XCB_PROP_MODE_APPEND, m_clock,
                                           XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8, 0, nullptr);
    flush();
    const QDeadlineTimer deadline(isWorthWaiting ? timePatience : 0);
    while (isConnected()) {
        X11Reply<xcb_generic_event_t> event(xcb_poll_for_event(m_connection));
        if (!event) {
            pollfd waiting = {xcb_get_file_descriptor(m_connection), POLLIN, 0};
            const int patience = static_cast<int>(deadline.remainingTime());
            if (patience <= 0 || ::poll(&waiting, 1, patience) == 0)
                break;
            continue;
        }
        const auto &news = reinterpret_cast<const xcb_property_notify_event_t &>(*event);
        const bool isOurs
            = (event->response_type & 0x7f) == XCB_PROPERTY_NOTIFY && news.window == m_clock;
        // The report of an earlier call, which did not wait long enough, has an earlier time.
        if (isOurs && event->full_sequence == asked.sequence)
            return news.time;
        if (!isOurs)
            m_setAside.push_back(std::move(event));
    }
    return XCB_CURRENT_TIME;
}

void X11Connection::makeClock()
{
    if (m_clock != XCB_NONE)
        return;
    m_clock = xcb_generate_id(m_connection);
    const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, m_clock, m_root, -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK,
                      &events);
}

Subscription X11Connection::addListener(Listener listener)
{
    return m_listeners.subscribe(std::move(listener));
}

void X11Connection::readEvents()
{
    handleEventsAndFlush(&xcb_poll_for_event);
    if (!isConnected())
        noticeLoss();
}

void X11Connection::handleQueuedEvents()
{
    handleEventsAndFlush(&xcb_poll_for_queued_event);
}

void X11Connection::handleEventsAndFlush(Poll poll)
{
    m_isInUse = true;
    do {
        handleEvents(poll);
        // Listeners may have queued requests; nothing else would send them before the next event.
        flush();
        // Finding out whether the server is silent may have read further events.
    } while (!m_setAside.empty());
}

void X11Connection::handleEvents(Poll poll)
{
    const auto next = [this, poll] {
        if (m_setAside.empty())
            return X11Reply<xcb_generic_event_t>(poll(m_connection));
        auto first = std::move(m_setAside.front());
        m_setAside.pop_front();
        return first;
    };
    while (const auto event = next())
        m_listeners.notify(*event);
}

void X11Connection::noticeLossAtExit()
{
    // The server closes its connections one after the other, so Qt's may be gone before ours.
    auto *const qt = x11_qt::connection();
    if (!isConnected() || (qt && xcb_connection_has_error(qt) != 0))
        noticeLoss();
}

void X11Connection::noticeLoss()
{
    // A broken socket would be reported as readable without end.
    if (m_notifier)
        m_notifier->setEnabled(false);
    if (const auto onLost = std::exchange(m_onLost, {}))
        onLost();
}

} // namespace corvane
