#pragma once

#include <QCoreApplication>

#include <sys/socket.h>
#include <xcb/xcb.h>

#include <chrono>
#include <csignal>
#include <functional>
#include <future>
#include <thread>

namespace corvane::test {

/// Has the server at the other end of a connection stand still while `work` is done. Whether that
/// ended meanwhile: after a while the server goes on in any case, or a test would never end.
inline bool endsWhileTheServerStandsStill(xcb_connection_t *connection,
                                          const std::function<void()> &work)
{
    // Before the first turn of the event loop connections wait without a bound.
    QCoreApplication::processEvents();
    ucred server = {};
    socklen_t size = sizeof server;
    if (::getsockopt(xcb_get_file_descriptor(connection), SOL_SOCKET, SO_PEERCRED, &server, &size)
            != 0
        || ::kill(server.pid, SIGSTOP) != 0)
        return false;
    std::promise<void> ended;
    bool hasEnded = false;
    std::thread rescue([&, end = ended.get_future()] {
        hasEnded = end.wait_for(std::chrono::seconds{20}) == std::future_status::ready;
        ::kill(server.pid, SIGCONT);
    });
    work();
    ended.set_value();
    rescue.join();
    return hasEnded;
}

} // namespace corvane::test
