#include "shelf/shelf_cell.h"

#include "shelf/drawing/being_made_glyph.h"
#include "shelf/drawing/drawing.h"
#include "shelf/drawing/layer_animator.h"
#include "shelf/drawing/phosphor_icon_drawing.h"
#include "shelf/drawing/theme.h"

#include <QPainter>

#include <cmath>

namespace corvane {

namespace {

constexpr double thumbCornerRadius = 5;
constexpr double focusRingCornerRadius = 8;
constexpr double focusRingWidth = 1.75;
constexpr double glyphShare = 0.6;
constexpr double beingMadeGlyphShare = 0.5;

} // namespace

QImage thumbnailContents(double side, const DropItem &item, const Theme &theme, double scale)
{
    if (const auto thumbnail = item.thumbnail(); thumbnail && !thumbnail->isNull())
        return fitted(thumbnail->bitmap, {side, side}, thumbCornerRadius, scale);

    QImage tile = transparentBitmap({side, side}, scale);
    QPainter painter(&tile);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(item.isBeingMade() ? theme.palette.buttonFillOff : theme.palette.controlPlate);
    painter.drawRoundedRect(QRectF(0, 0, side, side), thumbCornerRadius, thumbCornerRadius);
    if (item.isBeingMade()) {
        const double glyph = std::round(side * beingMadeGlyphShare);
        painter.drawImage(QPointF(), beingMadeGlyph(side, glyph, theme, scale));
        return tile;
    }
    const double glyph = std::round(side * glyphShare);
    const double inset = (side - glyph) / 2;
    painter.drawImage(QPointF(inset, inset),
                      phosphor_icon::image(item.glyph(), glyph, theme.palette.emphasis, 0, scale));
    return tile;
}

const QFont &titleFont(const Theme &theme, bool isCarousel)
{
    return isCarousel ? theme.typography.tile : theme.typography.primary;
}

ShelfCell::ShelfCell(LayerTree &tree, Layer &superlayer, const Theme &theme,
                     const LayerAnimator &animator)
    : m_theme(theme)
    , m_root(tree)
    , m_thumb(tree)
    , m_title(tree)
    , m_subtitle(tree)
    , m_focusRing(tree)
    , m_badge(tree)
    , m_badgeCross(tree)
{
    superlayer.addSublayer(m_root);
    for (Layer *layer :
         {static_cast<Layer *>(&m_focusRing), static_cast<Layer *>(&m_thumb),
          static_cast<Layer *>(&m_title), static_cast<Layer *>(&m_subtitle), &m_badge})
        m_root.addSublayer(*layer);
    m_badge.addSublayer(m_badgeCross);
    for (Layer *layer :
         {&m_root, static_cast<Layer *>(&m_thumb), static_cast<Layer *>(&m_title),
          static_cast<Layer *>(&m_subtitle), static_cast<Layer *>(&m_focusRing), &m_badge})
        layer->setDelegate(&animator);

    const Theme::Palette &palette = theme.palette;
    m_subtitle.setFont(theme.typography.secondary);
    m_subtitle.setColor(palette.secondary);
    m_focusRing.setStroke(QPen(palette.emphasis, focusRingWidth));
    // On its edge, so that it is seen beside white pictures and black ones.
    m_thumb.setBorder({palette.border, thumbCornerRadius + 1, 1});
    m_badge.setBackgroundColor(Theme::Palette::white(1));
    m_badge.setOpacity(0);
    m_badgeCross.setIcon(StrokeIcon::Cross, 7, 0.5, Qt::black, 1.4);
}

void ShelfCell::fill(const DropItem &item, const Look &look)
{
    m_item = item;
    m_title.setString(item.title());
    m_title.setFont(titleFont(m_theme, look.isCarousel));
    const Qt::Alignment atThumb = look.isMirrored ? Qt::AlignRight : Qt::AlignLeft;
    m_title.setAlignment(look.isCarousel ? Qt::AlignHCenter : atThumb);
    m_title.setTextDirection(m_theme.titleDirection());
    m_title.setColor(look.isCarousel && !look.isFocused ? m_theme.palette.secondary
                                                        : m_theme.palette.primary);
    m_subtitle.setAlignment(atThumb);
    m_subtitle.setTextDirection(m_theme.direction);
    m_subtitle.setString(look.flash.isEmpty() ? item.subtitle() : look.flash);
    m_subtitle.setColor(look.flash.isEmpty() ? m_theme.palette.secondary : m_theme.palette.primary);
    m_focusRing.setOpacity(look.isFocused ? 1 : 0);
    m_badge.setOpacity(look.showsBadge ? 1 : 0);
    m_root.setOpacity(look.isDragged ? 0.35 : 1);
}

void ShelfCell::showThumbnail()
{
    if (!m_item || m_thumbSize.isEmpty())
        return;
    const double side = m_thumbSize.width();
    const auto thumbnail = m_item->thumbnail();
    const QString source = thumbnail ? QString::number(thumbnail->bitmap.cacheKey())
        : m_item->isBeingMade()      ? QStringLiteral("being made")
                                     : rawValue(m_item->glyph());
    const QString key = source % u'@' % QString::number(side);
    m_thumb.setContents(key, [side, item = *m_item, &theme = m_theme](double scale) {
        return thumbnailContents(side, item, theme, scale);
    });
}

void ShelfCell::layout(const ShelfLayout::Cell &layout)
{
    m_itemIndex = layout.itemIndex;
    m_root.setFrame(layout.root);
    m_thumb.setFrame(layout.thumb);
    m_thumbSize = layout.thumb.size();
    m_title.setFrame(layout.title);
    m_subtitle.setFrame(layout.subtitle.value_or(QRectF()));
    m_focusRing.setFrame(layout.focusRing);
    QPainterPath ring;
    // The line lies inside its frame.
    const double half = focusRingWidth / 2;
    ring.addRoundedRect(QRectF({0, 0}, layout.focusRing.size()).adjusted(half, half, -half, -half),
                        focusRingCornerRadius - half, focusRingCornerRadius - half);
    m_focusRing.setPath(ring);
    m_badge.setFrame(layout.badge);
    m_badge.setCornerRadius(layout.badge.width() / 2);
    m_badgeCross.setFrame({3, 3, 7, 7});
    showThumbnail();
}

} // namespace corvane
