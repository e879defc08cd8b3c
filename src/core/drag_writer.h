#pragma once

#include "core/drop_item.h"
#include "platform/pasteboard/pasteboard_writer.h"

#include <QColor>
#include <QList>
#include <QRectF>

#include <functional>

class QPainter;

namespace corvane {

class FileLocality;

/// What a drag-out carries and shows.
class DragWriter {
public:
    /// Draws an item's glyph into a rectangle (origin at the bottom left, y upward).
    using GlyphPainter = std::function<void(QPainter &, PhosphorIcon, const QRectF &)>;

    /// In points.
    static constexpr double tileCornerRadius = 5;

    /// `tileColor` is the background of the drag image. `locality` must outlive it.
    DragWriter(QColor tileColor, GlyphPainter paintGlyph, const FileLocality &locality);

    /// What a pasteboard or a drag offers of the item, by its payload.
    static PasteboardWriter pasteboardWriter(const DropItem &item);
    /// Without the files that no longer exist: a target would get an address that leads nowhere,
    /// and the item would leave the shelf. Files behind a network are not looked at, since a server
    /// may never answer; they are kept, as are items that are still being made.
    QList<DropItem> available(const QList<DropItem> &items) const;
    /// A square picture of `side` points at `scale` pixels per point: a rounded tile with the
    /// item's thumbnail, fitted, or its glyph.
    Image dragImage(const DropItem &item, double side, double scale) const;

private:
    QColor m_tileColor;
    GlyphPainter m_paintGlyph;
    const FileLocality &m_locality;
};

} // namespace corvane
