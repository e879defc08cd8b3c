#include "core/private_file.h"

#include <QStringBuilder>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <utility>

namespace corvane::private_file {

namespace {

class Descriptor {
public:
    explicit Descriptor(int number)
        : m_number(number)
    {
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;
    ~Descriptor() { close(); }

    bool isOpen() const { return m_number >= 0; }
    int number() const { return m_number; }
    /// A full disk may speak up only now.
    bool close() { return m_number < 0 || ::close(std::exchange(m_number, -1)) == 0; }

private:
    int m_number;
};

bool writeAll(int descriptor, const QByteArray &data)
{
    qsizetype written = 0;
    while (written < data.size()) {
        const auto rest = static_cast<std::size_t>(data.size() - written);
        const ssize_t count = ::write(descriptor, data.constData() + written, rest);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        written += count;
    }
    return true;
}

/// Gives a finished file its name, unless something has that name already.
bool moveInto(const QByteArray &from, const QByteArray &path)
{
    if (::link(from.constData(), path.constData()) == 0) {
        ::unlink(from.constData());
        return true;
    }
    struct stat existing = {};
    // Not every file system knows hard links.
    return errno != EEXIST && ::lstat(path.constData(), &existing) != 0
        && ::rename(from.constData(), path.constData()) == 0;
}

} // namespace

bool create(const QByteArray &path, const QByteArray &data)
{
    const QByteArray unfinished = path.left(path.lastIndexOf('/') + 1)
        + QByteArrayLiteral(".unfinished-") + QByteArray::number(::getpid());
    ::unlink(unfinished.constData());
    constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    Descriptor file(::open(unfinished.constData(), flags, S_IRUSR | S_IWUSR));
    if (!file.isOpen())
        return false;
    if (writeAll(file.number(), data) && file.close() && moveInto(unfinished, path))
        return true;
    ::unlink(unfinished.constData());
    return false;
}

std::optional<QByteArray> read(const QByteArray &path, qint64 limit)
{
    // Without blocking: the path may have become a pipe that nobody writes to.
    const Descriptor file(::open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat status = {};
    if (!file.isOpen() || ::fstat(file.number(), &status) != 0 || !S_ISREG(status.st_mode)
        || status.st_size >= limit)
        return std::nullopt;
    QByteArray data;
    // By what comes, not by the size that was told: the file may grow meanwhile.
    QByteArray buffer(qsizetype(64) * 1024, Qt::Uninitialized);
    while (true) {
        const auto room = static_cast<std::size_t>(buffer.size());
        const ssize_t count = ::read(file.number(), buffer.data(), room);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0 || data.size() + count >= limit)
            return std::nullopt;
        if (count == 0)
            return data;
        data.append(buffer.constData(), count);
    }
}

} // namespace corvane::private_file
