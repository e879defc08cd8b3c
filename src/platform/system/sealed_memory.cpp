#include "platform/system/sealed_memory.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace corvane::sealed_memory {

namespace {

constexpr int unchanging = F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE;

bool readAll(int descriptor, QByteArray &bytes)
{
    qsizetype at = 0;
    while (at < bytes.size()) {
        const ssize_t count = ::pread(descriptor, bytes.data() + at,
                                      static_cast<std::size_t>(bytes.size() - at), at);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        at += count;
    }
    return true;
}

} // namespace

FileDescriptor holding(const QByteArray &bytes)
{
    FileDescriptor memory(::memfd_create("corvane", MFD_CLOEXEC | MFD_ALLOW_SEALING));
    if (!memory.isOpen() || !memory.write(bytes)
        || ::fcntl(memory.number(), F_ADD_SEALS, unchanging | F_SEAL_SEAL) != 0)
        return {};
    return memory;
}

std::optional<QByteArray> contents(int descriptor, qint64 limit)
{
    // Only memory can be sealed. A file of a disk that hangs, or a pipe, never gets further.
    const int seals = ::fcntl(descriptor, F_GET_SEALS);
    struct stat about = {};
    if (seals < 0 || (seals & unchanging) != unchanging || ::fstat(descriptor, &about) != 0
        || about.st_size > limit)
        return std::nullopt;
    QByteArray bytes(about.st_size, Qt::Uninitialized);
    return readAll(descriptor, bytes) ? std::optional(bytes) : std::nullopt;
}

} // namespace corvane::sealed_memory
