#include "shelf/bar/view_all_tile.h"

#include "core/drop_item.h"
#include "platform/system/file_url.h"
#include "shelf/drawing/being_made_glyph.h"
#include "shelf/drawing/checkbox_renderer.h"
#include "shelf/drawing/drawing.h"
#include "shelf/drawing/phosphor_icon_drawing.h"
#include "shelf/drawing/theme.h"

#include <QPainter>
#include <QPainterPath>

namespace corvane {

namespace {

constexpr double thumbCornerRadius = 9;
constexpr double ringCornerRadius = 10;
constexpr double ringWidth = 1;
constexpr double glyphSize = 30;
constexpr double glyphInset = 0.15;

/// The picture, fitted into a square of `side` points and cut to the tile's rounded corners.
QImage tileContents(const QImage &picture, double side, double scale)
{
    QImage square = fitted(picture, {side, side}, 0, scale);
    QImage result = transparentBitmap({side, side}, scale);
    square.setDevicePixelRatio(1);
    result.setDevicePixelRatio(1);
    {
        QPainter painter(&result);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QBrush(square));
        const double radius = thumbCornerRadius * scale;
        painter.drawRoundedRect(QRectF(result.rect()), radius, radius);
    }
    result.setDevicePixelRatio(scale);
    return result;
}

/// The checkbox with a soft shadow that lifts it off any picture: opacity 0.5, radius 2, 1 point
/// down.
QImage checkWithShadow(bool isChecked, double scale)
{
    constexpr double radius = 2;
    constexpr double room = 3 * radius;
    constexpr double drop = 1;
    constexpr int rings = 6;
    constexpr double side = view_all_layout::checkSide;
    QImage bitmap = transparentBitmap({side + 2 * room, side + 2 * room}, scale);
    QPainter painter(&bitmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    // The shadow is built from overlapping rounded rectangles, each smaller than the one before, so
    // that it is darkest in the middle.
    painter.setBrush(QColor::fromRgbF(0, 0, 0, 0.11F));
    for (int i = 0; i < rings; ++i) {
        const double spread = radius * (1 - 2.0 * i / (rings - 1));
        const QRectF ring
            = QRectF(room, room + drop, side, side).adjusted(-spread, -spread, spread, spread);
        const double corner = side * 0.26 + spread;
        painter.drawRoundedRect(ring, corner, corner);
    }
    painter.drawImage(QPointF(room, room), checkbox_renderer::image(isChecked, side, scale));
    painter.end();
    return bitmap;
}

bool hasExtension(const DropItem &item)
{
    const auto *file = std::get_if<DropItem::File>(&item.payload());
    return file && !file_url::pathExtension(file->url).isEmpty();
}

} // namespace

const QFont &captionFont(const Theme &theme)
{
    return theme.typography.tile;
}

ViewAllTile::ViewAllTile(LayerTree &tree, Layer &superlayer, const Theme &theme)
    : m_theme(theme)
    , m_root(tree)
    , m_thumb(tree)
    , m_ring(tree)
    , m_check(tree)
    , m_caption(tree)
{
    superlayer.addSublayer(m_root);
    for (Layer *layer : {static_cast<Layer *>(&m_thumb), static_cast<Layer *>(&m_ring),
                         static_cast<Layer *>(&m_check), static_cast<Layer *>(&m_caption)})
        m_root.addSublayer(*layer);
    m_thumb.setCornerRadius(thumbCornerRadius);
    // Visible behind glyphs, and beside pictures that are not square.
    m_thumb.setBackgroundColor(Theme::Palette::white(0.05));
    m_thumb.setBorder({theme.palette.border, thumbCornerRadius, 0});
    m_ring.setStroke(QPen(theme.palette.thumbRing, ringWidth));
    m_ring.setOpacity(0);
    m_caption.setFont(captionFont(theme));
    m_caption.setColor(theme.palette.primary);
    m_caption.setAlignment(Qt::AlignHCenter);
}

void ViewAllTile::show(const DropItem &item, const ViewAllLayout::Tile &layout)
{
    m_root.setFrame(layout.root);
    m_thumb.setFrame(layout.thumb);
    m_thumb.setOpacity(layout.thumbOpacity);
    showThumbnail(item);

    m_ring.setFrame(layout.ring);
    m_ring.setOpacity(layout.ringOpacity);
    QPainterPath ring;
    // The line lies inside its frame, on whole pixels.
    const double half = ringWidth / 2;
    ring.addRoundedRect(QRectF({0, 0}, layout.ring.size()).adjusted(half, half, -half, -half),
                        ringCornerRadius - half, ringCornerRadius - half);
    m_ring.setPath(ring);

    m_check.setFrame(layout.check);
    m_check.setContents(
        layout.isChecked ? QStringLiteral("checked") : QStringLiteral("unchecked"),
        [isChecked = layout.isChecked](double scale) { return checkWithShadow(isChecked, scale); });

    m_caption.setFrame(layout.caption);
    m_caption.setString(item.title());
    m_caption.setTextDirection(m_theme.titleDirection());
    m_caption.setElideMode(hasExtension(item) ? Qt::ElideMiddle : Qt::ElideRight);
}

void ViewAllTile::showThumbnail(const DropItem &item)
{
    const auto thumbnail = item.thumbnail();
    if (thumbnail && !thumbnail->isNull()) {
        m_thumb.setContents(QString::number(thumbnail->bitmap.cacheKey()),
                            [bitmap = thumbnail->bitmap](double scale) {
                                return tileContents(bitmap, view_all_layout::thumbSide, scale);
                            });
        return;
    }
    if (item.isBeingMade()) {
        m_thumb.setContents(QStringLiteral("being made"), [&theme = m_theme](double scale) {
            return beingMadeGlyph(view_all_layout::thumbSide, glyphSize, theme, scale);
        });
        return;
    }
    m_thumb.setContents(rawValue(item.glyph()),
                        [glyph = item.glyph(), tint = m_theme.palette.emphasis](double scale) {
                            return phosphor_icon::image(glyph, glyphSize, tint, glyphInset, scale);
                        });
}

} // namespace corvane
