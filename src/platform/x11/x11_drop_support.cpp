#include "platform/x11/x11_drop_support.h"

#include "platform/file_url.h"
#include "platform/x11/file_arrival.h"
#include "platform/x11/x11_reply.h"

#include <QCoreApplication>

namespace corvane {

namespace {

constexpr auto directSave = "XdndDirectSave0";
constexpr std::uint32_t longestFileName = 1024;

} // namespace

X11DropSupport::X11DropSupport(X11Connection &connection)
    : m_connection(connection)
{
    QCoreApplication::instance()->installNativeEventFilter(this);
}

X11DropSupport::~X11DropSupport()
{
    if (auto *application = QCoreApplication::instance())
        application->removeNativeEventFilter(this);
}

QString X11DropSupport::directSaveType() const
{
    return QLatin1String(directSave);
}

std::optional<QString> X11DropSupport::promisedFileName()
{
    const X11Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        m_connection.get(),
        xcb_get_property(m_connection.get(), 0, m_source, m_connection.atom(directSave),
                         XCB_GET_PROPERTY_TYPE_ANY, 0, longestFileName / 4),
        nullptr));
    if (!reply || reply->format != 8)
        return std::nullopt;
    const QByteArray name(static_cast<const char *>(xcb_get_property_value(reply.get())),
                          xcb_get_property_value_length(reply.get()));
    if (name.isEmpty())
        return std::nullopt;
    return QString::fromUtf8(name);
}

bool X11DropSupport::receivePromisedFile(const QUrl &destination, const Fetch &fetch)
{
    FileArrival arrival(file_url::nativePath(destination));
    const QByteArray address = destination.toEncoded(QUrl::FullyEncoded);
    const X11Reply<xcb_generic_error_t> error(xcb_request_check(
        m_connection.get(),
        xcb_change_property_checked(m_connection.get(), XCB_PROP_MODE_REPLACE, m_source,
                                    m_connection.atom(directSave), m_connection.atom("text/plain"),
                                    8, static_cast<std::uint32_t>(address.size()),
                                    address.constData())));
    // 'S' is success; 'F' asks us to save by ourselves, 'E' is an error.
    if (!error && fetch(directSaveType()).startsWith('S') && arrival.wait())
        return true;
    arrival.discard();
    return false;
}

bool X11DropSupport::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *)
{
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    if ((event->response_type & 0x7f) != XCB_CLIENT_MESSAGE)
        return false;
    const auto &enter = *static_cast<const xcb_client_message_event_t *>(message);
    if (enter.format == 32 && enter.type == m_connection.atom("XdndEnter"))
        m_source = enter.data.data32[0];
    return false;
}

} // namespace corvane
