#pragma once

#include "core/drop_item.h"
#include "platform/pasteboard_writer.h"

#include <QColor>
#include <QRectF>

#include <functional>

class QPainter;

namespace corvane {

/// What a drag-out carries and shows.
class DragWriter {
public:
    /// Draws an item's glyph into a rectangle (origin at the bottom left, y upward).
    using GlyphPainter = std::function<void(QPainter &, PhosphorIcon, const QRectF &)>;

    static constexpr double tileCornerRadius = 5;

    /// `tileColor` is the background of the drag image.
    DragWriter(QColor tileColor, GlyphPainter paintGlyph);

    static PasteboardWriter pasteboardWriter(const DropItem &item);
    /// False for a file that is gone: a target would be handed a dead address, and the item lost.
    /// True for one that is still being made.
    static bool isAvailable(const DropItem &item);
    /// A square of `side` points at `scale` pixels per point: a rounded tile with the item's
    /// thumbnail, fitted, or its glyph.
    Image dragImage(const DropItem &item, double side, double scale) const;

private:
    QColor m_tileColor;
    GlyphPainter m_paintGlyph;
};

} // namespace corvane
