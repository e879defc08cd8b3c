#include "core/store_follower.h"

#include "core/shelf_store.h"
#include "platform/base/main_queue.h"

#include <utility>

namespace corvane {

StoreFollower::StoreFollower(ShelfStore &store, MainQueue &queue, std::function<void()> follow)
    : m_store(store)
    , m_queue(queue)
    , m_follow(std::move(follow))
{
    const std::weak_ptr<StoreFollower *> weak = m_self;
    store.observeState([weak](ShelfState, ShelfState) {
        if (const auto self = weak.lock())
            (*self)->published();
    });
    store.observeItems([weak](const QList<DropItem> &) {
        if (const auto self = weak.lock())
            (*self)->published();
    });
    store.observeEndOfOperation([weak] {
        if (const auto self = weak.lock())
            (*self)->operationEnded();
    });
}

StoreFollower::~StoreFollower() = default;

void StoreFollower::published()
{
    switch (m_store.pace()) {
    case PublicationPace::AtOnce:
        return followNow();
    case PublicationPace::WithinOperation:
        m_isBehind = true;
        return;
    case PublicationPace::Detail:
        return followLater();
    }
}

void StoreFollower::operationEnded()
{
    if (m_isBehind)
        followNow();
}

void StoreFollower::followLater()
{
    m_isBehind = true;
    if (std::exchange(m_isScheduled, true))
        return;
    m_queue.asyncAfter(detailDelay, [weak = std::weak_ptr(m_self)] {
        if (const auto self = weak.lock())
            (*self)->detailsAreDue();
    });
}

void StoreFollower::detailsAreDue()
{
    m_isScheduled = false;
    if (m_isBehind)
        followNow();
}

void StoreFollower::followNow()
{
    m_isBehind = false;
    m_follow();
}

} // namespace corvane
