#include "platform/x11/file_arrival.h"

#include <QDeadlineTimer>

#include <poll.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <utility>

namespace corvane {

namespace {

/// Some programs create the file, close it, and open it again to write.
constexpr int quietMilliseconds = 20;

} // namespace

FileArrival::FileArrival(QByteArray path)
    : m_path(std::move(path))
    , m_name(m_path.sliced(m_path.lastIndexOf('/') + 1))
    , m_descriptor(::inotify_init1(IN_CLOEXEC | IN_NONBLOCK))
{
    const QByteArray directory = m_path.chopped(m_name.size());
    ::inotify_add_watch(m_descriptor, directory.constData(),
                        IN_CLOSE_WRITE | IN_MOVED_TO | IN_MODIFY | IN_CREATE);
}

FileArrival::~FileArrival()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

bool FileArrival::wait()
{
    const QDeadlineTimer deadline(timeoutMilliseconds);
    while (!deadline.hasExpired()) {
        const bool mayBeDone = m_wasClosed && isComplete();
        const auto patience = mayBeDone ? qint64{quietMilliseconds} : deadline.remainingTime();
        pollfd waiting = {m_descriptor, POLLIN, 0};
        const int ready = ::poll(&waiting, 1, static_cast<int>(patience));
        if (ready == 0 && mayBeDone)
            return true;
        if (ready > 0 && !readEvents())
            return false;
    }
    return false;
}

bool FileArrival::readEvents()
{
    alignas(inotify_event) std::array<char, 4096> buffer;
    const auto size = ::read(m_descriptor, buffer.data(), buffer.size());
    for (ssize_t offset = 0; offset < size;) {
        const auto *event = reinterpret_cast<const inotify_event *>(buffer.data() + offset);
        offset += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
        if (event->len == 0 || m_name != event->name)
            continue;
        m_wasClosed = (event->mask & (IN_CLOSE_WRITE | IN_MOVED_TO)) != 0;
    }
    struct stat status = {};
    return ::lstat(m_path.constData(), &status) != 0 || status.st_size <= maximumBytes;
}

bool FileArrival::isComplete() const
{
    struct stat status = {};
    return ::lstat(m_path.constData(), &status) == 0 && S_ISREG(status.st_mode)
        && status.st_size > 0 && status.st_size <= maximumBytes;
}

void FileArrival::discard()
{
    ::unlink(m_path.constData());
}

} // namespace corvane
