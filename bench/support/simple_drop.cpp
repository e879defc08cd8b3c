#include "support/simple_drop.h"

#include "support/table.h"
#include "support/x_desk.h"

#include <poll.h>
#include <xcb/xcb.h>

#include <array>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

namespace corvane::bench {

namespace {

struct Free {
    void operator()(void *memory) const { std::free(memory); }
};
template<typename Type>
using Reply = std::unique_ptr<Type, Free>;

constexpr std::uint32_t protocolVersion = 5;
/// In pixels from the top edge; the panel is higher than this.
constexpr int depth = 20;

class SimpleDrop {
public:
    /// What is dropped: `contents` as `type`.
    SimpleDrop(XDesk &desk, std::string type, std::string contents);
    ~SimpleDrop() { xcb_disconnect(m_connection); }
    SimpleDrop(const SimpleDrop &) = delete;
    SimpleDrop &operator=(const SimpleDrop &) = delete;

    void run();

private:
    xcb_atom_t atom(const std::string &name);
    xcb_window_t panel();
    void send(const char *type, std::array<std::uint32_t, 5> data);
    void waitFor(const char *type);
    void answer(const xcb_selection_request_event_t &request);

    XDesk &m_desk;
    std::string m_type;
    std::string m_contents;
    xcb_connection_t *m_connection;
    xcb_window_t m_root;
    xcb_window_t m_source;
    xcb_window_t m_target = XCB_NONE;
};

SimpleDrop::SimpleDrop(XDesk &desk, std::string type, std::string contents)
    : m_desk(desk)
    , m_type(std::move(type))
    , m_contents(std::move(contents))
    , m_connection(xcb_connect(nullptr, nullptr))
    , m_root(xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root)
    , m_source(xcb_generate_id(m_connection))
{
    const std::array<std::uint32_t, 2> values = {1, XCB_EVENT_MASK_BUTTON_PRESS};
    xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, m_source, m_root, 100, 300, 100, 100, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                      XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values.data());
    xcb_map_window(m_connection, m_source);
}

void SimpleDrop::run()
{
    // The reply also shows that the window exists.
    const xcb_atom_t type = atom(m_type);
    m_desk.moveTo(150, 350);
    m_desk.press();
    m_desk.sync();
    xcb_set_selection_owner(m_connection, m_source, atom("XdndSelection"), XCB_CURRENT_TIME);
    m_target = panel();
    send("XdndEnter", {m_source, protocolVersion << 24, type, 0, 0});
    const auto place = static_cast<std::uint32_t>(m_desk.width() / 2) << 16 | depth;
    send("XdndPosition", {m_source, 0, place, XCB_CURRENT_TIME, atom("XdndActionCopy")});
    waitFor("XdndStatus");
    m_desk.release();
    send("XdndDrop", {m_source, 0, XCB_CURRENT_TIME, 0, 0});
    waitFor("XdndFinished");
}

xcb_atom_t SimpleDrop::atom(const std::string &name)
{
    const auto length = static_cast<std::uint16_t>(name.size());
    const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
        m_connection, xcb_intern_atom(m_connection, 0, length, name.c_str()), nullptr));
    return reply->atom;
}

xcb_window_t SimpleDrop::panel()
{
    const xcb_atom_t dropTarget = atom("XdndAware");
    for (const double deadline = now() + 2000; now() < deadline;) {
        // The shelf opens at the first motion after the selection was taken.
        m_desk.moveTo(m_desk.width() / 2 + static_cast<int>(now()) % 2, depth);
        m_desk.sync();
        const Reply<xcb_translate_coordinates_reply_t> found(xcb_translate_coordinates_reply(
            m_connection,
            xcb_translate_coordinates(m_connection, m_root, m_root,
                                      static_cast<std::int16_t>(m_desk.width() / 2), depth),
            nullptr));
        if (!found || found->child == XCB_NONE)
            continue;
        const Reply<xcb_get_property_reply_t> mark(xcb_get_property_reply(
            m_connection,
            xcb_get_property(m_connection, 0, found->child, dropTarget, XCB_ATOM_ATOM, 0, 1),
            nullptr));
        if (mark && xcb_get_property_value_length(mark.get()) > 0)
            return found->child;
    }
    throw std::runtime_error("no panel opens for the text");
}

void SimpleDrop::send(const char *type, std::array<std::uint32_t, 5> data)
{
    xcb_client_message_event_t message = {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = m_target;
    message.type = atom(type);
    std::memcpy(message.data.data32, data.data(), sizeof data);
    xcb_send_event(m_connection, 0, m_target, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char *>(&message));
    xcb_flush(m_connection);
}

void SimpleDrop::waitFor(const char *type)
{
    const xcb_atom_t wanted = atom(type);
    for (const double deadline = now() + 2000; now() < deadline;) {
        while (const Reply<xcb_generic_event_t> event{xcb_poll_for_event(m_connection)}) {
            const int kind = event->response_type & 0x7f;
            if (kind == XCB_SELECTION_REQUEST)
                answer(reinterpret_cast<const xcb_selection_request_event_t &>(*event));
            else if (kind == XCB_CLIENT_MESSAGE
                     && reinterpret_cast<const xcb_client_message_event_t &>(*event).type == wanted)
                return;
        }
        pollfd descriptor = {xcb_get_file_descriptor(m_connection), POLLIN, 0};
        ::poll(&descriptor, 1, 50);
    }
    throw std::runtime_error(std::string("no ") + type);
}

void SimpleDrop::answer(const xcb_selection_request_event_t &request)
{
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, request.requestor, request.property,
                        request.target, 8, static_cast<std::uint32_t>(m_contents.size()),
                        m_contents.data());
    xcb_selection_notify_event_t notify = {};
    notify.response_type = XCB_SELECTION_NOTIFY;
    notify.time = request.time;
    notify.requestor = request.requestor;
    notify.selection = request.selection;
    notify.target = request.target;
    notify.property = request.property;
    xcb_send_event(m_connection, 0, request.requestor, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char *>(&notify));
    xcb_flush(m_connection);
}

} // namespace

void dropText(XDesk &desk)
{
    SimpleDrop(desk, "text/plain", "a text").run();
}

void dropFiles(XDesk &desk, const std::string &addresses)
{
    SimpleDrop(desk, "text/uri-list", addresses).run();
}

} // namespace corvane::bench
