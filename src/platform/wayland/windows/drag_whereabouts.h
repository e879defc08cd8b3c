#pragma once

#include "platform/desktop/screen_search.h"
#include "platform/wayland/windows/covered_screens.h"

#include <memory>

namespace corvane {

class HandledMark;
class WaylandConnection;

/// Finds the screen that something is dragged over, where the compositor tells that it is dragged
/// but not where.
///
/// An invisible window covers each screen until what is dragged, or the pointer, moves on one of
/// them: for about a frame, in which no other program can be dropped on.
class DragWhereabouts : public ScreenSearch {
public:
    /// In seconds: so long a move is waited for once the compositor has the windows, which takes
    /// longer than that where the machine is busy. Whoever begins a drag moves; a hand that rests
    /// right after it must not wait for the shelf.
    static constexpr double patience = 0.25;

    DragWhereabouts(WaylandConnection &connection, MainQueue &queue, const Screens &screens);
    ~DragWhereabouts() override;

private:
    bool begin() override;
    void end() override;
    void awaitMove();
    void reached(const QScreen &where);

    WaylandConnection &m_connection;
    CoveredScreens m_covered;
    std::unique_ptr<HandledMark> m_areShown;
};

} // namespace corvane
