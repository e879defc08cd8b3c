#pragma once

#include "platform/pictures/image.h"

#include <QPoint>

struct wl_buffer;
struct wl_compositor;
struct wl_shm;
struct wl_subcompositor;
struct wl_subsurface;
struct wl_surface;

namespace corvane {

/// The picture under the pointer, while something is dragged out.
///
/// A drag's surface hangs from the pointer by its top left corner, unless it is moved by what it is
/// given to show, which some compositors pass over, as sway up to 1.7. So the drag has an empty
/// one, of which the picture is a part that lies beside it.
class DragIcon {
public:
    struct Services {
        wl_compositor *compositor;
        wl_subcompositor *subcompositor;
        wl_shm *shm;
    };
    /// Without a picture there is no surface. `scale` is that of the screen, pixels per point.
    DragIcon(const Services &services, const Image &image, double scale);
    ~DragIcon();
    DragIcon(const DragIcon &) = delete;
    DragIcon &operator=(const DragIcon &) = delete;

    wl_surface *surface() const { return m_surface; }
    /// Once the surface belongs to a drag. The pointer holds it at `hotSpot`, in points.
    void show(QPoint hotSpot);

private:
    /// The drag's own.
    wl_surface *m_surface = nullptr;
    wl_buffer *m_nothing = nullptr;
    wl_surface *m_picture = nullptr;
    wl_subsurface *m_part = nullptr;
    wl_buffer *m_pixels = nullptr;
    int m_scale = 1;
};

} // namespace corvane
