#include "decoder/decoder_loop.h"

#include "decoder/confinement.h"
#include "decoder/last_words.h"
#include "platform/pictures/decoder_protocol.h"
#include "platform/system/system_call_filter.h"

#include <poll.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <utility>

namespace corvane {

namespace {

/// Waits until there is something to read, or the other end is gone.
bool waitFor(int socket, short events, int milliseconds)
{
    pollfd source = {socket, events, 0};
    int ready = -1;
    do {
        ready = ::poll(&source, 1, milliseconds);
    } while (ready < 0 && errno == EINTR);
    return ready > 0;
}

/// Ends this process once the program is gone, also in the middle of a picture.
void endWithProgram(int socket)
{
    std::thread([socket] {
        waitFor(socket, 0, -1);
        ::_exit(EXIT_SUCCESS);
    }).detach();
}

/// The kernel ends this process should the program not do so in time.
void setAlarm(int milliseconds)
{
    itimerval time = {};
    time.it_value.tv_sec = milliseconds / 1000;
    time.it_value.tv_usec = suseconds_t(milliseconds % 1000) * 1000;
    ::setitimer(ITIMER_REAL, &time, nullptr);
}

bool hasWorked(int seconds)
{
    rusage usage = {};
    ::getrusage(RUSAGE_SELF, &usage);
    return usage.ru_utime.tv_sec + usage.ru_stime.tv_sec >= seconds;
}

} // namespace

DecoderLoop::DecoderLoop(FileDescriptor socket, decoder_protocol::Room room)
    : DecoderLoop(std::move(socket), room, Life())
{
}

DecoderLoop::DecoderLoop(FileDescriptor socket, decoder_protocol::Room room, Life life)
    : m_socket(std::move(socket))
    , m_room(room)
    , m_life(life)
    , m_handler(room)
{
}

DecoderLoop::~DecoderLoop() = default;

bool DecoderLoop::greet() const
{
    const FileDescriptor self(static_cast<int>(::syscall(SYS_pidfd_open, ::getpid(), 0)));
    decoder_protocol::Greeting greeting;
    greeting.hasLimits = confinement::limitResources(m_room);
    greeting.hasFilter = system_call_filter::confineDecoder();
    std::vector<int> descriptors;
    if (self.isOpen())
        descriptors.push_back(self.number());
    return packet_socket::send(m_socket, decoder_protocol::encoded(greeting), descriptors);
}

int DecoderLoop::run()
{
    endWithProgram(m_socket.number());
    if constexpr (!confinement::isSanitized)
        last_words::prepare(m_socket.number(), decoder_protocol::memoryIn(m_room));
    if (!greet())
        return EXIT_FAILURE;
    while (!hasWorked(m_life.work) && waitFor(m_socket.number(), POLLIN, m_life.idle)) {
        if (!serveNext())
            return EXIT_FAILURE;
    }
    packet_socket::send(m_socket, decoder_protocol::farewell());
    return EXIT_SUCCESS;
}

bool DecoderLoop::serveNext()
{
    constexpr int grace = 2'000;
    auto received = packet_socket::receive(m_socket, decoder_protocol::maximumPacket);
    const auto request
        = received ? decoder_protocol::parsedRequest(received->packet) : std::nullopt;
    if (!request || received->descriptors.empty())
        return false;
    auto &descriptors = received->descriptors;
    FileDescriptor target;
    if (descriptors.size() > 1)
        target = std::move(descriptors[1]);
    setAlarm(request->milliseconds + grace);
    last_words::begin(request->number);
    const auto answer
        = m_handler.serve(*request, std::move(descriptors.front()), std::move(target));
    last_words::end();
    setAlarm(0);
    std::vector<int> pixels;
    if (answer.pixels.isOpen())
        pixels.push_back(answer.pixels.number());
    return packet_socket::send(m_socket, decoder_protocol::encoded(answer.reply), pixels);
}

} // namespace corvane
