#pragma once

#include "platform/base/cancellation.h"
#include "platform/base/lifetime.h"

#include <QHash>
#include <QList>
#include <QUuid>

#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

namespace corvane {

class MainQueue;

/// The order in which thumbnails are made: what is in view first, of the rest the newest, a few at
/// a time. One job for each item. Main thread only.
class ThumbnailQueue {
public:
    /// Must be called once, later, on the main thread, when the job has come to its end, wanted or
    /// not. May be called after the queue is gone.
    using Done = std::function<void()>;
    /// Begins a job. Whoever does the work watches the cancellation, which is never null.
    using Start = std::function<void(const std::shared_ptr<Cancellation> &cancellation, Done done)>;
    /// The same for one of several, told by its position among them.
    using StartOne = std::function<void(
        std::size_t position, const std::shared_ptr<Cancellation> &cancellation, Done done)>;

    /// The main queue must outlive this. `maximumRunning` jobs run at once.
    ThumbnailQueue(MainQueue &mainQueue, std::size_t maximumRunning);
    ThumbnailQueue(const ThumbnailQueue &) = delete;
    ThumbnailQueue &operator=(const ThumbnailQueue &) = delete;
    /// Cancels what runs.
    ~ThumbnailQueue();

    /// Tells which items are in view. Asked whenever a job is chosen.
    void setItemsInView(std::function<QList<QUuid>()> itemsInView);

    /// Nothing starts inside this call. A job that waits for the same item is replaced.
    void add(const QUuid &item, Start start);
    /// Many at once, the last the newest. Costs next to nothing before the next turn.
    void add(std::vector<QUuid> items, StartOne start);
    /// Drops the item's job: a waiting one never starts, a running one is told.
    void cancel(const QUuid &item);

private:
    struct Batch {
        std::vector<QUuid> items;
        StartOne start;
    };
    struct Waiting {
        std::size_t number = 0;
        std::shared_ptr<const Batch> batch;
        std::size_t position = 0;
    };
    struct Newest {
        QUuid item;
        std::size_t number = 0;
    };
    struct Running {
        QUuid item;
        std::size_t number = 0;
        std::shared_ptr<Cancellation> cancellation;
    };

    void takeIn();
    void scheduleFill();
    void fill();
    QUuid next();
    void begin(const QUuid &item);
    void finished(std::size_t number);

    MainQueue &m_mainQueue;
    std::size_t m_maximumRunning;
    std::function<QList<QUuid>()> m_itemsInView;
    std::size_t m_lastNumber = 0;
    /// Added, but not yet among those that wait.
    std::vector<std::shared_ptr<const Batch>> m_arrived;
    QHash<QUuid, Waiting> m_waiting;
    /// The newest at the end. An entry whose number no longer waits is stale and skipped.
    std::vector<Newest> m_order;
    std::vector<Running> m_running;
    bool m_isFillScheduled = false;
    Lifetime m_lifetime;
};

} // namespace corvane
