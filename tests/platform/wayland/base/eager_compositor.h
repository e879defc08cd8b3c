#pragma once

#include <cstdint>
#include <thread>
#include <vector>

struct wl_display;

namespace corvane::test {

/// The other end of a connection: a compositor that has nothing but a seat, and tells of that one's
/// devices as soon as it is bound. A mark it answers once nothing more is asked of it for a moment,
/// so that whatever a client asks before the answer is answered before it as well.
class EagerCompositor {
public:
    EagerCompositor();
    ~EagerCompositor();
    EagerCompositor(const EagerCompositor &) = delete;
    EagerCompositor &operator=(const EagerCompositor &) = delete;

    static constexpr std::uint32_t devices = 7;

    wl_display *display() const { return m_display; }

private:
    void serve() const;

    int m_socket = -1;
    wl_display *m_display = nullptr;
    std::thread m_thread;
};

} // namespace corvane::test
