#include "platform/x11/windows/x11_ping_answers.h"

#include "platform/x11/base/x11_qt.h"

#include <QCoreApplication>

namespace corvane {

X11PingAnswers::X11PingAnswers(X11Connection &connection)
    : m_root(connection.root())
    , m_protocols(connection.atom("WM_PROTOCOLS"))
    , m_ping(connection.atom("_NET_WM_PING"))
{
    QCoreApplication::instance()->installNativeEventFilter(this);
}

X11PingAnswers::~X11PingAnswers()
{
    QCoreApplication::instance()->removeNativeEventFilter(this);
}

bool X11PingAnswers::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *)
{
    auto *const qt = x11_qt::connection();
    const auto &asked = *static_cast<const xcb_client_message_event_t *>(message);
    const bool isPing = qt && eventType == "xcb_generic_event_t"
        && (asked.response_type & 0x7f) == XCB_CLIENT_MESSAGE && asked.format == 32
        && asked.type == m_protocols && asked.data.data32[0] == m_ping && m_ping != XCB_NONE;
    if (!isPing || asked.window == m_root)
        return false;
    xcb_client_message_event_t answer = asked;
    answer.response_type = XCB_CLIENT_MESSAGE;
    answer.window = m_root;
    xcb_send_event(qt, 0, m_root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char *>(&answer));
    xcb_flush(qt);
    return true;
}

} // namespace corvane
