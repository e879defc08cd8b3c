#include "platform/wayland/drags/pipe_delivery.h"

#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <ctime>
#include <utility>

namespace corvane {

namespace {

/// Whoever writes into a pipe that nobody reads is ended by a signal. It is held back here and
/// taken away again: programs that we start would inherit it being ignored.
ssize_t writeQuietly(int pipe, const char *bytes, std::size_t size)
{
    sigset_t broken;
    sigemptyset(&broken);
    sigaddset(&broken, SIGPIPE);
    sigset_t before;
    pthread_sigmask(SIG_BLOCK, &broken, &before);
    ssize_t written = 0;
    do {
        written = ::write(pipe, bytes, size);
    } while (written < 0 && errno == EINTR);
    const int error = errno;
    if (written < 0 && error == EPIPE) {
        const timespec now = {};
        sigtimedwait(&broken, nullptr, &now);
    }
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
    errno = error;
    return written;
}

/// The other end of a pipe; none of what is no pipe.
FileDescriptor otherEnd(const FileDescriptor &pipe)
{
    int unread = 0;
    if (::ioctl(pipe.number(), FIONREAD, &unread) != 0 || ::fcntl(pipe.number(), F_GETPIPE_SZ) < 0)
        return FileDescriptor();
    const QByteArray path = "/proc/self/fd/" + QByteArray::number(pipe.number());
    return FileDescriptor(::open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
}

} // namespace

PipeDelivery::PipeDelivery(MainQueue &queue, FileDescriptor pipe, QByteArray bytes, Events events)
    : m_queue(queue)
    , m_pipe(std::move(pipe))
    , m_bytes(std::move(bytes))
    , m_events(std::move(events))
{
    ::fcntl(m_pipe.number(), F_SETFL, ::fcntl(m_pipe.number(), F_GETFL) | O_NONBLOCK);
    m_notifier.reset(new QSocketNotifier(m_pipe.number(), QSocketNotifier::Write));
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, [this] { write(); });
}

PipeDelivery::~PipeDelivery() = default;

void PipeDelivery::write()
{
    const qsizetype stop = std::min(m_bytes.size(), m_written + mostAtOnce);
    const qsizetype before = m_written;
    while (m_written < stop) {
        const ssize_t count = writeQuietly(m_pipe.number(), m_bytes.constData() + m_written,
                                           static_cast<std::size_t>(stop - m_written));
        if (count < 0 && errno != EAGAIN) {
            end(false);
            return;
        }
        if (count <= 0)
            break;
        m_written += count;
    }
    const Lifetime::Token life = m_lifetime.token();
    if (m_written > before && m_events.progress)
        m_events.progress();
    if (!life.isOver() && m_written == m_bytes.size())
        allWritten();
}

void PipeDelivery::allWritten()
{
    m_notifier.reset();
    FileDescriptor rest = otherEnd(m_pipe);
    m_pipe.close();
    m_isWritten = true;
    m_bytes.clear();
    if (!rest.isOpen()) {
        end(true);
        return;
    }
    m_pipe = std::move(rest);
    look();
}

void PipeDelivery::look()
{
    if (!m_isWritten)
        return;
    int unread = 0;
    if (::ioctl(m_pipe.number(), FIONREAD, &unread) != 0 || unread == 0) {
        end(true);
        return;
    }
    const Lifetime::Token life = m_lifetime.token();
    if (std::exchange(m_unread, unread) > unread && m_events.progress)
        m_events.progress();
    if (!life.isOver())
        lookAgain();
}

void PipeDelivery::lookAgain()
{
    m_nextLook.restart();
    m_queue.asyncAfter(m_pause, m_nextLook.guard([this] { look(); }));
    m_pause = std::min(2 * m_pause, slowestLook);
}

void PipeDelivery::end(bool isWhole)
{
    m_notifier.reset();
    m_nextLook.restart();
    // May destroy this.
    if (const auto tell = std::exchange(m_events.ended, {}))
        tell(isWhole);
}

} // namespace corvane
