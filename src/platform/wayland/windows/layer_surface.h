#pragma once

#include <QRect>

#include <cstdint>
#include <functional>

struct wl_surface;
struct zwlr_layer_surface_v1;

class QScreen;
class QWindow;

namespace corvane {

class WaylandConnection;

/// The place of a window's surface on a screen, above the windows there. The window is not shown
/// yet when this is made; this has to be gone before the window's surface is.
///
/// What is set counts from `commit` on, or from the window's next frame. Main thread only.
class LayerSurface {
public:
    enum class Layer : std::uint32_t {
        /// Above windows, and below those that fill the screen.
        Top = 2,
        /// Above everything.
        Overlay = 3,
    };
    enum class Keyboard : std::uint32_t {
        Never = 0,
        /// As long as it is shown, and nobody else.
        Always = 1,
    };

    struct Place {
        /// Null leaves it to the compositor.
        QScreen *screen = nullptr;
        Layer layer = Layer::Overlay;
        /// From the screen's top left, in the toolkit's device-independent pixels.
        QRect area;
    };
    /// The window has a platform window. The connection must outlive this.
    LayerSurface(WaylandConnection &connection, QWindow &window, const Place &place);
    ~LayerSurface();
    LayerSurface(const LayerSurface &) = delete;
    LayerSurface &operator=(const LayerSurface &) = delete;

    /// Tells the compositor of it and waits for its answer, before which nothing may be shown.
    /// False where there is none in time, or the compositor does not want it.
    bool announce();
    void setArea(const QRect &area);
    void setKeyboard(Keyboard keyboard);
    void commit();

    /// The compositor shows it no longer. Not called by `announce`, which says so itself. May
    /// destroy this.
    std::function<void()> onClosed;

private:
    struct Listener;

    WaylandConnection &m_connection;
    wl_surface *m_surface;
    zwlr_layer_surface_v1 *m_layerSurface = nullptr;
    bool m_isBeingAnnounced = false;
    bool m_isConfigured = false;
    bool m_isClosed = false;
};

} // namespace corvane
