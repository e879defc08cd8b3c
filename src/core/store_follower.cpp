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
    store.observeState(m_lifetime.guard([this](ShelfState, ShelfState) { published(); }));
    store.observeItems(m_lifetime.guard([this](const QList<DropItem> &) { published(); }));
    store.observeEndOfOperation(m_lifetime.guard([this] { operationEnded(); }));
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
    m_queue.asyncAfter(detailDelay, m_lifetime.guard([this] { detailsAreDue(); }));
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
