#include "platform/freedesktop/decoding/decoder_process.h"

#include "platform/base/cancellation.h"
#include "platform/freedesktop/sandbox/bounded_process.h"
#include "platform/pictures/picture_memory.h"
#include "platform/system/packet_socket.h"

#include <poll.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <utility>

namespace corvane {

namespace {

using Clock = std::chrono::steady_clock;

enum class Woken { Socket, Cancelled, Finished, Displaced, Time };

Woken waitFor(const FileDescriptor &socket, const FileDescriptor *cancelled,
              const FileDescriptor &finished, Clock::time_point deadline,
              const FileDescriptor *displaced = nullptr)
{
    // A negative number is ignored.
    std::array<pollfd, 4> sources = {pollfd{socket.number(), POLLIN, 0},
                                     pollfd{cancelled ? cancelled->number() : -1, POLLIN, 0},
                                     pollfd{finished.number(), POLLIN, 0},
                                     pollfd{displaced ? displaced->number() : -1, POLLIN, 0}};
    while (true) {
        const auto rest = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now());
        const int ready = ::poll(sources.data(), sources.size(),
                                 static_cast<int>(std::max<std::int64_t>(rest.count(), 0)));
        if (ready < 0 && errno == EINTR)
            continue;
        if (ready <= 0)
            return Woken::Time;
        if (sources[2].revents != 0)
            return Woken::Finished;
        if (sources[0].revents != 0)
            return Woken::Socket;
        return sources[1].revents != 0 ? Woken::Cancelled : Woken::Displaced;
    }
}

/// Whether the pixels are what the reply says, and no more than was asked for.
bool isTrue(const decoder_protocol::Reply &reply, const decoder_protocol::Request &request,
            const FileDescriptor &pixels)
{
    if (!reply.pixels)
        return !pixels.isOpen();
    const auto bytes = decoder_protocol::byteCount(*reply.pixels);
    const QSize size = reply.pixels->size;
    return bytes && picture_memory::isSound(pixels, *bytes)
        && size.width() <= request.wanted.width() && size.height() <= request.wanted.height();
}

} // namespace

DecoderProcess::DecoderProcess(FileDescriptor socket, FileDescriptor process,
                               const decoder_protocol::Greeting &greeting)
    : m_socket(std::move(socket))
    , m_process(std::move(process))
    , m_greeting(greeting)
{
}

DecoderProcess::~DecoderProcess()
{
    kill();
}

void DecoderProcess::kill() const
{
    // It would notice the end of its socket as well, but not if somebody else has taken it over.
    if (m_process.isOpen())
        ::syscall(SYS_pidfd_send_signal, m_process.number(), SIGKILL, nullptr, 0);
}

void DecoderProcess::end(const FileDescriptor &finished)
{
    constexpr std::chrono::seconds patience(1);
    m_isUsable = false;
    kill();
    if (m_process.isOpen())
        waitFor(m_process, nullptr, finished, Clock::now() + patience);
}

std::unique_ptr<DecoderProcess> DecoderProcess::start(const QByteArrayList &command,
                                                      const FileDescriptor &finished)
{
    auto [ours, theirs] = packet_socket::makePair();
    if (!ours.isOpen())
        return nullptr;
    constexpr double seconds = std::chrono::duration<double>(patienceForStart).count();
    Cancellation never;
    const auto started = bounded_process::run(command, {seconds, 0}, never, theirs);
    theirs = FileDescriptor();
    if (started.outcome != bounded_process::Result::Outcome::Ended || started.exitCode != 0
        || waitFor(ours, nullptr, finished, Clock::now() + patienceForStart) != Woken::Socket)
        return nullptr;
    auto received = packet_socket::receive(ours, decoder_protocol::maximumPacket);
    const auto greeting
        = received ? decoder_protocol::parsedGreeting(received->packet) : std::nullopt;
    if (!greeting)
        return nullptr;
    FileDescriptor process;
    if (!received->descriptors.empty())
        process = std::move(received->descriptors.front());
    return std::unique_ptr<DecoderProcess>(
        new DecoderProcess(std::move(ours), std::move(process), *greeting));
}

bool DecoderProcess::isUsable()
{
    // Between requests it says nothing but farewell, and then it ends.
    pollfd source = {m_socket.number(), POLLIN, 0};
    if (m_isUsable && ::poll(&source, 1, 0) != 0)
        m_isUsable = false;
    return m_isUsable;
}

DecoderProcess::Result DecoderProcess::ended(Ending ending)
{
    m_isUsable = false;
    return {ending, {}, {}};
}

DecoderProcess::Result DecoderProcess::ask(const decoder_protocol::Request &request,
                                           const std::vector<int> &descriptors,
                                           const Signals &signals)
{
    if (!packet_socket::send(m_socket, decoder_protocol::encoded(request), descriptors))
        return ended(Ending::NotServed);
    auto deadline = Clock::now() + std::chrono::milliseconds(request.milliseconds);
    bool isCancelled = false;
    while (true) {
        switch (waitFor(m_socket, isCancelled ? nullptr : &signals.cancelled, signals.finished,
                        deadline, isCancelled ? nullptr : signals.displaced)) {
        case Woken::Socket: {
            Result result = takeReply(request);
            if (isCancelled)
                result.ending = Ending::Cancelled;
            return result;
        }
        case Woken::Cancelled:
            isCancelled = true;
            deadline = std::min(deadline, Clock::now() + graceOfCancelled);
            break;
        case Woken::Finished:
            return ended(Ending::Cancelled);
        case Woken::Displaced:
            return ended(Ending::Displaced);
        case Woken::Time:
            return ended(isCancelled ? Ending::Cancelled : Ending::OverTime);
        }
    }
}

DecoderProcess::Result DecoderProcess::takeReply(const decoder_protocol::Request &request)
{
    bool wasUnread = false;
    auto received = packet_socket::receive(m_socket, decoder_protocol::maximumPacket, &wasUnread);
    if (received ? decoder_protocol::isFarewell(received->packet) : wasUnread)
        return ended(Ending::NotServed);
    if (!received)
        return ended(Ending::Vanished);
    auto reply = decoder_protocol::parsedReply(received->packet);
    if (!reply || reply->number != request.number
        || reply->outcome == decoder_protocol::Outcome::Crashed)
        return ended(Ending::Died);
    FileDescriptor pixels;
    if (!received->descriptors.empty())
        pixels = std::move(received->descriptors.front());
    if (!isTrue(*reply, request, pixels))
        return ended(Ending::Died);
    return {Ending::Replied, std::move(*reply), std::move(pixels)};
}

} // namespace corvane
