#include "platform/wayland/base/eager_compositor.h"

#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>
#include <wayland-client.h>

#include <cstdio>
#include <cstring>
#include <optional>
#include <string_view>

namespace corvane::test {

namespace {

constexpr int moment = 100;

/// Words of the protocol, of 32 bits each.
using Words = std::vector<std::uint32_t>;

void send(int socket, std::uint32_t object, std::uint32_t event, const Words &arguments)
{
    Words message{object, static_cast<std::uint32_t>((8 + 4 * arguments.size()) << 16U) | event};
    message.insert(message.end(), arguments.begin(), arguments.end());
    const std::size_t bytes = 4 * message.size();
    if (::send(socket, message.data(), bytes, MSG_NOSIGNAL) != static_cast<ssize_t>(bytes))
        std::perror("a compositor's event");
}

Words withText(std::uint32_t before, std::string_view text, std::uint32_t after)
{
    const std::size_t size = text.size() + 1;
    Words words(2 + (size + 3) / 4, 0);
    words[0] = before;
    words[1] = static_cast<std::uint32_t>(size);
    std::memcpy(&words[2], text.data(), text.size());
    words.push_back(after);
    return words;
}

/// What one client asks, and what it is answered.
class Conversation {
public:
    explicit Conversation(int socket)
        : m_socket(socket)
    {
    }
    bool hasMark() const { return m_mark.has_value(); }
    void heard(const char *bytes, std::size_t size)
    {
        m_bytes.insert(m_bytes.end(), bytes, bytes + size);
        while (m_bytes.size() >= 8) {
            std::uint32_t head[2] = {};
            std::memcpy(head, m_bytes.data(), sizeof head);
            const std::size_t length = head[1] >> 16U;
            if (length < 8 || m_bytes.size() < length)
                return;
            // What is new is named last, in all that is asked here.
            std::uint32_t made = 0;
            std::memcpy(&made, m_bytes.data() + length - 4, sizeof made);
            answer(head[0], head[1] & 0xffffU, made);
            m_bytes.erase(m_bytes.begin(), m_bytes.begin() + static_cast<std::ptrdiff_t>(length));
        }
    }
    void reachMark()
    {
        if (!m_mark)
            return;
        send(m_socket, *m_mark, 0, {1});
        send(m_socket, display, 1, {*m_mark});
        m_mark.reset();
    }

private:
    static constexpr std::uint32_t display = 1;

    void answer(std::uint32_t object, std::uint32_t request, std::uint32_t made)
    {
        if (object == display && request == 0) {
            reachMark();
            m_mark = made;
        } else if (object == display && request == 1) {
            m_registry = made;
            send(m_socket, made, 0, withText(1, wl_seat_interface.name, 3));
        } else if (object == m_registry && request == 0) {
            send(m_socket, made, 0, {EagerCompositor::devices});
            reachMark();
        }
    }

    int m_socket;
    std::vector<char> m_bytes;
    std::uint32_t m_registry = 0;
    std::optional<std::uint32_t> m_mark;
};

} // namespace

EagerCompositor::EagerCompositor()
{
    int ends[2] = {-1, -1};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0)
        return;
    m_socket = ends[0];
    m_display = wl_display_connect_to_fd(ends[1]);
    m_thread = std::thread([this] { serve(); });
}

EagerCompositor::~EagerCompositor()
{
    if (m_display)
        wl_display_disconnect(m_display);
    if (m_thread.joinable())
        m_thread.join();
    if (m_socket >= 0)
        ::close(m_socket);
}

void EagerCompositor::serve() const
{
    Conversation conversation(m_socket);
    char bytes[4096];
    while (true) {
        pollfd waiting = {m_socket, POLLIN, 0};
        if (::poll(&waiting, 1, conversation.hasMark() ? moment : -1) == 0) {
            conversation.reachMark();
            continue;
        }
        const ssize_t size = ::recv(m_socket, bytes, sizeof bytes, 0);
        if (size <= 0)
            return;
        conversation.heard(bytes, static_cast<std::size_t>(size));
    }
}

} // namespace corvane::test
