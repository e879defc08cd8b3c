#include "platform/freedesktop/thumbnails/private_cache_file.h"

#include <QStringBuilder>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdio>

namespace corvane::private_cache_file {

namespace {

bool makeFolders(const QByteArray &base, const QByteArray &folder)
{
    const QByteArray way = folder + '/';
    for (qsizetype end = base.size(); end >= 0; end = way.indexOf('/', end + 1)) {
        if (::mkdir(way.first(end).constData(), S_IRWXU) != 0 && errno != EEXIST)
            return false;
    }
    return true;
}

bool writeAll(int descriptor, const QByteArray &data)
{
    qsizetype written = 0;
    while (written < data.size()) {
        const auto count = ::write(descriptor, data.constData() + written,
                                   static_cast<std::size_t>(data.size() - written));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        written += count;
    }
    return true;
}

} // namespace

std::optional<QByteArray> read(const QByteArray &path, qint64 limit)
{
    const int descriptor = ::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (descriptor < 0)
        return std::nullopt;
    struct stat status = {};
    std::optional<QByteArray> data;
    if (::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) && status.st_size <= limit) {
        data = QByteArray(status.st_size, Qt::Uninitialized);
        qsizetype size = 0;
        while (size < data->size()) {
            const auto count = ::read(descriptor, data->data() + size,
                                      static_cast<std::size_t>(data->size() - size));
            if (count < 0 && errno == EINTR)
                continue;
            if (count <= 0)
                break;
            size += count;
        }
        data->truncate(size);
    }
    ::close(descriptor);
    return data;
}

bool write(const QByteArray &base, const QByteArray &folder, const QByteArray &name,
           const QByteArray &data)
{
    static std::atomic<unsigned> count = 0;
    if (!makeFolders(base, folder))
        return false;
    const QByteArray unfinished = folder + "/." + name + '.' + QByteArray::number(::getpid()) + '-'
        + QByteArray::number(count++);
    constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    const int descriptor = ::open(unfinished.constData(), flags, S_IRUSR | S_IWUSR);
    if (descriptor < 0)
        return false;
    bool isWritten = writeAll(descriptor, data);
    // A full disk may speak up only now.
    isWritten = ::close(descriptor) == 0 && isWritten;
    const QByteArray finished = folder + '/' + name;
    if (isWritten && ::rename(unfinished.constData(), finished.constData()) == 0)
        return true;
    ::unlink(unfinished.constData());
    return false;
}

} // namespace corvane::private_cache_file
