#include "services/thumbnail_queue.h"

#include "platform/base/main_queue.h"

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
    add(std::vector<QUuid>{item},
        [start = std::move(start)](std::size_t, const std::shared_ptr<Cancellation> &cancellation,
                                   Done done) { start(cancellation, std::move(done)); });
}

void ThumbnailQueue::add(std::vector<QUuid> items, StartOne start)
{
    m_arrived.push_back(std::make_shared<const Batch>(Batch{std::move(items), std::move(start)}));
    scheduleFill();
}

void ThumbnailQueue::takeIn()
{
    for (const auto &batch : std::exchange(m_arrived, {})) {
        const std::size_t count = batch->items.size();
        if (count > 1) {
            m_waiting.reserve(m_waiting.size() + static_cast<qsizetype>(count));
            m_order.reserve(m_order.size() + count);
        }
        for (std::size_t position = 0; position < count; ++position) {
            const QUuid &item = batch->items[position];
            const std::size_t number = ++m_lastNumber;
            m_waiting.insert(item, {number, batch, position});
            m_order.push_back({item, number});
        }
    }
}

void ThumbnailQueue::cancel(const QUuid &item)
{
    takeIn();
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
    m_mainQueue.async(m_lifetime.guard([this] { fill(); }));
}

void ThumbnailQueue::fill()
{
    m_isFillScheduled = false;
    takeIn();
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
    const auto done = m_lifetime.guard([this, number = job.number] { finished(number); });
    job.batch->start(job.position, cancellation, done);
}

void ThumbnailQueue::finished(std::size_t number)
{
    std::erase_if(m_running, [number](const Running &job) { return job.number == number; });
    // At once: the thread that made the last picture waits for the next.
    fill();
}

} // namespace corvane
