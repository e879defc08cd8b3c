#include "core/item_preparation.h"

#include "core/scratch_spool.h"
#include "core/spool_place.h"
#include "platform/base/main_queue.h"
#include "platform/base/work_queue.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace corvane {

ItemPreparation::ItemPreparation(ScratchSpool &spool, MainQueue &mainQueue, WorkQueue &workQueue)
    : m_spool(spool)
    , m_mainQueue(mainQueue)
    , m_workQueue(workQueue)
{
}

ItemPreparation::~ItemPreparation()
{
    for (const auto &[id, running] : m_running) {
        for (const auto &place : running.places)
            place->giveUp();
    }
}

DropItem ItemPreparation::begin(Job job)
{
    const QUuid id = job.item.id();
    const auto end
        = m_lifetime.guard([this, id](const std::optional<DropItem> &made) { ended(id, made); });
    m_workQueue.run(
        [&mainQueue = m_mainQueue, end, place = job.places.front(), make = std::move(job.make)] {
            auto made = place->isWanted() ? std::optional(make()) : std::nullopt;
            mainQueue.async([end, made = std::move(made)] { end(made); });
        });
    DropItem item = job.item;
    m_running.insert_or_assign(id,
                               Running{std::move(job.item),
                                       std::move(job.places),
                                       std::move(job.onEnd),
                                       std::move(job.bytes),
                                       {}});
    return item;
}

void ItemPreparation::ended(const QUuid &id, const std::optional<DropItem> &made)
{
    const auto node = m_running.extract(id);
    const Running &running = node.mapped();
    std::optional<DropItem> ready;
    if (made && running.places.front()->isWanted()) {
        ready = running.item;
        ready->become(*made);
        if (const auto *file = std::get_if<DropItem::File>(&ready->payload());
            file && ready->isSpooled()) {
            m_spool.keepName(file->url);
            // A picture that cannot be converted stays the file that it was.
            m_spool.moveLoans(running.places.front()->url(), file->url);
        }
    } else {
        for (const auto &place : running.places)
            m_spool.discard(place->url());
    }
    const Lifetime::Token life = m_lifetime.token();
    if (running.onEnd)
        running.onEnd(ready);
    if (ready && !life.isOver() && onReady)
        onReady(*ready);
    for (const WhenReady &callback : running.waiting) {
        if (!life.isOver())
            callback(ready);
    }
}

void ItemPreparation::whenReady(const DropItem &item, WhenReady callback)
{
    if (!item.isBeingMade()) {
        callback(item);
        return;
    }
    const auto running = m_running.find(item.id());
    if (running != m_running.end())
        running->second.waiting.push_back(std::move(callback));
    else
        callback(std::nullopt);
}

void ItemPreparation::whenReady(const QList<DropItem> &items,
                                const std::function<void(const QList<DropItem> &)> &callback)
{
    if (std::none_of(items.begin(), items.end(), std::mem_fn(&DropItem::isBeingMade))) {
        callback(items);
        return;
    }
    struct Gathered {
        std::vector<std::optional<DropItem>> items;
        std::size_t missing = 0;
    };
    const auto count = static_cast<std::size_t>(items.size());
    const auto gathered = std::make_shared<Gathered>();
    gathered->items.resize(count);
    // One more than there are: a callback may come inside `whenReady`, and must not finish the list
    // before all items have been asked for.
    gathered->missing = count + 1;
    const auto oneLess = [gathered, callback] {
        if (--gathered->missing > 0)
            return;
        QList<DropItem> ready;
        for (const auto &item : gathered->items) {
            if (item)
                ready << *item;
        }
        callback(ready);
    };
    for (std::size_t i = 0; i < count; ++i) {
        whenReady(items[static_cast<qsizetype>(i)],
                  [gathered, oneLess, i](const std::optional<DropItem> &item) {
                      gathered->items[i] = item;
                      oneLess();
                  });
    }
    oneLess();
}

std::optional<DropItem::ImageBytes> ItemPreparation::bytesOf(const DropItem &item) const
{
    const auto running = m_running.find(item.id());
    return running != m_running.end() ? running->second.bytes : std::nullopt;
}

} // namespace corvane
