#pragma once

#include "platform/pictures/image.h"

#include <QPoint>

struct wl_buffer;
struct wl_compositor;
struct wl_shm;
struct wl_surface;

namespace corvane {

/// The picture under the pointer, while something is dragged out.
class DragIcon {
public:
    /// Without a picture there is no surface. `scale` is that of the screen, pixels per point.
    DragIcon(wl_compositor *compositor, wl_shm *shm, const Image &image, double scale);
    ~DragIcon();
    DragIcon(const DragIcon &) = delete;
    DragIcon &operator=(const DragIcon &) = delete;

    wl_surface *surface() const { return m_surface; }
    /// Once the surface belongs to a drag. The pointer holds it at `hotSpot`, in points.
    void show(QPoint hotSpot);

private:
    bool makeBuffer(wl_shm *shm, const QImage &pixels);

    wl_surface *m_surface = nullptr;
    wl_buffer *m_buffer = nullptr;
    int m_scale = 1;
};

} // namespace corvane
