#pragma once

#include "core/drop_item.h"
#include "platform/base/lifetime.h"

#include <QList>
#include <QUuid>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace corvane {

class MainQueue;
class ScratchSpool;
class SpoolPlace;
class WorkQueue;

/// Makes items ready beside the main thread.
///
/// An item that takes its time (a picture that is converted, or written to a disk) stands on the
/// shelf at once, under its final name; its file follows. Removing the item discards that file,
/// which ends the work; an item that was dragged out is finished all the same, for whoever took it.
/// How many are made at once is the work queue's business, which bounds memory too.
///
/// All references must outlive it. Main thread only.
class ItemPreparation {
public:
    /// An item's final form; none when it was removed before it was ready.
    using WhenReady = std::function<void(const std::optional<DropItem> &)>;
    struct Job {
        /// As it stands on the shelf meanwhile.
        DropItem item;
        /// Where files may be written; the first is the item's own, and ends the work when it is
        /// discarded.
        std::vector<std::shared_ptr<SpoolPlace>> places;
        /// What the item becomes, made on another thread: everything that it uses must outlive the
        /// work queue.
        std::function<DropItem()> make;
        /// Called on the main thread at the end, before anybody else hears of it. May be empty.
        WhenReady onEnd;
    };

    ItemPreparation(ScratchSpool &spool, MainQueue &mainQueue, WorkQueue &workQueue);
    ItemPreparation(const ItemPreparation &) = delete;
    ItemPreparation &operator=(const ItemPreparation &) = delete;
    /// Gives everything up that is under way.
    ~ItemPreparation();

    /// Called with each item that is ready, under its id.
    std::function<void(const DropItem &)> onReady;

    /// Nothing is made inside this call. Gives the item back.
    DropItem begin(Job job);
    /// Calls back exactly once, unless this is gone before: at once for an item that is not being
    /// made, else later, after `onReady`. That it was removed is told when its work has stopped.
    void whenReady(const DropItem &item, WhenReady callback);
    /// The same for many: all that were not removed, in their order, once the last is decided.
    void whenReady(const QList<DropItem> &items,
                   const std::function<void(const QList<DropItem> &)> &callback);

private:
    struct Running {
        DropItem item;
        std::vector<std::shared_ptr<SpoolPlace>> places;
        WhenReady onEnd;
        std::vector<WhenReady> waiting;
    };
    void ended(const QUuid &id, const std::optional<DropItem> &made);

    ScratchSpool &m_spool;
    MainQueue &m_mainQueue;
    WorkQueue &m_workQueue;
    std::map<QUuid, Running> m_running;
    Lifetime m_lifetime;
};

} // namespace corvane
