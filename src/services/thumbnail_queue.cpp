#include "services/thumbnail_queue.h"

#include "platform/main_queue.h"

#include <algorithm>
#include <utility>

namespace corvane {

ThumbnailQueue::ThumbnailQueue(MainQueue &mainQueue, std::size_t maximumRunning)
    : m_mainQueue(mainQueue)
    , m_maximumRunning(maximumRunning)
{
}

ThumbnailQueue::~ThumbnailQueue()
{
    for (const Running &running : m_running)
        running.cancellation->cancel();
}

void ThumbnailQueue::setItemsInView(std::function<QList<QUuid>()> itemsInView)
{
    m_itemsInView = std::move(itemsInView);
}

void ThumbnailQueue::add(const QUuid &item, Start start)
{
    const std::size_t number = ++m_lastNumber;
    m_waiting.insert(item, {number, std::move(start)});
    m_order.push_back({item, number});
    scheduleFill();
}

void ThumbnailQueue::cancel(const QUuid &item)
{
    m_waiting.remove(item);
    for (const Running &running : m_running) {
        if (running.item == item)
            running.cancellation->cancel();
    }
}

void ThumbnailQueue::scheduleFill()
{
    // Later, when the whole drop is known: what is in view may be the last of it.
    if (m_running.size() >= m_maximumRunning || std::exchange(m_isFillScheduled, true))
        return;
    m_mainQueue.async([weak = std::weak_ptr(m_self)] {
        if (const auto self = weak.lock())
            (*self)->fill();
    });
}

void ThumbnailQueue::fill()
{
    m_isFillScheduled = false;
    while (m_running.size() < m_maximumRunning && !m_waiting.isEmpty())
        begin(next());
    if (m_waiting.isEmpty())
        m_order.clear();
}

QUuid ThumbnailQueue::next()
{
    if (m_itemsInView) {
        const QList<QUuid> inView = m_itemsInView();
        const auto found = std::find_if(inView.begin(), inView.end(), [this](const QUuid &item) {
            return m_waiting.contains(item);
        });
        if (found != inView.end())
            return *found;
    }
    while (true) {
        const Newest newest = m_order.back();
        m_order.pop_back();
        const auto waiting = m_waiting.constFind(newest.item);
        if (waiting != m_waiting.constEnd() && waiting->number == newest.number)
            return newest.item;
    }
}

void ThumbnailQueue::begin(const QUuid &item)
{
    const Waiting job = m_waiting.take(item);
    const auto cancellation = std::make_shared<Cancellation>();
    m_running.push_back({item, job.number, cancellation});
    job.start(cancellation, [weak = std::weak_ptr(m_self), number = job.number] {
        if (const auto self = weak.lock())
            (*self)->finished(number);
    });
}

void ThumbnailQueue::finished(std::size_t number)
{
    std::erase_if(m_running, [number](const Running &job) { return job.number == number; });
    // At once: the thread that made the last picture waits for the next.
    fill();
}

} // namespace corvane
