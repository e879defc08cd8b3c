#pragma once

#include "platform/base/lifetime.h"

#include <functional>

namespace corvane {

class MainQueue;
class ShelfStore;

/// Does what has to follow the store's changes, at the pace that each of them asks for: at once
/// after a change of its own, once at the end of an operation however often that publishes, and
/// once a frame for pictures and texts that arrive one by one.
///
/// For work that looks at the store's present state alone. Main thread only; the store and the
/// queue must outlive it.
class StoreFollower {
public:
    /// Seconds that details may be behind, a frame at 60 Hz.
    static constexpr double detailDelay = 1.0 / 60;

    StoreFollower(ShelfStore &store, MainQueue &queue, std::function<void()> follow);
    StoreFollower(const StoreFollower &) = delete;
    StoreFollower &operator=(const StoreFollower &) = delete;
    ~StoreFollower();

private:
    void published();
    void operationEnded();
    void detailsAreDue();
    void followLater();
    void followNow();

    ShelfStore &m_store;
    MainQueue &m_queue;
    std::function<void()> m_follow;
    bool m_isBehind = false;
    bool m_isScheduled = false;
    Lifetime m_lifetime;
};

} // namespace corvane
