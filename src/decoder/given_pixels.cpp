#include "decoder/given_pixels.h"

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>

namespace corvane::given_pixels {

namespace {

bool writeAll(const FileDescriptor &file, const uchar *data, qint64 bytes)
{
    for (qint64 at = 0; at < bytes;) {
        const ssize_t count
            = ::write(file.number(), data + at, static_cast<std::size_t>(bytes - at));
        if (count < 0 && errno != EINTR)
            return false;
        at += std::max<ssize_t>(count, 0);
    }
    return true;
}

/// Frees the pages that lie within those bytes, whose contents are lost.
void letGo(const uchar *data, qint64 bytes)
{
    static const qint64 page = ::sysconf(_SC_PAGESIZE);
    const auto begun = static_cast<qint64>(reinterpret_cast<std::uintptr_t>(data)) % page;
    const qint64 skipped = (page - begun) % page;
    const qint64 whole = (bytes - skipped) / page * page;
    if (whole > 0)
        ::madvise(const_cast<uchar *>(data) + skipped, static_cast<std::size_t>(whole),
                  MADV_DONTNEED);
}

} // namespace

bool write(const FileDescriptor &memory, const QImage &image, qint64 bytes)
{
    // What reads frames keeps the last one, of which the next is made.
    const bool isOurs = image.isDetached();
    for (qint64 at = 0; at < bytes; at += piece) {
        const qint64 count = std::min(piece, bytes - at);
        if (!writeAll(memory, image.constBits() + at, count))
            return false;
        if (isOurs && bytes > piece)
            letGo(image.constBits() + at, count);
    }
    return true;
}

} // namespace corvane::given_pixels
