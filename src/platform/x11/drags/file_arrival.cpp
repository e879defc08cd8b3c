#include "platform/x11/drags/file_arrival.h"

#include <QSocketNotifier>

#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <utility>

namespace corvane {

namespace {

/// In seconds without events before the file is looked at: some programs create it, close it, and
/// open it again to write.
constexpr double quietSeconds = 0.02;

} // namespace

FileArrival::FileArrival(QByteArray path, MainQueue &queue)
    : m_path(std::move(path))
    , m_name(m_path.sliced(m_path.lastIndexOf('/') + 1))
    , m_queue(queue)
    , m_descriptor(::inotify_init1(IN_CLOEXEC | IN_NONBLOCK))
{
    const QByteArray directory = m_path.chopped(m_name.size());
    const int watch = ::inotify_add_watch(m_descriptor, directory.constData(),
                                          IN_CLOSE_WRITE | IN_MOVED_TO | IN_MODIFY | IN_CREATE);
    // The watch was refused, for example because the user has no inotify watches left. Trust the
    // source, which will have said that it has saved the file.
    m_wasClosed = watch < 0;
}

FileArrival::~FileArrival()
{
    m_notifier.reset();
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

void FileArrival::wait(std::function<void(bool)> done)
{
    m_done = std::move(done);
    m_lastProgress = m_queue.now();
    if (m_descriptor >= 0) {
        m_notifier = std::make_unique<QSocketNotifier>(m_descriptor, QSocketNotifier::Read);
        QObject::connect(m_notifier.get(), &QSocketNotifier::activated, [this] { readEvents(); });
    }
    m_patienceTimer = m_queue.repeating(patience / 10, [this, begun = m_queue.now()] {
        const double now = m_queue.now();
        if (now - m_lastProgress >= patience || now - begun >= longest)
            finish(false);
        else
            look();
    });
    // The file may be there already.
    readEvents();
}

void FileArrival::readEvents()
{
    alignas(inotify_event) std::array<char, 4096> buffer{};
    const auto size = ::read(m_descriptor, buffer.data(), buffer.size());
    for (ssize_t offset = 0; offset < size;) {
        const auto *event = reinterpret_cast<const inotify_event *>(buffer.data() + offset);
        offset += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
        if (event->len == 0 || m_name != event->name)
            continue;
        m_wasClosed = (event->mask & (IN_CLOSE_WRITE | IN_MOVED_TO)) != 0;
        m_lastProgress = m_queue.now();
    }
    // A source that writes without a pause would never be looked at, so its size is checked here.
    if (isTooLarge())
        finish(false);
    else
        lookAgainSoon();
}

void FileArrival::lookAgainSoon()
{
    m_nextLook.restart();
    m_queue.asyncAfter(quietSeconds, m_nextLook.guard([this] { look(); }));
}

void FileArrival::look()
{
    if (m_wasClosed && isComplete())
        finish(true);
}

void FileArrival::finish(bool hasArrived)
{
    m_notifier.reset();
    m_patienceTimer.reset();
    m_nextLook.restart();
    m_queue.async(m_lifetime.guard([this, hasArrived] {
        if (const auto done = std::exchange(m_done, {}))
            done(hasArrived);
    }));
}

bool FileArrival::isTooLarge() const
{
    struct stat status = {};
    return ::lstat(m_path.constData(), &status) == 0 && status.st_size > maximumBytes;
}

bool FileArrival::isComplete() const
{
    struct stat status = {};
    return ::lstat(m_path.constData(), &status) == 0 && S_ISREG(status.st_mode)
        && status.st_size > 0 && status.st_size <= maximumBytes;
}

bool FileArrival::isEmptyFile() const
{
    struct stat status = {};
    return m_wasClosed && ::lstat(m_path.constData(), &status) == 0 && S_ISREG(status.st_mode)
        && status.st_size == 0;
}

void FileArrival::discard()
{
    ::unlink(m_path.constData());
}

} // namespace corvane
