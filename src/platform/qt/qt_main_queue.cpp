#include "platform/qt/qt_main_queue.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>
#include <QTimerEvent>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace corvane {

namespace {

constexpr auto wakeUp = static_cast<QEvent::Type>(QEvent::User + 1);

int milliseconds(double seconds)
{
    constexpr double longest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(std::round(seconds * 1000), 0.0, longest));
}

class RepeatingTimer : public MainQueue::Timer {
public:
    RepeatingTimer(double seconds, MainQueue::Work work)
        : m_work(std::make_shared<MainQueue::Work>(std::move(work)))
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        // The work may destroy this timer, and with it the closure that runs.
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [kept = m_work] {
            const auto running = kept;
            (*running)();
        });
        m_timer.start(milliseconds(seconds));
    }

private:
    std::shared_ptr<MainQueue::Work> m_work;
    QTimer m_timer;
};

} // namespace

QtMainQueue::QtMainQueue()
{
    m_clock.start();
}

QtMainQueue::~QtMainQueue() = default;

void QtMainQueue::async(Work work)
{
    bool isWoken = false;
    {
        const std::lock_guard lock(m_mutex);
        m_waiting.push_back(std::move(work));
        isWoken = std::exchange(m_isWoken, true);
    }
    // Not under the lock: the main thread would wake up only to wait for it.
    if (!isWoken)
        QCoreApplication::postEvent(this, new QEvent(wakeUp));
}

void QtMainQueue::asyncAfter(double seconds, Work work)
{
    QTimer::singleShot(milliseconds(seconds), Qt::PreciseTimer, this, std::move(work));
}

std::unique_ptr<MainQueue::Timer> QtMainQueue::repeating(double seconds, Work work)
{
    return std::make_unique<RepeatingTimer>(seconds, std::move(work));
}

double QtMainQueue::now() const
{
    return static_cast<double>(m_clock.nsecsElapsed()) * 1e-9;
}

bool QtMainQueue::event(QEvent *event)
{
    if (event->type() != wakeUp)
        return QObject::event(event);
    runSlice();
    return true;
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
    if (m_ready.empty()) {
        const std::lock_guard lock(m_mutex);
        m_ready.swap(m_waiting);
        if (m_ready.empty()) {
            m_isWoken = false;
            return false;
        }
    }
    work = std::move(m_ready.front());
    m_ready.pop_front();
    return true;
}

void QtMainQueue::runSlice()
{
    // Asked for first: work that runs an event loop of its own must not keep the rest waiting. A
    // timer and not another event, because posted events all run before the loop looks at the
    // screen and the input again.
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
