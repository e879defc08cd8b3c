#include "platform/x11/x11_drag_support.h"

#include "platform/x11/x11_qt.h"
#include "platform/x11/x11_reply.h"

#include <QCoreApplication>
#include <QMimeData>

#include <array>
#include <vector>

namespace corvane {

namespace {

/// The names under which programs ask for plain text.
constexpr std::array textNames = {"text/plain", "text/plain;charset=utf-8", "UTF8_STRING"};

} // namespace

X11DragSupport::X11DragSupport(X11Connection &connection, MainQueue &queue)
    : m_connection(connection)
    , m_transfers(connection, queue)
{
    QCoreApplication::instance()->installNativeEventFilter(this);
}

X11DragSupport::~X11DragSupport()
{
    if (auto *application = QCoreApplication::instance())
        application->removeNativeEventFilter(this);
}

void X11DragSupport::dragWillBegin(const QMimeData &contents)
{
    m_contents.clear();
    if (contents.hasText()) {
        // One array behind all its names: a text may be very large.
        const QByteArray text = contents.text().toUtf8();
        for (const char *name : textNames)
            m_contents.insert(m_connection.atom(name), text);
    }
    for (const QString &format : contents.formats()) {
        const xcb_atom_t type = m_connection.atom(format.toUtf8().constData());
        if (!m_contents.contains(type))
            m_contents.insert(type, contents.data(format));
    }
}

bool X11DragSupport::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *)
{
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    const int type = event->response_type & 0x7f;
    if (type == XCB_CLIENT_MESSAGE) {
        readMessage(*static_cast<xcb_client_message_event_t *>(message));
    } else if (type == XCB_SELECTION_CLEAR) {
        // Another program drags now: nobody will ask for ours again.
        const auto *clear = static_cast<const xcb_selection_clear_event_t *>(message);
        if (clear->selection == m_connection.atom("XdndSelection"))
            m_contents.clear();
    } else if (type == XCB_SELECTION_REQUEST && !m_contents.isEmpty()) {
        const auto *request = static_cast<const xcb_selection_request_event_t *>(message);
        if (request->selection == m_connection.atom("XdndSelection")) {
            answer(*request);
            return true;
        }
    }
    return false;
}

void X11DragSupport::readMessage(xcb_client_message_event_t &message)
{
    if (message.format != 32)
        return;
    // Qt takes any flag for consent, the wish to hear every position too. It would drop on a target
    // that refuses, and report a copy that nobody took.
    constexpr std::uint32_t accepts = 1;
    if (message.type == m_connection.atom("XdndStatus") && (message.data.data32[1] & accepts) == 0)
        message.data.data32[1] = 0;
}

void X11DragSupport::answer(const xcb_selection_request_event_t &request)
{
    // Old programs name no property and mean the target's name.
    const xcb_atom_t property = request.property != XCB_NONE ? request.property : request.target;
    xcb_selection_notify_event_t notify = {};
    notify.response_type = XCB_SELECTION_NOTIFY;
    notify.time = request.time;
    notify.requestor = request.requestor;
    notify.selection = request.selection;
    notify.target = request.target;
    notify.property = writeAnswer(request, property) ? property : xcb_atom_t{XCB_NONE};
    xcb_send_event(m_connection.get(), 0, request.requestor, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char *>(&notify));
    m_connection.flush();
}

bool X11DragSupport::writeAnswer(const xcb_selection_request_event_t &request, xcb_atom_t property)
{
    auto *const connection = m_connection.get();
    if (request.target == m_connection.atom("TARGETS")) {
        std::vector<xcb_atom_t> targets(m_contents.keyBegin(), m_contents.keyEnd());
        targets.push_back(request.target);
        xcb_change_property(connection, XCB_PROP_MODE_REPLACE, request.requestor, property,
                            XCB_ATOM_ATOM, 32, static_cast<std::uint32_t>(targets.size()),
                            targets.data());
        return true;
    }
    const auto found = m_contents.constFind(request.target);
    if (found == m_contents.cend())
        return false;
    if (found->size() > IncrementalTransfers::wholeBytes)
        return m_transfers.begin(request.requestor, property, request.target, *found);
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, request.requestor, property,
                        request.target, 8, static_cast<std::uint32_t>(found->size()),
                        found->constData());
    return true;
}

} // namespace corvane
