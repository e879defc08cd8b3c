#include "decoder/last_words.h"

#include "platform/pictures/decoder_protocol.h"

#include <sys/mman.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <csignal>
#include <cstdlib>
#include <cstring>

namespace corvane::last_words {

namespace {

using decoder_protocol::Outcome;

/// Bytes that can be sent without asking for memory.
struct Packet {
    std::array<char, 128> bytes = {};
    std::size_t size = 0;

    void set(std::uint32_t number, Outcome outcome)
    {
        decoder_protocol::Reply reply;
        reply.number = number;
        reply.outcome = outcome;
        const QByteArray encoded = decoder_protocol::encoded(reply);
        size = std::size_t(encoded.size()) <= bytes.size() ? std::size_t(encoded.size()) : 0;
        std::memcpy(bytes.data(), encoded.constData(), size);
    }
};

/// What a handler of signals may look at.
int target = -1;
std::size_t large = 0;
Packet crashed;
Packet lacksMemory;
std::atomic<bool> isServing = false;

/// What grows mostly grows to twice its size, so what could not be had was about half of all.
bool isMemoryScarce()
{
    return ::mmap(nullptr, large, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0)
        == MAP_FAILED;
}

extern "C" void sayAndEnd(int)
{
    if (isServing) {
        Packet &packet = isMemoryScarce() ? lacksMemory : crashed;
        iovec bytes = {packet.bytes.data(), packet.size};
        msghdr message = {};
        message.msg_iov = &bytes;
        message.msg_iovlen = 1;
        ::sendmsg(target, &message, MSG_NOSIGNAL | MSG_DONTWAIT);
    }
    ::_exit(EXIT_FAILURE);
}

/// Where a stack has no room left, the handler needs another.
void setSignalStack()
{
    static std::array<char, 65'536> bytes = {};
    stack_t stack = {};
    stack.ss_sp = bytes.data();
    stack.ss_size = bytes.size();
    ::sigaltstack(&stack, nullptr);
}

} // namespace

void prepare(int socket, std::int64_t memory)
{
    target = socket;
    large = static_cast<std::size_t>(memory / 2);
    setSignalStack();
    struct sigaction action = {};
    action.sa_handler = sayAndEnd;
    action.sa_flags = SA_ONSTACK | static_cast<int>(SA_RESETHAND);
    for (const int signal : {SIGSEGV, SIGBUS, SIGABRT, SIGILL, SIGFPE, SIGTRAP, SIGXCPU, SIGALRM})
        ::sigaction(signal, &action, nullptr);
}

void begin(std::uint32_t number)
{
    crashed.set(number, Outcome::Crashed);
    lacksMemory.set(number, Outcome::OverBounds);
    isServing = true;
}

void end()
{
    isServing = false;
}

} // namespace corvane::last_words
