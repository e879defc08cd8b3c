#pragma once

#include "platform/base/lifetime.h"
#include "platform/desktop/screens.h"
#include "platform/wayland/windows/covered_screens.h"

#include <functional>
#include <memory>

namespace corvane {

class HandledMark;
class MainQueue;
class WaylandConnection;

/// Finds the screen that something is dragged over, where the compositor tells that it is dragged
/// but not where.
///
/// An invisible window covers each screen until what is dragged, or the pointer, moves on one of
/// them: for about a frame, in which no other program can be dropped on. With one screen there is
/// nothing to find. What it is given must outlive it. Main thread only.
class DragWhereabouts {
public:
    /// In seconds: so long a move is waited for once the compositor has the windows, which takes
    /// longer than that where the machine is busy. Whoever begins a drag moves; a hand that rests
    /// right after it must not wait for the shelf.
    static constexpr double patience = 0.25;

    DragWhereabouts(WaylandConnection &connection, MainQueue &queue, const Screens &screens);
    ~DragWhereabouts();

    /// Looks for it, and tells once. Told of another drag meanwhile it goes on looking.
    void find();
    /// Called with the screen, or with null where it was not found. With one screen at once,
    /// otherwise later.
    std::function<void(const ScreenPointer &screen)> onFound;

private:
    void awaitMove();
    void giveUpLater();
    void reached(const QScreen &where);
    void found(const ScreenPointer &screen);

    WaylandConnection &m_connection;
    MainQueue &m_queue;
    const Screens &m_screens;
    CoveredScreens m_covered;
    std::unique_ptr<HandledMark> m_areShown;
    /// Of what is looked for now.
    Lifetime m_search;
};

} // namespace corvane
