#pragma once

#include "platform/wayland/windows/layer_surface.h"

#include <functional>
#include <memory>
#include <vector>

class QEvent;
class QScreen;

namespace corvane {

class WaylandConnection;

/// Invisible windows over all screens, for a while: what the pointer, or something that is dragged,
/// does where no window of ours is. Other programs get none of it meanwhile.
///
/// A window that something is dragged over lets everything through from `uncover` on, and goes once
/// that has left: Qt goes on using the window until then, and a compositor its surface. The
/// connection must outlive it. Main thread only.
class CoveredScreens {
public:
    using Told = std::function<void(QScreen &screen, const QEvent &event)>;

    explicit CoveredScreens(WaylandConnection &connection);
    ~CoveredScreens();
    CoveredScreens(const CoveredScreens &) = delete;
    CoveredScreens &operator=(const CoveredScreens &) = delete;

    /// Tells of all that comes to the windows; not to be answered by `uncover` at once. Covers them
    /// anew where they are covered.
    void cover(LayerSurface::Layer layer, const Told &told);
    void uncover();
    bool areCovered() const { return !m_grounds.empty(); }

private:
    class Ground;

    WaylandConnection &m_connection;
    std::vector<std::unique_ptr<Ground>> m_grounds;
    /// Those that something is dragged over still.
    std::vector<std::unique_ptr<Ground>> m_leaving;
};

} // namespace corvane
