#pragma once

#include "platform/base/lifetime.h"

#include <functional>

namespace corvane {

class MainQueue;
class ShelfStore;

/// Calls `follow` after the store's changes, as soon as the pace of each publication asks: at once
/// after a single change, once at the end of an operation however often that publishes, and at most
/// once a frame for thumbnails and texts that arrive one by one.
///
/// `follow` gets no arguments: it has to read the store's present state. Main thread only; the
/// store and the queue must outlive this.
class StoreFollower {
public:
    /// In seconds: one frame at 60 Hz.
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
