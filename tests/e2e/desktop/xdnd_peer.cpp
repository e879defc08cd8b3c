#include "e2e/desktop/xdnd_peer.h"

#include <QtEndian>

#include <xcb/xcb.h>

#include <cstdlib>

namespace corvane::e2e {

namespace {

constexpr uint32_t protocolVersion = 5;
// What goes into one property; more is handed over piece by piece. The toolkit looks for the next
// piece 20 times a second and gives a transfer five seconds in all, so pieces are as large as the
// server takes them.
constexpr qsizetype largestPiece = 12'000'000;

struct Free {
    void operator()(void *reply) const { std::free(reply); }
};

} // namespace

XdndPeer::XdndPeer(XDesktop &desktop, const QRect &frame)
    : desktop_(desktop)
    , connection_(std::make_unique<XServer>(
          desktop.environment().value(QStringLiteral("DISPLAY")).toLatin1()))
    , window_(xcb_generate_id(connection()))
    , frame_(frame)
{
    // No window manager has a say: the window is where the test wants it, and takes no focus.
    const std::array<uint32_t, 3> values{0x446688, 1,
                                         XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE
                                             | XCB_EVENT_MASK_PROPERTY_CHANGE};
    xcb_create_window(connection(), XCB_COPY_FROM_PARENT, window_, connection_->root(),
                      static_cast<int16_t>(frame.x()), static_cast<int16_t>(frame.y()),
                      static_cast<uint16_t>(frame.width()), static_cast<uint16_t>(frame.height()),
                      0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                      XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK,
                      values.data());
    xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, window_, atom("XdndAware"),
                        XCB_ATOM_ATOM, 32, 1, &protocolVersion);
    xcb_map_window(connection(), window_);
    xcb_flush(connection());
    // Mapped once an answer to a later question has come.
    connection_->facts(window_);
}

XdndPeer::~XdndPeer() = default;

void XdndPeer::die()
{
    connection_.reset();
}

xcb_atom_t XdndPeer::atom(const QByteArray &name)
{
    auto known = atoms_.find(name);
    if (known == atoms_.end())
        known = atoms_.insert(name, connection_->atom(name));
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
    xcb_flush(connection());
}

void XdndPeer::pump()
{
    if (!connection_)
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
            ++clicks_;
            break;
        default:
            otherEvent(*event);
        }
    }
}

// The source

XdndSource::XdndSource(XDesktop &desktop, QList<Offer> offers, QByteArray proposedAction)
    : XdndPeer(desktop, QRect(40, 700, 120, 120))
    , offers_(std::move(offers))
    , proposedAction_(std::move(proposedAction))
{
    std::vector<xcb_atom_t> types;
    for (const Offer &offer : offers_)
        types.push_back(atom(offer.type));
    xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, window(), atom("XdndTypeList"),
                        XCB_ATOM_ATOM, 32, static_cast<uint32_t>(types.size()), types.data());
    const std::array<xcb_atom_t, 2> actions{atom(proposedAction_), atom("XdndActionCopy")};
    xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, window(), atom("XdndActionList"),
                        XCB_ATOM_ATOM, 32, actions.size(), actions.data());
}

void XdndSource::pickUp()
{
    Hands &hands = desktop_.hands();
    hands.beginDrag(frame().center(), frame().center() + QPoint(100, -100));
    xcb_set_selection_owner(connection(), window(), atom("XdndSelection"), XCB_CURRENT_TIME);
    xcb_flush(connection());
    // A real source's pointer goes on moving, too.
    hands.glideTo(desktop_.server().pointerPosition() + QPoint(20, -20));
    hands.glideTo(desktop_.server().pointerPosition() + QPoint(20, -20));
}

std::optional<XdndSource::Status> XdndSource::hover(xcb_window_t target, QPoint point)
{
    desktop_.hands().glideTo(point);
    if (target_ != target) {
        target_ = target;
        std::array<uint32_t, 5> enter{window(), protocolVersion << 24, 0, 0, 0};
        if (offers_.size() > 3)
            enter[1] |= 1;
        for (qsizetype i = 0; i < std::min<qsizetype>(3, offers_.size()); ++i)
            enter[static_cast<size_t>(2 + i)] = atom(offers_[i].type);
        send(target, "XdndEnter", enter);
    }
    status_.reset();
    send(target, "XdndPosition",
         {window(), 0, static_cast<uint32_t>(point.x()) << 16 | static_cast<uint32_t>(point.y()),
          XCB_CURRENT_TIME, atom(proposedAction_)});
    pumpUntil([this] { return status_.has_value(); });
    return status_;
}

void XdndSource::leave(xcb_window_t target)
{
    send(target, "XdndLeave", {window(), 0, 0, 0, 0});
    target_ = noWindow;
}

void XdndSource::drop()
{
    finish_.reset();
    desktop_.hands().release();
    send(target_, "XdndDrop", {window(), 0, XCB_CURRENT_TIME, 0, 0});
}

void XdndSource::letGo()
{
    desktop_.hands().release();
}

std::optional<XdndSource::Status> XdndSource::waitForFinish()
{
    pumpUntil([this] { return finish_.has_value(); });
    return finish_;
}

void XdndSource::clientMessage(const xcb_client_message_event_t &message)
{
    const uint32_t *data = message.data.data32;
    if (message.type == atom("XdndStatus"))
        status_ = Status{(data[1] & 1U) != 0, data[4] != 0 ? nameOf(data[4]) : QByteArray()};
    else if (message.type == atom("XdndFinished"))
        finish_ = Status{(data[1] & 1U) != 0, data[2] != 0 ? nameOf(data[2]) : QByteArray()};
}

void XdndSource::otherEvent(const xcb_generic_event_t &event)
{
    const int type = event.response_type & 0x7f;
    if (type == XCB_SELECTION_REQUEST) {
        answer(reinterpret_cast<const xcb_selection_request_event_t &>(event));
    } else if (type == XCB_PROPERTY_NOTIFY) {
        const auto &change = reinterpret_cast<const xcb_property_notify_event_t &>(event);
        for (qsizetype i = 0; i < transfers_.size(); ++i) {
            if (change.state != XCB_PROPERTY_DELETE || change.window != transfers_[i].requestor
                || change.atom != transfers_[i].property)
                continue;
            const bool isLast = transfers_[i].sent == transfers_[i].data.size();
            goOn(transfers_[i]);
            if (isLast)
                transfers_.removeAt(i);
            break;
        }
    }
}

void XdndSource::answer(const xcb_selection_request_event_t &request)
{
    const QByteArray type = nameOf(request.target);
    asked_.append(type);

    xcb_selection_notify_event_t notify{};
    notify.response_type = XCB_SELECTION_NOTIFY;
    notify.time = request.time;
    notify.requestor = request.requestor;
    notify.selection = request.selection;
    notify.target = request.target;
    notify.property = noAtom;

    for (const Offer &offer : offers_) {
        if (offer.type != type)
            continue;
        if (offer.isSilent)
            return;
        notify.property = request.property;
        if (offer.data.size() <= largestPiece) {
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
            transfers_.append({request.requestor, request.property, request.target, offer.data, 0});
        }
        break;
    }
    xcb_send_event(connection(), 0, request.requestor, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char *>(&notify));
    xcb_flush(connection());
}

void XdndSource::goOn(Transfer &transfer)
{
    // Empty at last, which is how the end is told.
    const qsizetype size = std::min(largestPiece, transfer.data.size() - transfer.sent);
    xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, transfer.requestor, transfer.property,
                        transfer.type, 8, static_cast<uint32_t>(size),
                        transfer.data.constData() + transfer.sent);
    transfer.sent += size;
    xcb_flush(connection());
}

// The target

XdndTarget::XdndTarget(XDesktop &desktop, const QRect &frame, bool accepts, QByteArray wantedType)
    : XdndPeer(desktop, frame)
    , accepts_(accepts)
    , wantedType_(std::move(wantedType))
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
        source_ = data[0];
        positions_ = 0;
        types_.clear();
        if ((data[1] & 1U) != 0) {
            types_ = atomsOf(desktop_.server().property(source_, "XdndTypeList"));
        } else {
            for (int i = 2; i < 5; ++i) {
                if (data[i] != 0)
                    types_.append(nameOf(data[i]));
            }
        }
        actions_ = atomsOf(desktop_.server().property(source_, "XdndActionList"));
    } else if (message.type == atom("XdndPosition")) {
        ++positions_;
        send(source_, "XdndStatus",
             {window(), accepts_ ? 3U : 0U, 0, 0, accepts_ ? atom("XdndActionCopy") : 0U});
    } else if (message.type == atom("XdndDrop")) {
        xcb_convert_selection(connection(), window(), atom("XdndSelection"), atom(wantedType_),
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
        data_ = desktop_.server().property(window(), "RECEIVED");
    send(source_, "XdndFinished",
         {window(), data_ ? 1U : 0U, data_ ? atom("XdndActionCopy") : 0U, 0, 0});
}

} // namespace corvane::e2e
