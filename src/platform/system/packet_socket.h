#pragma once

#include "platform/system/file_descriptor.h"

#include <QByteArray>

#include <optional>
#include <utility>
#include <vector>

/// One end of a pair of local sockets between two processes, which keeps packets apart and carries
/// descriptors. Any thread, one at a time for each direction.
namespace corvane::packet_socket {

/// More descriptors than a packet has here are closed.
inline constexpr std::size_t maximumDescriptors = 2;

/// Both ends; not open on failure.
std::pair<FileDescriptor, FileDescriptor> makePair();

/// Sends at once or not at all. False if the other end is gone, or takes nothing.
bool send(const FileDescriptor &socket, const QByteArray &packet,
          const std::vector<int> &descriptors = {});

struct Received {
    QByteArray packet;
    std::vector<FileDescriptor> descriptors;
};
/// A packet that has arrived. None if there is none, the other end is gone, or the packet is longer
/// than `maximum`. `wasUnread` is set to whether the other end has gone without reading all that it
/// was sent.
std::optional<Received> receive(const FileDescriptor &socket, qsizetype maximum,
                                bool *wasUnread = nullptr);

} // namespace corvane::packet_socket
