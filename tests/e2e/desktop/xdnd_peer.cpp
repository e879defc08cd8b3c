#include "e2e/desktop/xdnd_peer.h"

#include <QtEndian>

#include <xcb/xcb.h>

#include <cstdlib>

namespace corvane::e2e {

namespace {

constexpr uint32_t protocolVersion = 5;
// In bytes: the most that is given in one property. Qt looks for the next piece 20 times a second
// and ends a transfer after five seconds, so pieces are as large as the server allows.
constexpr qsizetype largestPiece = 12'000'000;

struct Free {
    void operator()(void *reply) const { std::free(reply); }
};

} // namespace

XdndPeer::XdndPeer(XDesktop &desktop, const QRect &frame)
    : m_desktop(desktop)
    , m_connection(std::make_unique<XServer>(
          desktop.environment().value(QStringLiteral("DISPLAY")).toLatin1()))
    , m_window(xcb_generate_id(connection()))
    , m_frame(frame)
{
    // Unmanaged, so that the window is exactly where the test wants it, and takes no focus.
    const std::array<uint32_t, 3> values{0x446688, 1,
                                         XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE
                                             | XCB_EVENT_MASK_PROPERTY_CHANGE};
    xcb_create_window(connection(), XCB_COPY_FROM_PARENT, m_window, m_connection->root(),
                      static_cast<int16_t>(frame.x()), static_cast<int16_t>(frame.y()),
                      static_cast<uint16_t>(frame.width()), static_cast<uint16_t>(frame.height()),
                      0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                      XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK,
                      values.data());
    xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, m_window, atom("XdndAware"),
                        XCB_ATOM_ATOM, 32, 1, &protocolVersion);
    xcb_map_window(connection(), m_window);
    xcb_flush(connection());
    // The window is mapped when the reply to a later request has come.
    m_connection->facts(m_window);
}

XdndPeer::~XdndPeer() = default;

void XdndPeer::die()
{
    m_connection.reset();
}

xcb_atom_t XdndPeer::atom(const QByteArray &name)
{
    auto known = m_atoms.find(name);
    if (known == m_atoms.end())
        known = m_atoms.insert(name, m_connection->atom(name));
    return *known;
}

QByteArray XdndPeer::nameOf(xcb_atom_t atom)
{
    const std::unique_ptr<xcb_get_atom_name_reply_t, Free> reply(
        xcb_get_atom_name_reply(connection(), xcb_get_atom_name(connection(), atom), nullptr));
    if (!reply)
        return {};
    return {xcb_get_atom_name_name(reply.get()), xcb_get_atom_name_name_length(reply.get())};
}

void XdndPeer::send(xcb_window_t to, const QByteArray &type, std::array<uint32_t, 5> data)
{
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = to;
    message.type = atom(type);
    std::copy(data.begin(), data.end(), message.data.data32);
    xcb_send_event(connection(), 0, to, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char *>(&message));
    // The hands are another client of the server, which may be served first: what they do next has
    // to come after this message. The reply comes after the server has handled it.
    std::free(xcb_get_input_focus_reply(connection(), xcb_get_input_focus(connection()), nullptr));
}

void XdndPeer::pump()
{
    if (!m_connection)
        return;
    for (;;) {
        const std::unique_ptr<xcb_generic_event_t, Free> event(xcb_poll_for_event(connection()));
        if (!event)
            return;
        switch (event->response_type & 0x7f) {
        case XCB_CLIENT_MESSAGE:
            clientMessage(reinterpret_cast<const xcb_client_message_event_t &>(*event));
            break;
        case XCB_BUTTON_PRESS:
            ++m_clicks;
            break;
        default:
            otherEvent(*event);
        }
    }
}

// The source

XdndSource::XdndSource(XDesktop &desktop, QList<Offer> offers, QByteArray proposedAction)
    : XdndPeer(desktop, QRect(40, 700, 120, 120))
    , m_offers(std::move(offers))
    , m_largestPiece(largestPiece)
    , m_proposedAction(std::move(proposedAction))
{
    std::vector<xcb_atom_t> types;
    for (const Offer &offer : m_offers)
        types.push_back(atom(offer.type));
    xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, window(), atom("XdndTypeList"),
                        XCB_ATOM_ATOM, 32, static_cast<uint32_t>(types.size()), types.data());
    const std::array<xcb_atom_t, 2> actions{atom(m_proposedAction), atom("XdndActionCopy")};
    xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, window(), atom("XdndActionList"),
                        XCB_ATOM_ATOM, 32, actions.size(), actions.data());
}

void XdndSource::pickUp()
{
    Hands &hands = m_desktop.hands();
    hands.beginDrag(frame().center(), frame().center() + QPoint(100, -100));
    xcb_set_selection_owner(connection(), window(), atom("XdndSelection"), XCB_CURRENT_TIME);
    xcb_flush(connection());
    // The pointer goes on moving, as that of a real source.
    hands.glideTo(m_desktop.server().pointerPosition() + QPoint(20, -20));
    hands.glideTo(m_desktop.server().pointerPosition() + QPoint(20, -20));
}

std::optional<XdndSource::Status> XdndSource::hover(xcb_window_t target, QPoint point)
{
    enter(target, point);
    return waitForStatus();
}

std::optional<XdndSource::Status> XdndSource::waitForStatus()
{
    pumpUntil([this] { return m_status.has_value(); });
    return m_status;
}

void XdndSource::enter(xcb_window_t target, QPoint point)
{
    m_desktop.hands().glideTo(point);
    if (m_target != target) {
        m_target = target;
        std::array<uint32_t, 5> enter{window(), protocolVersion << 24, 0, 0, 0};
        if (m_offers.size() > 3)
            enter[1] |= 1;
        for (qsizetype i = 0; i < std::min<qsizetype>(3, m_offers.size()); ++i)
            enter[static_cast<size_t>(2 + i)] = atom(m_offers[i].type);
        send(target, "XdndEnter", enter);
    }
    m_status.reset();
    send(target, "XdndPosition",
         {window(), 0, static_cast<uint32_t>(point.x()) << 16 | static_cast<uint32_t>(point.y()),
          XCB_CURRENT_TIME, atom(m_proposedAction)});
}

void XdndSource::leave(xcb_window_t target)
{
    send(target, "XdndLeave", {window(), 0, 0, 0, 0});
    m_target = noWindow;
}

void XdndSource::drop()
{
    m_finish.reset();
    m_desktop.hands().release();
    send(m_target, "XdndDrop", {window(), 0, XCB_CURRENT_TIME, 0, 0});
}

void XdndSource::letGo()
{
    m_desktop.hands().release();
}

std::optional<XdndSource::Status> XdndSource::waitForFinish()
{
    pumpUntil([this] { return m_finish.has_value(); });
    return m_finish;
}

void XdndSource::clientMessage(const xcb_client_message_event_t &message)
{
    const uint32_t *data = message.data.data32;
    if (message.type == atom("XdndStatus"))
        m_status = Status{(data[1] & 1U) != 0, data[4] != 0 ? nameOf(data[4]) : QByteArray()};
    else if (message.type == atom("XdndFinished"))
        m_finish = Status{(data[1] & 1U) != 0, data[2] != 0 ? nameOf(data[2]) : QByteArray()};
}

void XdndSource::otherEvent(const xcb_generic_event_t &event)
{
    const int type = event.response_type & 0x7f;
    if (type == XCB_SELECTION_REQUEST) {
        const auto &request = reinterpret_cast<const xcb_selection_request_event_t &>(event);
        m_asked.append(nameOf(request.target));
        answer(request);
    } else if (type == XCB_PROPERTY_NOTIFY) {
        const auto &change = reinterpret_cast<const xcb_property_notify_event_t &>(event);
        for (qsizetype i = 0; i < m_transfers.size(); ++i) {
            if (change.state != XCB_PROPERTY_DELETE || change.window != m_transfers[i].requestor
                || change.atom != m_transfers[i].property)
                continue;
            const bool isLast = m_transfers[i].sent == m_transfers[i].data.size();
            goOn(m_transfers[i]);
            if (isLast)
                m_transfers.removeAt(i);
            break;
        }
    }
}

void XdndSource::answer(const xcb_selection_request_event_t &request)
{
    const QByteArray type = nameOf(request.target);

    xcb_selection_notify_event_t notify{};
    notify.response_type = XCB_SELECTION_NOTIFY;
    notify.time = request.time;
    notify.requestor = request.requestor;
    notify.selection = request.selection;
    notify.target = request.target;
    notify.property = noAtom;

    for (const Offer &offer : m_offers) {
        if (offer.type != type)
            continue;
        if (offer.isSilent) {
            m_unanswered << request;
            return;
        }
        notify.property = request.property;
        if (offer.data.size() <= m_largestPiece) {
            xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, request.requestor,
                                request.property, request.target, 8,
                                static_cast<uint32_t>(offer.data.size()), offer.data.constData());
        } else {
            const uint32_t watch = XCB_EVENT_MASK_PROPERTY_CHANGE;
            xcb_change_window_attributes(connection(), request.requestor, XCB_CW_EVENT_MASK,
                                         &watch);
            const auto atLeast = static_cast<uint32_t>(offer.data.size());
            xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, request.requestor,
                                request.property, atom("INCR"), 32, 1, &atLeast);
            m_transfers.append(
                {request.requestor, request.property, request.target, offer.data, 0});
        }
        break;
    }
    xcb_send_event(connection(), 0, request.requestor, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char *>(&notify));
    xcb_flush(connection());
}

void XdndSource::answerTheRest()
{
    for (Offer &offer : m_offers)
        offer.isSilent = false;
    for (const auto &request : std::exchange(m_unanswered, {}))
        answer(request);
}

void XdndSource::goOn(Transfer &transfer)
{
    // The last piece is empty, which ends the transfer.
    const qsizetype size = std::min(m_largestPiece, transfer.data.size() - transfer.sent);
    xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, transfer.requestor, transfer.property,
                        transfer.type, 8, static_cast<uint32_t>(size),
                        transfer.data.constData() + transfer.sent);
    transfer.sent += size;
    xcb_flush(connection());
}

// The target

XdndTarget::XdndTarget(XDesktop &desktop, const QRect &frame, bool accepts, QByteArray wantedType)
    : XdndPeer(desktop, frame)
    , m_accepts(accepts)
    , m_wantedType(std::move(wantedType))
{
}

void XdndTarget::clientMessage(const xcb_client_message_event_t &message)
{
    const uint32_t *data = message.data.data32;
    const auto atomsOf = [this](const QByteArray &value) {
        QList<QByteArray> names;
        for (qsizetype i = 0; i + 4 <= value.size(); i += 4)
            names.append(nameOf(qFromUnaligned<uint32_t>(value.constData() + i)));
        return names;
    };
    if (message.type == atom("XdndEnter")) {
        m_source = data[0];
        m_positions = 0;
        m_types.clear();
        if ((data[1] & 1U) != 0) {
            m_types = atomsOf(m_desktop.server().property(m_source, "XdndTypeList"));
        } else {
            for (int i = 2; i < 5; ++i) {
                if (data[i] != 0)
                    m_types.append(nameOf(data[i]));
            }
        }
        m_actions = atomsOf(m_desktop.server().property(m_source, "XdndActionList"));
    } else if (message.type == atom("XdndPosition")) {
        ++m_positions;
        send(m_source, "XdndStatus",
             {window(), m_accepts ? 3U : 0U, 0, 0, m_accepts ? atom("XdndActionCopy") : 0U});
    } else if (message.type == atom("XdndDrop")) {
        m_wasDroppedOn = true;
        if (finish == Finish::WellWithoutFetching) {
            sayHowItEnded();
            return;
        }
        xcb_convert_selection(connection(), window(), atom("XdndSelection"), atom(m_wantedType),
                              atom("RECEIVED"), data[2]);
        xcb_flush(connection());
    }
}

void XdndTarget::otherEvent(const xcb_generic_event_t &event)
{
    if ((event.response_type & 0x7f) != XCB_SELECTION_NOTIFY)
        return;
    const auto &notify = reinterpret_cast<const xcb_selection_notify_event_t &>(event);
    if (notify.property != noAtom)
        m_data = m_desktop.server().property(window(), "RECEIVED");
    sayHowItEnded();
}

void XdndTarget::sayHowItEnded()
{
    const bool isWell
        = finish == Finish::WellWithoutFetching || (finish == Finish::Honest && m_data);
    m_hasFinished = true;
    if (finish != Finish::Never)
        send(m_source, "XdndFinished",
             {window(), isWell ? 1U : 0U, isWell ? atom("XdndActionCopy") : 0U, 0, 0});
}

} // namespace corvane::e2e
