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

/// Makes items' files on other threads.
///
/// An item whose file takes time to make (a picture that is converted, or written to disk) is put
/// on the shelf at once, under its final name; its file follows. Discarding the file, as removing
/// the item does, ends the work. An item that was dragged out is finished all the same, for the
/// program that took it. How many are made at once, and so how much memory that takes, is up to the
/// work queue.
///
/// All references must outlive it. Main thread only.
class ItemPreparation {
public:
    /// An item's final form; none when it was removed before it was ready.
    using WhenReady = std::function<void(const std::optional<DropItem> &)>;
    struct Job {
        /// The item as it is shown on the shelf until its file is there.
        DropItem item;
        /// Where `make` may write files. The first is the item's own: when it is discarded, the
        /// work ends.
        std::vector<std::shared_ptr<SpoolPlace>> places;
        /// What the item becomes, made on another thread: everything that it uses must outlive the
        /// work queue.
        std::function<DropItem()> make;
        /// Called on the main thread at the end, before `onReady` and the callbacks of `whenReady`.
        /// May be empty.
        WhenReady onEnd;
        /// What the item is made from, if that is nowhere else.
        std::optional<DropItem::ImageBytes> bytes = {};
    };

    ItemPreparation(ScratchSpool &spool, MainQueue &mainQueue, WorkQueue &workQueue);
    ItemPreparation(const ItemPreparation &) = delete;
    ItemPreparation &operator=(const ItemPreparation &) = delete;
    /// Gives up all that is being made; no callback is called any more.
    ~ItemPreparation();

    /// Called with each item that has become ready; its id is the one that it had before. May be
    /// empty.
    std::function<void(const DropItem &)> onReady;

    /// Queues the job and returns its item. Nothing is made inside this call.
    DropItem begin(Job job);
    /// Calls back exactly once, unless this is destroyed before: at once for an item that is not
    /// being made, else later, after `onReady`. For an item that was removed it calls back, with
    /// none, when the work on it has ended.
    void whenReady(const DropItem &item, WhenReady callback);
    /// The same for many, called once all are ready or removed: those that were not removed, in
    /// their order.
    void whenReady(const QList<DropItem> &items,
                   const std::function<void(const QList<DropItem> &)> &callback);

    /// What an item is being made from that is in memory alone, to be kept if the program ends
    /// before the item is made; none for others.
    std::optional<DropItem::ImageBytes> bytesOf(const DropItem &item) const;

private:
    struct Running {
        DropItem item;
        std::vector<std::shared_ptr<SpoolPlace>> places;
        WhenReady onEnd;
        std::optional<DropItem::ImageBytes> bytes;
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
