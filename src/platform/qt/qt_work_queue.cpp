#include "platform/qt/qt_work_queue.h"

#include <QRunnable>

#include <sys/resource.h>

#include <utility>

namespace corvane {

namespace {

constexpr int expiryMilliseconds = 5'000;
/// As `nice` counts: half way to what runs only when nobody else wants to.
constexpr int niceness = 10;

class Task : public QRunnable {
public:
    explicit Task(std::function<void()> work)
        : m_work(std::move(work))
    {
    }

    void run() override
    {
        // Of this thread alone, for Linux has it so. Qt's thread priorities do nothing there.
        thread_local const int result = ::setpriority(PRIO_PROCESS, 0, niceness);
        Q_UNUSED(result)
        m_work();
    }

private:
    std::function<void()> m_work;
};

} // namespace

QtWorkQueue::QtWorkQueue()
{
    m_pool.setMaxThreadCount(maximumThreads);
    m_pool.setExpiryTimeout(expiryMilliseconds);
}

QtWorkQueue::~QtWorkQueue()
{
    m_pool.clear();
    m_pool.waitForDone();
}

void QtWorkQueue::run(std::function<void()> work)
{
    m_pool.start(new Task(std::move(work)));
}

} // namespace corvane
