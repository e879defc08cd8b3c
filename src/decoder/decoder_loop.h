#pragma once

#include "decoder/request_handler.h"
#include "platform/system/file_descriptor.h"
#include "platform/system/packet_socket.h"

#include <thread>

namespace corvane {

/// Serves the program at the other end of a socket until that end closes, nothing is asked for a
/// while, or the process has done enough.
class DecoderLoop {
public:
    /// An idle process ends after this.
    static constexpr int idleMilliseconds = 20'000;
    /// Of processor time; then a new process takes over, well before the limit.
    static constexpr int worn = 30;

    /// When it ends by itself: after waiting so long for a request, in milliseconds, and after so
    /// much processor time, in seconds.
    struct Life {
        int idle = idleMilliseconds;
        int work = worn;
    };
    DecoderLoop(FileDescriptor socket, decoder_protocol::Room room, Life life);
    DecoderLoop(FileDescriptor socket, decoder_protocol::Room room);
    DecoderLoop(const DecoderLoop &) = delete;
    DecoderLoop &operator=(const DecoderLoop &) = delete;
    ~DecoderLoop();

    /// The status to end with.
    int run();

private:
    bool greet() const;
    bool serveNext();

    FileDescriptor m_socket;
    decoder_protocol::Room m_room;
    Life m_life;
    RequestHandler m_handler;
};

} // namespace corvane
