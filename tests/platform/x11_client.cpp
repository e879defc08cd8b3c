#include "platform/x11_client.h"

#include "platform/display.h"

#include <QFile>
#include <QUrl>

#include <poll.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <memory>

namespace corvane::test {

namespace {

struct Free {
    void operator()(void *memory) const { std::free(memory); }
};

constexpr std::uint32_t protocolVersion = 5;
const QByteArray directSaveType = "XdndDirectSave0";

} // namespace

X11Client::X11Client(const QRect &frame)
    : m_window(xcb_generate_id(connection()))
{
    const std::uint32_t values[] = {0x446688, 1, XCB_EVENT_MASK_PROPERTY_CHANGE};
    xcb_create_window(connection(), XCB_COPY_FROM_PARENT, m_window, m_server.root(),
                      static_cast<std::int16_t>(frame.x()), static_cast<std::int16_t>(frame.y()),
                      static_cast<std::uint16_t>(frame.width()),
                      static_cast<std::uint16_t>(frame.height()), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                      XCB_COPY_FROM_PARENT,
                      XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values);
    const std::uint32_t version = protocolVersion;
    xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, m_window, atom("XdndAware"),
                        XCB_ATOM_ATOM, 32, 1, &version);
    xcb_map_window(connection(), m_window);
    // The answer says that it is there.
    m_server.facts(m_window);
}

X11Client::~X11Client() = default;

void X11Client::startThread()
{
    m_thread = std::thread([this] {
        while (!m_isStopping) {
            const std::unique_ptr<xcb_generic_event_t, Free> event(
                xcb_poll_for_event(connection()));
            if (event) {
                handle(*event);
                xcb_flush(connection());
                continue;
            }
            pollfd waiting = {xcb_get_file_descriptor(connection()), POLLIN, 0};
            ::poll(&waiting, 1, 5);
        }
    });
}

void X11Client::stopThread()
{
    m_isStopping = true;
    if (m_thread.joinable())
        m_thread.join();
}

xcb_atom_t X11Client::atom(const QByteArray &name)
{
    const std::lock_guard lock(m_atomMutex);
    auto known = m_atoms.find(name);
    if (known == m_atoms.end())
        known = m_atoms.insert(name, m_server.atom(name));
    return *known;
}

QByteArray X11Client::nameOf(xcb_atom_t atom)
{
    const std::unique_ptr<xcb_get_atom_name_reply_t, Free> reply(
        xcb_get_atom_name_reply(connection(), xcb_get_atom_name(connection(), atom), nullptr));
    if (!reply)
        return {};
    return {xcb_get_atom_name_name(reply.get()), xcb_get_atom_name_name_length(reply.get())};
}

void X11Client::setBytes(xcb_window_t window, const char *property, xcb_atom_t type,
                         const QByteArray &bytes)
{
    xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, window, atom(property), type, 8,
                        static_cast<std::uint32_t>(bytes.size()), bytes.constData());
}

void X11Client::sendMessage(xcb_window_t to, const char *type, std::array<std::uint32_t, 5> data)
{
    queueMessage(to, type, data);
    xcb_flush(connection());
}

void X11Client::queueMessage(xcb_window_t to, const char *type, std::array<std::uint32_t, 5> data)
{
    xcb_client_message_event_t message = {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = to;
    message.type = atom(type);
    std::memcpy(message.data.data32, data.data(), sizeof data);
    xcb_send_event(connection(), 0, to, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char *>(&message));
}

// The source

DragSource::DragSource(QHash<QByteArray, QByteArray> offers, QByteArray action)
    : X11Client(frame)
    , m_offers(std::move(offers))
    , m_action(std::move(action))
{
    std::vector<xcb_atom_t> types;
    for (const QByteArray &type : m_offers.keys())
        types.push_back(atom(type));
    xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, window(), atom("XdndTypeList"),
                        XCB_ATOM_ATOM, 32, static_cast<std::uint32_t>(types.size()), types.data());
    if (m_offers.contains(directSaveType))
        setBytes(window(), directSaveType.constData(), atom("text/plain"), "a picture.png");
    startThread();
}

void DragSource::pickUp()
{
    xcb_set_selection_owner(connection(), window(), atom("XdndSelection"), XCB_CURRENT_TIME);
    xcb_flush(connection());
}

void DragSource::putDown()
{
    xcb_set_selection_owner(connection(), e2e::noWindow, atom("XdndSelection"), XCB_CURRENT_TIME);
    xcb_flush(connection());
}

void DragSource::copy()
{
    xcb_set_selection_owner(connection(), window(), atom("CLIPBOARD"), XCB_CURRENT_TIME);
    xcb_flush(connection());
    m_server.facts(window());
}

void DragSource::enter(xcb_window_t target)
{
    // The types are in the property, however few they are.
    sendMessage(target, "XdndEnter", {window(), protocolVersion << 24 | 1, 0, 0, 0});
}

void DragSource::moveTo(xcb_window_t target, QPoint point)
{
    {
        const std::lock_guard lock(m_mutex);
        m_status.reset();
    }
    const auto packed
        = static_cast<std::uint32_t>(point.x()) << 16 | static_cast<std::uint32_t>(point.y());
    sendMessage(target, "XdndPosition", {window(), 0, packed, XCB_CURRENT_TIME, atom(m_action)});
}

void DragSource::leave(xcb_window_t target)
{
    sendMessage(target, "XdndLeave", {window(), 0, 0, 0, 0});
}

void DragSource::drop(xcb_window_t target)
{
    sendMessage(target, "XdndDrop", {window(), 0, XCB_CURRENT_TIME, 0, 0});
}

std::optional<DragSource::Answer> DragSource::waitForStatus()
{
    std::optional<Answer> answer;
    eventually([&] {
        const std::lock_guard lock(m_mutex);
        answer = m_status;
        return answer.has_value();
    });
    return answer;
}

std::optional<DragSource::Answer> DragSource::waitForFinish()
{
    std::optional<Answer> answer;
    eventually([&] {
        const std::lock_guard lock(m_mutex);
        answer = m_finish;
        return answer.has_value();
    });
    return answer;
}

QList<QByteArray> DragSource::asked()
{
    const std::lock_guard lock(m_mutex);
    return m_asked;
}

DragSource::Answer DragSource::answerFrom(std::uint32_t flags, xcb_atom_t action)
{
    return {(flags & 1) != 0, action != e2e::noAtom ? nameOf(action) : QByteArray()};
}

void DragSource::handle(const xcb_generic_event_t &event)
{
    const int type = event.response_type & 0x7f;
    if (type == XCB_CLIENT_MESSAGE) {
        const auto &message = reinterpret_cast<const xcb_client_message_event_t &>(event);
        const std::uint32_t *data = message.data.data32;
        const bool isStatus = message.type == atom("XdndStatus");
        const auto heard = answerFrom(data[1], isStatus ? data[4] : data[2]);
        const std::lock_guard lock(m_mutex);
        (isStatus ? m_status : m_finish) = heard;
    } else if (type == XCB_SELECTION_REQUEST) {
        asked(reinterpret_cast<const xcb_selection_request_event_t &>(event));
    }
}

void DragSource::asked(const xcb_selection_request_event_t &request)
{
    const QByteArray type = nameOf(request.target);
    {
        const std::lock_guard lock(m_mutex);
        m_asked << type;
        if (m_silent.contains(type)) {
            m_unanswered << request;
            return;
        }
    }
    answer(request);
}

void DragSource::answer(const xcb_selection_request_event_t &request)
{
    const QByteArray type = nameOf(request.target);
    xcb_selection_notify_event_t notify = {};
    notify.response_type = XCB_SELECTION_NOTIFY;
    notify.time = request.time;
    notify.requestor = request.requestor;
    notify.selection = request.selection;
    notify.target = request.target;
    if (type == "TARGETS") {
        std::vector<xcb_atom_t> types;
        for (const QByteArray &offer : m_offers.keys())
            types.push_back(atom(offer));
        notify.property = request.property;
        xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, request.requestor,
                            request.property, XCB_ATOM_ATOM, 32,
                            static_cast<std::uint32_t>(types.size()), types.data());
    } else if (m_offers.contains(type)) {
        const QByteArray bytes = type == directSaveType ? saveDirectly() : m_offers.value(type);
        notify.property = request.property;
        xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, request.requestor,
                            request.property, request.target, 8,
                            static_cast<std::uint32_t>(bytes.size()), bytes.constData());
    }
    xcb_send_event(connection(), 0, request.requestor, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char *>(&notify));
    xcb_flush(connection());
}

void DragSource::keepSilentAbout(const QByteArray &type)
{
    const std::lock_guard lock(m_mutex);
    m_silent << type;
}

void DragSource::answerTheRest()
{
    QList<xcb_selection_request_event_t> requests;
    {
        const std::lock_guard lock(m_mutex);
        m_silent.clear();
        requests = std::exchange(m_unanswered, {});
    }
    for (const auto &request : requests)
        answer(request);
}

QByteArray DragSource::saveDirectly()
{
    const QByteArray address = m_server.property(window(), directSaveType);
    const QString path = QUrl::fromEncoded(address).toLocalFile();
    const auto write = [&](const QByteArray &bytes) {
        QFile file(path);
        if (file.open(QIODevice::WriteOnly))
            file.write(bytes);
    };
    switch (directSave) {
    case DirectSave::WritesTwice:
        write({});
        [[fallthrough]];
    case DirectSave::Writes:
        write(promisedBytes);
        break;
    case DirectSave::WritesLink:
        QFile::link(QStringLiteral("/etc/passwd"), path);
        break;
    case DirectSave::AnswersOnly:
        break;
    case DirectSave::Refuses:
        return "F";
    }
    return "S";
}

} // namespace corvane::test
