#pragma once

namespace corvane {

struct Screen;

/// Full-screen windows: films, games, presentations, a locked session.
class FullScreenWindows {
public:
    virtual ~FullScreenWindows() = default;

    /// Whether such a window is in front at the middle of the screen's top edge, or has the
    /// keyboard there. A maximised window is none. False where the window system does not tell.
    virtual bool isCovered(const Screen &screen) const = 0;
};

} // namespace corvane
