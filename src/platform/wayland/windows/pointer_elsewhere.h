#pragma once

#include "platform/base/lifetime.h"
#include "platform/wayland/windows/covered_screens.h"

#include <QPointF>

#include <functional>
#include <optional>

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

    void watch();
    void stop();
    /// Called later, once for each watch.
    std::function<void()> onMoved;

private:
    void happened(const QEvent &event);
    void used();

    MainQueue &m_queue;
    CoveredScreens m_covered;
    /// The first place where the pointer was seen, unless it has left.
    std::optional<QPointF> m_first;
    /// Of the present watch.
    Lifetime m_watch;
};

} // namespace corvane
