#pragma once

#include "platform/base/lifetime.h"

#include <functional>
#include <memory>
#include <vector>

namespace corvane {

class MainQueue;
class WaylandConnection;

/// Notices that the user goes on somewhere else, where a compositor keeps the keyboard for a panel
/// whatever is clicked.
///
/// Invisible windows lie above all others until the pointer moves there, or something is dragged
/// there, so that a click is lost on them only where the pointer has not moved before it. Windows
/// that fill a screen are above them. What it is given must outlive it. Main thread only.
class PointerElsewhere {
public:
    /// In points: how far the pointer has to move.
    static constexpr double farEnough = 4;

    PointerElsewhere(WaylandConnection &connection, MainQueue &queue);
    ~PointerElsewhere();
    PointerElsewhere(const PointerElsewhere &) = delete;
    PointerElsewhere &operator=(const PointerElsewhere &) = delete;

    void watch();
    void stop();
    /// Called later, once for each watch.
    std::function<void()> onMoved;

private:
    class Ground;

    void used();

    WaylandConnection &m_connection;
    MainQueue &m_queue;
    std::vector<std::unique_ptr<Ground>> m_grounds;
    /// Of the present watch.
    Lifetime m_watch;
};

} // namespace corvane
