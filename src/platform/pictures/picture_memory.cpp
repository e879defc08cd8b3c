#include "platform/pictures/picture_memory.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>

namespace corvane::picture_memory {

namespace {

constexpr int seals = F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE | F_SEAL_SEAL;

} // namespace

FileDescriptor make(const std::function<bool(const FileDescriptor &memory)> &fill)
{
    FileDescriptor memory(::memfd_create("corvane", MFD_CLOEXEC | MFD_ALLOW_SEALING));
    if (!memory.isOpen() || !fill(memory) || ::fcntl(memory.number(), F_ADD_SEALS, seals) != 0)
        return {};
    return memory;
}

FileDescriptor of(const QByteArray &bytes)
{
    return make([&bytes](const FileDescriptor &memory) { return memory.write(bytes); });
}

bool isSound(const FileDescriptor &memory, qint64 bytes)
{
    constexpr int needed = F_SEAL_SHRINK | F_SEAL_WRITE;
    struct stat status = {};
    // Only memory has seals: for a file of a disk the question fails.
    const int found = memory.isOpen() ? ::fcntl(memory.number(), F_GET_SEALS) : -1;
    return found >= 0 && (found & needed) == needed && ::fstat(memory.number(), &status) == 0
        && status.st_size == bytes;
}

const uchar *map(const FileDescriptor &memory, qint64 bytes)
{
    if (bytes <= 0 || !isSound(memory, bytes))
        return nullptr;
    void *const address = ::mmap(nullptr, static_cast<std::size_t>(bytes), PROT_READ, MAP_SHARED,
                                 memory.number(), 0);
    return address == MAP_FAILED ? nullptr : static_cast<const uchar *>(address);
}

void unmap(const uchar *address, qint64 bytes)
{
    ::munmap(const_cast<uchar *>(address), static_cast<std::size_t>(bytes));
}

} // namespace corvane::picture_memory
