#include "platform/system/packet_socket.h"

#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>

namespace corvane::packet_socket {

namespace {

constexpr std::size_t controlBytes = CMSG_SPACE(maximumDescriptors * sizeof(int));

std::vector<FileDescriptor> takeDescriptors(msghdr &message)
{
    std::vector<FileDescriptor> taken;
    for (cmsghdr *part = CMSG_FIRSTHDR(&message); part; part = CMSG_NXTHDR(&message, part)) {
        if (part->cmsg_level != SOL_SOCKET || part->cmsg_type != SCM_RIGHTS)
            continue;
        const std::size_t count = (part->cmsg_len - CMSG_LEN(0)) / sizeof(int);
        for (std::size_t i = 0; i < count; ++i) {
            int number = -1;
            std::memcpy(&number, CMSG_DATA(part) + i * sizeof number, sizeof number);
            taken.emplace_back(number);
        }
    }
    return taken;
}

} // namespace

std::pair<FileDescriptor, FileDescriptor> makePair()
{
    std::array<int, 2> ends = {-1, -1};
    if (::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) != 0)
        return {};
    return {FileDescriptor(ends[0]), FileDescriptor(ends[1])};
}

bool send(const FileDescriptor &socket, const QByteArray &packet,
          const std::vector<int> &descriptors)
{
    iovec bytes = {const_cast<char *>(packet.constData()), static_cast<std::size_t>(packet.size())};
    alignas(cmsghdr) std::array<char, controlBytes> control = {};
    msghdr message = {};
    message.msg_iov = &bytes;
    message.msg_iovlen = 1;
    if (!descriptors.empty()) {
        if (descriptors.size() > maximumDescriptors)
            return false;
        const std::size_t size = descriptors.size() * sizeof(int);
        message.msg_control = control.data();
        message.msg_controllen = CMSG_SPACE(size);
        cmsghdr *const part = CMSG_FIRSTHDR(&message);
        part->cmsg_level = SOL_SOCKET;
        part->cmsg_type = SCM_RIGHTS;
        part->cmsg_len = CMSG_LEN(size);
        std::memcpy(CMSG_DATA(part), descriptors.data(), size);
    }
    ssize_t sent = -1;
    do {
        sent = ::sendmsg(socket.number(), &message, MSG_NOSIGNAL | MSG_DONTWAIT);
    } while (sent < 0 && errno == EINTR);
    return sent == packet.size();
}

std::optional<Received> receive(const FileDescriptor &socket, qsizetype maximum, bool *wasUnread)
{
    Received received;
    received.packet = QByteArray(maximum, Qt::Uninitialized);
    iovec bytes = {received.packet.data(), static_cast<std::size_t>(maximum)};
    alignas(cmsghdr) std::array<char, controlBytes> control = {};
    msghdr message = {};
    message.msg_iov = &bytes;
    message.msg_iovlen = 1;
    message.msg_control = control.data();
    message.msg_controllen = control.size();
    ssize_t count = -1;
    // The other end may have ended with something unread. That is told first, and only then what
    // it had sent before.
    bool wasReset = false;
    do {
        count = ::recvmsg(socket.number(), &message, MSG_DONTWAIT | MSG_CMSG_CLOEXEC);
    } while (count < 0
             && (errno == EINTR || (errno == ECONNRESET && !std::exchange(wasReset, true))));
    if (wasUnread)
        *wasUnread = wasReset;
    if (count < 0)
        return std::nullopt;
    // Taken first in any case, so that they are closed.
    received.descriptors = takeDescriptors(message);
    if (count == 0 || (message.msg_flags & MSG_TRUNC) != 0)
        return std::nullopt;
    received.packet.truncate(count);
    return received;
}

} // namespace corvane::packet_socket
