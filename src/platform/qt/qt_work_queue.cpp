#include "platform/qt/qt_work_queue.h"

#include <utility>

namespace corvane {

namespace {

constexpr int expiryMilliseconds = 5'000;

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
    m_pool.start(std::move(work));
}

} // namespace corvane
