#include "platform/wayland/drags/pipe_intake.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

namespace corvane {

namespace {

/// In bytes: what the first read makes room for; later ones for as much as there is already.
constexpr qsizetype firstRead = 4096;

} // namespace

PipeIntake::PipeIntake(MainQueue &queue, FileDescriptor pipe, qsizetype maximumBytes,
                       IncomingDrag::Fetched done)
    : m_queue(queue)
    , m_pipe(std::move(pipe))
    , m_maximumBytes(maximumBytes)
    , m_done(std::move(done))
    , m_begun(queue.now())
    , m_lastProgress(m_begun)
    , m_notifier(new QSocketNotifier(m_pipe.number(), QSocketNotifier::Read))
    , m_patienceTimer(queue.repeating(patience / 4, [this] { giveUpTheSilent(); }))
{
    ::fcntl(m_pipe.number(), F_SETFL, ::fcntl(m_pipe.number(), F_GETFL) | O_NONBLOCK);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, [this] { read(); });
}

void PipeIntake::read()
{
    const qsizetype stop = m_bytes.size() + sliceBytes;
    while (m_bytes.size() < stop) {
        const qsizetype before = m_bytes.size();
        const qsizetype room = std::min(std::max(before, firstRead), stop - before);
        m_bytes.resize(before + room);
        const ssize_t count
            = ::read(m_pipe.number(), m_bytes.data() + before, static_cast<std::size_t>(room));
        const int error = errno;
        m_bytes.resize(before + std::max<ssize_t>(count, 0));
        if (count < 0 && error == EINTR)
            continue;
        if (count < 0 && error == EAGAIN)
            return;
        if (count <= 0) {
            finish(count == 0 ? IncomingDrag::Outcome::Arrived : IncomingDrag::Outcome::Lost);
            return;
        }
        m_lastProgress = m_queue.now();
        if (m_bytes.size() > m_maximumBytes) {
            finish(IncomingDrag::Outcome::TooLarge);
            return;
        }
    }
}

void PipeIntake::giveUpTheSilent()
{
    const double now = m_queue.now();
    if (now - m_lastProgress >= patience || now - m_begun >= longest)
        finish(IncomingDrag::Outcome::Lost);
}

void PipeIntake::finish(IncomingDrag::Outcome outcome)
{
    m_notifier.reset();
    m_patienceTimer.reset();
    m_pipe.close();
    const QByteArray bytes
        = outcome == IncomingDrag::Outcome::Arrived ? std::exchange(m_bytes, {}) : QByteArray();
    // May destroy this.
    if (const auto tell = std::exchange(m_done, {}))
        tell(outcome, bytes);
}

} // namespace corvane
