#include "platform/wayland/drags/drag_icon.h"

#include "platform/system/file_descriptor.h"

#include <QPainter>

#include <sys/mman.h>
#include <unistd.h>
#include <wayland-client.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

namespace corvane {

namespace {

/// The image at a whole number of pixels per point, fitted into its size.
QImage pixelsOf(const Image &image, int scale)
{
    const QSize points(static_cast<int>(std::ceil(image.size.width())),
                       static_cast<int>(std::ceil(image.size.height())));
    QImage pixels(points * scale, QImage::Format_ARGB32_Premultiplied);
    pixels.fill(Qt::transparent);
    QPainter painter(&pixels);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QSizeF fitted
        = QSizeF(image.bitmap.size()).scaled(image.size * scale, Qt::KeepAspectRatio);
    painter.drawImage(QRectF({}, fitted), image.bitmap);
    return pixels;
}

/// Null where there is no memory for it.
wl_buffer *bufferOf(wl_shm *shm, const QImage &pixels)
{
    const auto size = static_cast<std::size_t>(pixels.sizeInBytes());
    if (pixels.isNull() || size > std::numeric_limits<std::int32_t>::max())
        return nullptr;
    const FileDescriptor file(::memfd_create("corvane-drag", MFD_CLOEXEC));
    if (!file.isOpen() || ::ftruncate(file.number(), static_cast<off_t>(size)) != 0)
        return nullptr;
    void *const memory = ::mmap(nullptr, size, PROT_WRITE, MAP_SHARED, file.number(), 0);
    if (memory == MAP_FAILED)
        return nullptr;
    std::memcpy(memory, pixels.constBits(), size);
    ::munmap(memory, size);
    wl_shm_pool *const pool
        = wl_shm_create_pool(shm, file.number(), static_cast<std::int32_t>(size));
    wl_buffer *const buffer = wl_shm_pool_create_buffer(
        pool, 0, pixels.width(), pixels.height(), static_cast<std::int32_t>(pixels.bytesPerLine()),
        WL_SHM_FORMAT_ARGB8888);
    wl_shm_pool_destroy(pool);
    return buffer;
}

/// A surface without anything to show is not shown, nor are its parts.
QImage transparentPixel()
{
    QImage pixel(1, 1, QImage::Format_ARGB32_Premultiplied);
    pixel.fill(Qt::transparent);
    return pixel;
}

void commit(wl_surface *surface, wl_buffer *buffer)
{
    wl_surface_attach(surface, buffer, 0, 0);
    constexpr auto all = std::numeric_limits<std::int32_t>::max();
    wl_surface_damage(surface, 0, 0, all, all);
    wl_surface_commit(surface);
}

} // namespace

DragIcon::DragIcon(const Services &services, const Image &image, double scale)
    : m_scale(std::max(1, static_cast<int>(std::ceil(scale))))
{
    if (!services.compositor || !services.subcompositor || !services.shm || image.isNull()
        || image.size.isEmpty())
        return;
    m_pixels = bufferOf(services.shm, pixelsOf(image, m_scale));
    m_nothing = m_pixels ? bufferOf(services.shm, transparentPixel()) : nullptr;
    if (!m_nothing)
        return;
    m_surface = wl_compositor_create_surface(services.compositor);
    m_picture = wl_compositor_create_surface(services.compositor);
    m_part = wl_subcompositor_get_subsurface(services.subcompositor, m_picture, m_surface);
}

DragIcon::~DragIcon()
{
    if (m_part)
        wl_subsurface_destroy(m_part);
    for (wl_surface *surface : {m_picture, m_surface}) {
        if (surface)
            wl_surface_destroy(surface);
    }
    for (wl_buffer *buffer : {m_pixels, m_nothing}) {
        if (buffer)
            wl_buffer_destroy(buffer);
    }
}

void DragIcon::show(QPoint hotSpot)
{
    if (!m_surface)
        return;
    wl_surface_set_buffer_scale(m_picture, m_scale);
    wl_subsurface_set_position(m_part, -hotSpot.x(), -hotSpot.y());
    commit(m_picture, m_pixels);
    // Which the other one waits for.
    commit(m_surface, m_nothing);
}

} // namespace corvane
