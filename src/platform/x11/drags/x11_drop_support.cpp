#include "platform/x11/drags/x11_drop_support.h"

#include "platform/x11/base/x11_qt.h"

#include <QCoreApplication>

#include <utility>

namespace corvane {

namespace {

/// The types that an XdndEnter message names itself; none if there are more than three, which the
/// source's window then lists.
std::vector<xcb_atom_t> typesIn(const xcb_client_message_event_t &enter)
{
    std::vector<xcb_atom_t> types;
    if ((enter.data.data32[1] & 1) != 0)
        return types;
    for (int i = 2; i < 5; ++i) {
        if (enter.data.data32[i] != XCB_NONE)
            types.push_back(enter.data.data32[i]);
    }
    return types;
}

} // namespace

X11DropSupport::X11DropSupport(X11Connection &connection, MainQueue &queue)
    : m_connection(connection)
    , m_queue(queue)
    , m_reader(connection, queue, "XdndSelection")
{
    auto *application = QCoreApplication::instance();
    application->installNativeEventFilter(this);
    m_programEnds
        = QObject::connect(application, &QCoreApplication::aboutToQuit, [this] { finishDrops(); });
}

X11DropSupport::~X11DropSupport()
{
    QObject::disconnect(m_programEnds);
    if (auto *application = QCoreApplication::instance())
        application->removeNativeEventFilter(this);
    finishDrops();
    if (m_drag)
        m_drag->forget();
}

Subscription X11DropSupport::addReceiver(QWindow &window, DropReceiver &receiver)
{
    return m_places.subscribe({&window, &receiver});
}

DropReceiver *X11DropSupport::receiverOf(xcb_window_t window) const
{
    DropReceiver *receiver = nullptr;
    m_places.anyOf([&](const Place &place) {
        if (place.window && x11_qt::nativeWindow(*place.window) == window)
            receiver = place.receiver;
        return receiver != nullptr;
    });
    return receiver;
}

bool X11DropSupport::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *)
{
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    if ((event->response_type & 0x7f) != XCB_CLIENT_MESSAGE)
        return false;
    auto &told = *static_cast<xcb_client_message_event_t *>(message);
    DropReceiver *const receiver = told.format == 32 ? receiverOf(told.window) : nullptr;
    if (!receiver)
        return false;
    if (told.type == m_connection.atom("XdndEnter")) {
        enter(told, *receiver);
        return false;
    }
    // A position that was held back and sent again arrives after the end of its drag where that
    // comes meanwhile: Qt would take it for a drag that begins, and that never ends.
    if (!m_drag || told.data.data32[0] != m_drag->source() || told.window != m_drag->target())
        return told.type == m_connection.atom("XdndPosition");
    if (told.type == m_connection.atom("XdndPosition"))
        return position(told, *receiver);
    if (told.type == m_connection.atom("XdndLeave"))
        leave();
    else if (told.type == m_connection.atom("XdndDrop"))
        drop(told, *receiver);
    return false;
}

void X11DropSupport::enter(const xcb_client_message_event_t &message, const DropReceiver &receiver)
{
    m_held.reset();
    m_drag = std::make_shared<X11IncomingDrag>(
        m_connection, m_queue, m_reader,
        X11IncomingDrag::Source{message.data.data32[0], message.window, typesIn(message)});
    m_addresses
        = receiver.needsAddresses(m_drag->types()) ? Addresses::Needed : Addresses::NotNeeded;
}

bool X11DropSupport::position(const xcb_client_message_event_t &message,
                              const DropReceiver &receiver)
{
    if (m_addresses == Addresses::NotNeeded)
        return false;
    m_held = message;
    if (m_addresses == Addresses::Asked)
        return true;
    m_addresses = Addresses::Asked;
    // Sources answer only requests with the time that they told with the position.
    m_drag->setTime(message.data.data32[3]);
    fetchAddresses(receiver.addressTypes(m_drag->types()));
    m_queue.asyncAfter(hoverPatience, m_lifetime.guard([this, drag = std::weak_ptr(m_drag)] {
        if (!drag.expired() && drag.lock() == m_drag)
            decide();
    }));
    return true;
}

void X11DropSupport::fetchAddresses(QStringList types)
{
    if (types.isEmpty()) {
        decide();
        return;
    }
    const QString type = types.takeFirst();
    m_drag->fetch(type, maximumAddressBytes,
                  m_lifetime.guard([this, types = std::move(types), drag = m_drag.get()](
                                       IncomingDrag::Outcome outcome, const QByteArray &bytes) {
                      if (drag != m_drag.get())
                          return;
                      const bool isKnown = !bytes.isEmpty();
                      if (isKnown || outcome == IncomingDrag::Outcome::Lost)
                          decide();
                      else
                          fetchAddresses(types);
                  }));
}

/// Lets Qt have the held position; the receiver decides by the addresses known so far.
void X11DropSupport::decide()
{
    if (m_addresses != Addresses::Asked)
        return;
    m_addresses = Addresses::NotNeeded;
    const auto held = std::exchange(m_held, std::nullopt);
    if (!held)
        return;
    xcb_send_event(m_connection.get(), 0, held->window, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char *>(&*held));
    m_connection.flush();
}

std::shared_ptr<X11IncomingDrag> X11DropSupport::leave()
{
    m_held.reset();
    m_addresses = Addresses::NotNeeded;
    return std::exchange(m_drag, nullptr);
}

void X11DropSupport::drop(xcb_client_message_event_t &message, DropReceiver &receiver)
{
    if (onDropped)
        onDropped();
    const auto dropped = leave();
    dropped->setTime(message.data.data32[2]);
    dropped->setDropped();
    std::erase_if(m_drops, [](const auto &drop) { return drop.expired(); });
    if (m_drops.size() < maximumDrops && receiver.takeDrop(dropped))
        m_drops.push_back(dropped);
    else
        dropped->finish(false);
    // Made a leave for Qt: it then forgets the drag without telling the source that the drop is
    // over.
    message.type = m_connection.atom("XdndLeave");
}

void X11DropSupport::finishDrops()
{
    for (const auto &drop : std::exchange(m_drops, {})) {
        if (const auto waiting = drop.lock())
            waiting->forget();
    }
}

} // namespace corvane
