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

} // namespace

DragIcon::DragIcon(wl_compositor *compositor, wl_shm *shm, const Image &image, double scale)
    : m_scale(std::max(1, static_cast<int>(std::ceil(scale))))
{
    if (!compositor || !shm || image.isNull() || image.size.isEmpty())
        return;
    if (makeBuffer(shm, pixelsOf(image, m_scale)))
        m_surface = wl_compositor_create_surface(compositor);
}

bool DragIcon::makeBuffer(wl_shm *shm, const QImage &pixels)
{
    const auto size = static_cast<std::size_t>(pixels.sizeInBytes());
    if (pixels.isNull() || size > std::numeric_limits<std::int32_t>::max())
        return false;
    const FileDescriptor file(::memfd_create("corvane-drag", MFD_CLOEXEC));
    if (!file.isOpen() || ::ftruncate(file.number(), static_cast<off_t>(size)) != 0)
        return false;
    void *const memory = ::mmap(nullptr, size, PROT_WRITE, MAP_SHARED, file.number(), 0);
    if (memory == MAP_FAILED)
        return false;
    std::memcpy(memory, pixels.constBits(), size);
    ::munmap(memory, size);
    wl_shm_pool *const pool
        = wl_shm_create_pool(shm, file.number(), static_cast<std::int32_t>(size));
    m_buffer = wl_shm_pool_create_buffer(pool, 0, pixels.width(), pixels.height(),
                                         static_cast<std::int32_t>(pixels.bytesPerLine()),
                                         WL_SHM_FORMAT_ARGB8888);
    wl_shm_pool_destroy(pool);
    return true;
}

DragIcon::~DragIcon()
{
    if (m_surface)
        wl_surface_destroy(m_surface);
    if (m_buffer)
        wl_buffer_destroy(m_buffer);
}

void DragIcon::show(QPoint hotSpot)
{
    if (!m_surface)
        return;
    wl_surface_set_buffer_scale(m_surface, m_scale);
    wl_surface_attach(m_surface, m_buffer, -hotSpot.x(), -hotSpot.y());
    constexpr auto all = std::numeric_limits<std::int32_t>::max();
    wl_surface_damage(m_surface, 0, 0, all, all);
    wl_surface_commit(m_surface);
}

} // namespace corvane
