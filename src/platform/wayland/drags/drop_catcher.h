#pragma once

#include <QPointer>
#include <QRect>
#include <QRegion>
#include <QWindow>

#include <optional>

struct wl_buffer;
struct wl_surface;
struct zwlr_layer_surface_v1;

class QScreen;

namespace corvane {

struct CatcherServices;
class LayerPanelSurface;

/// A surface that nobody sees, where a panel's window is: what is dragged over the part of that
/// window which takes clicks is told to whoever made this, and not to Qt. Clicks there are lost, so
/// it is there only while something is dragged.
class DropCatcher {
public:
    /// Everything must outlive it, but for the window.
    DropCatcher(CatcherServices &services, LayerPanelSurface &panels, QWindow &window);
    ~DropCatcher();
    DropCatcher(const DropCatcher &) = delete;
    DropCatcher &operator=(const DropCatcher &) = delete;

    QWindow *window() const { return m_window; }
    wl_surface *surface() const { return m_surface; }
    /// Whether it is where the window is.
    bool isInPlace() const;
    /// The window takes clicks elsewhere now, perhaps.
    void follow();
    /// Has no window any more: that one takes clicks itself, and this one none.
    void stepAside();

private:
    struct Listener;

    bool makeBuffer();
    void configured();
    void setInputRegion(const QRegion &region);

    CatcherServices &m_services;
    LayerPanelSurface &m_panels;
    QPointer<QWindow> m_window;
    const QScreen *m_screen;
    QRect m_area;
    std::optional<QRegion> m_region;
    bool m_isConfigured = false;
    wl_surface *m_surface = nullptr;
    zwlr_layer_surface_v1 *m_layerSurface = nullptr;
    wl_buffer *m_buffer = nullptr;
};

} // namespace corvane
