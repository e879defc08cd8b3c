#include "core/drag_writer.h"

#include "platform/file_url.h"
#include "platform/geometry.h"

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

DragWriter::DragWriter(QColor tileColor, GlyphPainter paintGlyph)
    : m_tileColor(tileColor)
    , m_paintGlyph(std::move(paintGlyph))
{
}

PasteboardWriter DragWriter::pasteboardWriter(const DropItem &item)
{
    return std::visit(Writer(), item.payload());
}

bool DragWriter::isAvailable(const DropItem &item)
{
    const auto *file = std::get_if<DropItem::File>(&item.payload());
    struct stat status { };
    return !file || item.isBeingMade()
        || lstat(file_url::nativePath(file->url).constData(), &status) == 0;
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
        // The glyph thinks with y upward.
        painter.translate(0, side);
        painter.scale(1, -1);
        const QRectF whole(0, 0, side, side);
        m_paintGlyph(painter, item.glyph(), grown(whole, -glyphInset * side, -glyphInset * side));
    }
    painter.end();
    return {bitmap, QSizeF(side, side)};
}

} // namespace corvane
