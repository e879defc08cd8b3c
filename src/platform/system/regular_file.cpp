#include "platform/system/regular_file.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace corvane::regular_file {

namespace {

/// Appends up to `limit` bytes to `data`. Reads until the end instead of trusting the file's size,
/// which may grow meanwhile. False if reading failed.
bool read(const FileDescriptor &file, qint64 limit, QByteArray &data)
{
    constexpr qint64 largestPiece = 262'144;
    QByteArray buffer(std::min(limit, largestPiece), Qt::Uninitialized);
    while (data.size() < limit) {
        const auto room = std::min<qint64>(buffer.size(), limit - data.size());
        const ssize_t count = ::read(file.number(), buffer.data(), static_cast<std::size_t>(room));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return count == 0;
        data.append(buffer.constData(), count);
    }
    return true;
}

} // namespace

FileDescriptor open(const QByteArray &path)
{
    // System calls would cut the path at a null byte.
    if (path.isEmpty() || path.contains('\0'))
        return {};
    // Non-blocking, or opening a pipe would wait for its writer before its type can be checked.
    FileDescriptor file(::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    struct stat status = {};
    if (!file.isOpen() || ::fstat(file.number(), &status) != 0 || !S_ISREG(status.st_mode))
        return {};
    return file;
}

bool open(QFile &file, const QByteArray &path)
{
    FileDescriptor descriptor = open(path);
    if (!descriptor.isOpen()
        || !file.open(descriptor.number(), QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return false;
    descriptor.release();
    return true;
}

std::optional<QByteArray> contents(const QByteArray &path, qint64 limit)
{
    const FileDescriptor file = open(path);
    struct stat status = {};
    if (!file.isOpen() || ::fstat(file.number(), &status) != 0 || status.st_size > limit)
        return std::nullopt;
    QByteArray data;
    data.reserve(status.st_size);
    // One byte more than the limit shows that the file is too long.
    if (!read(file, limit + 1, data) || data.size() > limit)
        return std::nullopt;
    return data;
}

std::optional<QByteArray> beginning(const QByteArray &path, qint64 limit)
{
    const FileDescriptor file = open(path);
    if (!file.isOpen())
        return std::nullopt;
    QByteArray data;
    read(file, limit, data);
    return data;
}

} // namespace corvane::regular_file
