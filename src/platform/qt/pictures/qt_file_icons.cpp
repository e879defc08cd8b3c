#include "platform/qt/pictures/qt_file_icons.h"

#include "platform/system/file_locality.h"
#include "platform/system/file_url.h"

#include <QIcon>
#include <QPainter>
#include <QPainterPath>

#include <sys/stat.h>

#include <algorithm>
#include <cmath>

namespace corvane {

namespace {

/// More than there are icon names and sizes in use; the limit only guards against a mistake.
constexpr qsizetype maximumCached = 500;

/// A sheet of paper with a turned-down corner, on a canvas of 32 by 32.
QPainterPath sheet()
{
    QPainterPath path;
    path.addPolygon(QPolygonF({{7, 3}, {19, 3}, {26, 10}, {26, 29}, {7, 29}, {7, 3}}));
    path.addPolygon(QPolygonF({{19, 3}, {19, 10}, {26, 10}}));
    return path;
}

QPainterPath folder()
{
    QPainterPath path;
    path.addPolygon(QPolygonF({{3, 7}, {12, 7}, {15, 10}, {29, 10}, {29, 26}, {3, 26}, {3, 7}}));
    return path;
}

QImage drawnIcon(bool asFolder, int pixels)
{
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(pixels / 32.0, pixels / 32.0);
    painter.setPen(QPen(QColor(0x5c, 0x63, 0x6e), 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(asFolder ? QColor(0x8f, 0xb4, 0xe8) : QColor(0xf4, 0xf5, 0xf7));
    painter.drawPath(asFolder ? folder() : sheet());
    return image;
}

/// The theme's icon in the middle of a square, scaled down if it is larger.
QImage squared(const QPixmap &pixmap, int pixels)
{
    QImage bitmap = pixmap.toImage();
    bitmap.setDevicePixelRatio(1);
    if (bitmap.width() > pixels || bitmap.height() > pixels)
        bitmap = bitmap.scaled(pixels, pixels, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter(&image).drawImage((pixels - bitmap.width()) / 2, (pixels - bitmap.height()) / 2,
                               bitmap);
    return image;
}

QImage iconImage(const QMimeType &type, bool asFolder, int pixels)
{
    for (const QString &name : {type.iconName(), type.genericIconName()}) {
        const QPixmap pixmap = QIcon::fromTheme(name).pixmap({pixels, pixels}, 1);
        if (!pixmap.isNull())
            return squared(pixmap, pixels);
    }
    return drawnIcon(asFolder, pixels);
}

} // namespace

QtFileIcons::QtFileIcons(const FileLocality &locality)
    : m_locality(locality)
{
}

bool QtFileIcons::isFolder(const QUrl &url) const
{
    const QByteArray path = file_url::nativePath(url);
    if (path.isEmpty() || path.endsWith('/') || m_locality.isRemote(path))
        return path.endsWith('/');
    struct stat status = {};
    // A link is not followed: its target may be on a sleeping disk.
    return ::lstat(path.constData(), &status) == 0 && S_ISDIR(status.st_mode);
}

Image QtFileIcons::iconForFile(const QUrl &url, double side, double scale)
{
    if (isFolder(url))
        return iconForFolder(side, scale);
    const auto type = m_database.mimeTypeForFile(file_url::lastPathComponent(url),
                                                 QMimeDatabase::MatchExtension);
    return icon(type, false, side, scale);
}

Image QtFileIcons::iconForFolder(double side, double scale)
{
    return icon(m_database.mimeTypeForName(QStringLiteral("inode/directory")), true, side, scale);
}

Image QtFileIcons::icon(const QMimeType &type, bool asFolder, double side, double scale)
{
    const int pixels = static_cast<int>(std::clamp(std::round(side * scale), 1.0, 1024.0));
    const Key key{type.iconName(), pixels};
    auto found = m_cache.find(key);
    if (found == m_cache.end()) {
        if (m_cache.size() >= maximumCached)
            m_cache.clear();
        found = m_cache.insert(key, iconImage(type, asFolder, pixels));
    }
    return {*found, {side, side}};
}

} // namespace corvane
