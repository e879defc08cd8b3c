#include "platform/qt/base/qt_main_queue.h"

#include <QSocketNotifier>
#include <QTimer>
#include <QTimerEvent>

#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <stdexcept>
#include <utility>

namespace corvane {

namespace {

int milliseconds(double seconds)
{
    constexpr double longest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(std::round(seconds * 1000), 0.0, longest));
}

/// Qt's timers have whole milliseconds only, but a frame takes 16.67. So each tick is started for
/// the next multiple of the interval, and ticks neither drift nor get lost.
class RepeatingTimer : public MainQueue::Timer {
public:
    RepeatingTimer(const MainQueue &queue, double seconds, MainQueue::Work work)
        : m_queue(queue)
        , m_interval(std::max(seconds, shortest))
        , m_next(queue.now() + m_interval)
        , m_work(std::make_shared<MainQueue::Work>(std::move(work)))
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        m_timer.setSingleShot(true);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { tick(); });
        startTimer();
    }

private:
    static constexpr double shortest = 0.001;

    void startTimer() { m_timer.start(milliseconds(m_next - m_queue.now())); }
    void tick()
    {
        // Ticks that were missed are skipped.
        m_next += m_interval * std::max(1.0, std::ceil((m_queue.now() - m_next) / m_interval));
        startTimer();
        // The work may destroy this timer, and so must be kept while it runs.
        const auto running = m_work;
        (*running)();
    }

    const MainQueue &m_queue;
    double m_interval;
    /// When the next tick is due.
    double m_next;
    std::shared_ptr<MainQueue::Work> m_work;
    QTimer m_timer;
};

} // namespace

QtMainQueue::QtMainQueue()
    : m_wakeUp(::eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC))
{
    // The process has no descriptors left; nothing else would work either.
    if (m_wakeUp < 0)
        throw std::runtime_error("no descriptor for the main queue");
    m_notifier = std::make_unique<QSocketNotifier>(m_wakeUp, QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &QtMainQueue::wokenUp);
    m_clock.start();
}

QtMainQueue::~QtMainQueue()
{
    m_notifier.reset();
    ::close(m_wakeUp);
}

void QtMainQueue::async(Work work)
{
    m_waiting.add(std::move(work));
    // Written also if the inbox was not empty before: the thread that added to it then may have
    // been interrupted before its write.
    const std::uint64_t one = 1;
    // Cannot fail: the counter is reset long before it could overflow.
    [[maybe_unused]] const auto written = ::write(m_wakeUp, &one, sizeof one);
}

void QtMainQueue::asyncAfter(double seconds, Work work)
{
    QTimer::singleShot(milliseconds(seconds), Qt::PreciseTimer, this, std::move(work));
}

std::unique_ptr<MainQueue::Timer> QtMainQueue::repeating(double seconds, Work work)
{
    return std::make_unique<RepeatingTimer>(*this, seconds, std::move(work));
}

double QtMainQueue::now() const
{
    return static_cast<double>(m_clock.nsecsElapsed()) * 1e-9;
}

void QtMainQueue::wokenUp()
{
    std::uint64_t count = 0;
    [[maybe_unused]] const auto read = ::read(m_wakeUp, &count, sizeof count);
    // One slice a turn; if the next one is scheduled already it takes the new work.
    if (!m_nextSlice.isActive())
        runSlice();
}

void QtMainQueue::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_nextSlice.timerId())
        return;
    m_nextSlice.stop();
    runSlice();
}

bool QtMainQueue::takeNext(Work &work)
{
    if (m_ready.empty())
        m_waiting.takeAll(m_ready);
    if (m_ready.empty())
        return false;
    work = std::move(m_ready.front());
    m_ready.pop_front();
    return true;
}

void QtMainQueue::runSlice()
{
    // Scheduled before the work runs, because work may run an event loop of its own, in which the
    // rest must go on. By a timer, because posted events would all be handled before painting and
    // input.
    m_nextSlice.start(0, this);
    QElapsedTimer slice;
    slice.start();
    Work work;
    while (slice.nsecsElapsed() < sliceNanoseconds) {
        if (!takeNext(work)) {
            m_nextSlice.stop();
            return;
        }
        work();
        work = nullptr;
    }
}

} // namespace corvane
