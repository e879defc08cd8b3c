#include "core/drag_writer.h"

#include "platform/base/geometry.h"
#include "platform/system/file_locality.h"
#include "platform/system/file_url.h"

#include <QPainter>
#include <QPainterPath>

#include <sys/stat.h>

#include <cmath>
#include <utility>

namespace corvane {

namespace {

struct Writer {
    PasteboardWriter operator()(const DropItem::File &file) const
    {
        return {PasteboardWriter::File{file.url}};
    }
    PasteboardWriter operator()(const DropItem::ImageBytes &image) const
    {
        return {PasteboardWriter::Data{image.data, image.type}};
    }
    PasteboardWriter operator()(const DropItem::Text &text) const
    {
        return {PasteboardWriter::Text{text.string}};
    }
    PasteboardWriter operator()(const DropItem::Link &link) const
    {
        return {PasteboardWriter::Link{link.url}};
    }
};

/// The item's file, whose existence is to be checked; null for other payloads, and for files that
/// are still being made.
const DropItem::File *fileThatMayBeGone(const DropItem &item)
{
    return item.isBeingMade() ? nullptr : std::get_if<DropItem::File>(&item.payload());
}

/// Whether there is something at the path, without following a symbolic link: one whose target is
/// gone can still be dragged.
bool isLink(const QByteArray &localPath)
{
    struct stat status { };
    return lstat(localPath.constData(), &status) == 0;
}

/// The part of the tile's side that stays free around a glyph.
constexpr double glyphInset = 0.2;

/// The largest rectangle of the picture's shape in the middle of a square.
QRectF fitted(QSizeF picture, double side)
{
    picture.scale(side, side, Qt::KeepAspectRatio);
    return {(side - picture.width()) / 2, (side - picture.height()) / 2, picture.width(),
            picture.height()};
}

} // namespace

DragWriter::DragWriter(QColor tileColor, GlyphPainter paintGlyph, const FileLocality &locality)
    : m_tileColor(tileColor)
    , m_paintGlyph(std::move(paintGlyph))
    , m_locality(locality)
{
}

PasteboardWriter DragWriter::pasteboardWriter(const DropItem &item)
{
    return std::visit(Writer(), item.payload());
}

QList<DropItem> DragWriter::available(const QList<DropItem> &items) const
{
    QList<QByteArray> paths;
    for (const DropItem &item : items) {
        if (const auto *file = fileThatMayBeGone(item))
            paths << file_url::nativePath(file->url);
    }
    const auto inspections = m_locality.inspect(paths);
    QList<DropItem> there;
    qsizetype next = 0;
    for (const DropItem &item : items) {
        if (!fileThatMayBeGone(item)) {
            there << item;
            continue;
        }
        const auto &inspection = inspections[static_cast<std::size_t>(next)];
        if (inspection.isRemote || inspection.version || isLink(paths[next]))
            there << item;
        ++next;
    }
    return there;
}

Image DragWriter::dragImage(const DropItem &item, double side, double scale) const
{
    const int pixels = static_cast<int>(std::round(side * scale));
    QImage bitmap(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    bitmap.fill(Qt::transparent);

    QPainter painter(&bitmap);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.scale(pixels / side, pixels / side);
    QPainterPath tile;
    tile.addRoundedRect(QRectF(0, 0, side, side), tileCornerRadius, tileCornerRadius);
    painter.fillPath(tile, m_tileColor);

    const auto thumbnail = item.thumbnail();
    if (thumbnail && !thumbnail->isNull()) {
        painter.setClipPath(tile);
        painter.drawImage(fitted(thumbnail->bitmap.size(), side), thumbnail->bitmap);
    } else if (m_paintGlyph) {
        // `GlyphPainter` expects y upward; this picture's y points downward.
        painter.translate(0, side);
        painter.scale(1, -1);
        const QRectF whole(0, 0, side, side);
        m_paintGlyph(painter, item.glyph(), grown(whole, -glyphInset * side, -glyphInset * side));
    }
    painter.end();
    return {bitmap, QSizeF(side, side)};
}

} // namespace corvane
