#include "platform/qt/base/qt_work_queue.h"

#include <utility>

namespace corvane {

namespace {

constexpr int expiryMilliseconds = 5'000;

} // namespace

QtWorkQueue::QtWorkQueue(int threads)
{
    m_pool.setMaxThreadCount(threads);
    m_pool.setExpiryTimeout(expiryMilliseconds);
}

QtWorkQueue::~QtWorkQueue()
{
    m_pool.clear();
    m_pool.waitForDone();
}

void QtWorkQueue::run(std::function<void()> work)
{
    if (!m_isFinishing)
        m_pool.start(std::move(work));
}

bool QtWorkQueue::finish(std::chrono::milliseconds patience)
{
    m_isFinishing = true;
    m_pool.clear();
    return m_pool.waitForDone(static_cast<int>(patience.count()));
}

} // namespace corvane
