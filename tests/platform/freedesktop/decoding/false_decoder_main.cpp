// A decoder that misbehaves at the step of its work that CORVANE_FALSE_DECODER names.

#include "platform/pictures/decoder_protocol.h"
#include "platform/pictures/picture_memory.h"
#include "platform/system/file_descriptor.h"
#include "platform/system/packet_socket.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>

namespace {

using namespace corvane;
using decoder_protocol::Reply;

constexpr int socketNumber = 3;
constexpr QSize size{8, 8};
constexpr int bytes = 8 * 8 * 4;

/// What dies is killed, as by the kernel for want of memory.
[[noreturn]] void die()
{
    ::kill(::getpid(), SIGKILL);
    std::abort();
}

/// Whether no decoder has asked this before.
bool isFirst()
{
    const FileDescriptor mark(::open(qgetenv("CORVANE_FALSE_DECODER_MARK").constData(),
                                     O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    return mark.isOpen();
}

/// To whoever reads the named pipe.
void sayThatItHasBegun()
{
    const FileDescriptor pipe(
        ::open(qgetenv("CORVANE_FALSE_DECODER_PIPE").constData(), O_WRONLY | O_CLOEXEC));
    pipe.write("x");
}

/// Nothing but a signal ends it; until then, whoever reads the named pipe knows that it lives.
[[noreturn]] void hangForGood()
{
    const FileDescriptor pipe(
        ::open(qgetenv("CORVANE_FALSE_DECODER_PIPE").constData(), O_WRONLY | O_CLOEXEC));
    pipe.write("x");
    while (true)
        ::pause();
}

/// Has the named pipe open from now on, and so much memory that it takes a while to end.
void takeMemory()
{
    constexpr std::size_t much = 64UL * 1024 * 1024;
    // Never closed: whoever reads the pipe sees when this process has ended.
    static const FileDescriptor pipe(
        ::open(qgetenv("CORVANE_FALSE_DECODER_PIPE").constData(), O_WRONLY | O_CLOEXEC));
    ::mmap(nullptr, much, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_POPULATE, -1,
           0);
}

void waitForPacket()
{
    pollfd source = {socketNumber, POLLIN, 0};
    ::poll(&source, 1, -1);
}

/// Until somebody writes one into the named pipe.
void waitForByte()
{
    const FileDescriptor pipe(
        ::open(qgetenv("CORVANE_FALSE_DECODER_PIPE").constData(), O_RDWR | O_CLOEXEC));
    pollfd source = {pipe.number(), POLLIN, 0};
    ::poll(&source, 1, -1);
}

FileDescriptor memoryFor(const QByteArray &step)
{
    if (step == "unsealed") {
        FileDescriptor memory(::memfd_create("open", MFD_ALLOW_SEALING | MFD_CLOEXEC));
        memory.write(QByteArray(bytes, '\x7f'));
        return memory;
    }
    return picture_memory::of(QByteArray(step == "short" ? bytes - 1 : bytes, '\x7f'));
}

void answer(const FileDescriptor &socket, const QByteArray &step, std::uint32_t number)
{
    Reply reply;
    reply.number = step == "other number" ? number + 1 : number;
    reply.outcome = decoder_protocol::Outcome::Made;
    reply.pixels = decoder_protocol::Pixels{size, size.width() * 4, QImage::Format_RGB32};
    // Which one of several it is.
    reply.milliseconds = int(::getpid() % decoder_protocol::maximumMilliseconds);
    if (step == "too wide")
        reply.pixels = decoder_protocol::Pixels{{64, 1}, 64 * 4, QImage::Format_RGB32};
    if (step == "too high")
        reply.pixels = decoder_protocol::Pixels{{1, 64}, 4, QImage::Format_RGB32};
    if (step == "memory alone")
        reply.pixels.reset();
    QByteArray packet = decoder_protocol::encoded(reply);
    if (step == "garbled reply")
        packet = "garbage";
    if (step == "cut reply")
        packet.chop(1);
    const FileDescriptor memory = memoryFor(step);
    if (step == "no memory")
        packet_socket::send(socket, packet);
    else
        packet_socket::send(socket, packet, {memory.number()});
}

void refuse(const FileDescriptor &socket, std::uint32_t number,
            decoder_protocol::Outcome outcome = decoder_protocol::Outcome::OverBounds)
{
    Reply reply;
    reply.number = number;
    reply.outcome = outcome;
    packet_socket::send(socket, decoder_protocol::encoded(reply));
}

/// `isLarge`: this one was started with a large room.
int run(const QByteArray &step, bool isLarge)
{
    const FileDescriptor socket(socketNumber);
    if (step == "dies at once")
        die();
    if (step == "ends at once")
        return EXIT_SUCCESS;
    if (step == "never greets") {
        sayThatItHasBegun();
        waitForPacket();
        return EXIT_SUCCESS;
    }
    if (step == "has much memory")
        takeMemory();
    const FileDescriptor self(int(::syscall(SYS_pidfd_open, ::getpid(), 0)));
    const bool isConfined = step != "unconfined";
    const decoder_protocol::Greeting greeting = {isConfined, isConfined};
    packet_socket::send(socket,
                        step == "garbled greeting" ? QByteArray("garbage")
                                                   : decoder_protocol::encoded(greeting),
                        {self.number()});
    if (step == "dies after greeting")
        die();
    while (true) {
        waitForPacket();
        if (step == "dies before reading")
            die();
        if (step == "says farewell") {
            packet_socket::send(socket, decoder_protocol::farewell());
            return EXIT_SUCCESS;
        }
        const auto received = packet_socket::receive(socket, decoder_protocol::maximumPacket);
        const auto request
            = received ? decoder_protocol::parsedRequest(received->packet) : std::nullopt;
        if (!request)
            return EXIT_FAILURE;
        if (step == "dies after reading" || (step == "dies once" && isFirst()))
            die();
        if (step == "crashes" || (step == "crashes without room" && !isLarge)) {
            refuse(socket, request->number, decoder_protocol::Outcome::Crashed);
            return EXIT_FAILURE;
        }
        if (step == "refuses" || (step.startsWith("needs room") && !isLarge)) {
            refuse(socket, request->number);
            continue;
        }
        if (step.endsWith("conversions hang")
            && request->task == decoder_protocol::Task::Transcode) {
            const FileDescriptor &target = received->descriptors.at(1);
            target.write("begun");
            waitForPacket();
        }
        if (step == "conversions wait" && request->task == decoder_protocol::Task::Transcode) {
            received->descriptors.at(1).write("begun");
            waitForByte();
            refuse(socket, request->number, decoder_protocol::Outcome::Unreadable);
            continue;
        }
        if (step == "hangs")
            waitForPacket();
        if (step == "hangs for good")
            hangForGood();
        answer(socket, step, request->number);
        if (step == "dies after the reply")
            die();
    }
}

} // namespace

int main(int argc, char *argv[])
{
    const bool isLarge = argc > 1 && qstrcmp(argv[1], decoder_protocol::largeRoomArgument) == 0;
    return run(qgetenv("CORVANE_FALSE_DECODER"), isLarge);
}
