#include "shelf/drawing/glass_background.h"

#include <QPainter>

namespace corvane {

std::unique_ptr<GlassBackground> GlassBackground::make(LayerTree &tree, double cornerRadius)
{
    std::unique_ptr<GlassBackground> background(new GlassBackground(tree));
    background->setCornerRadius(cornerRadius);
    return background;
}

void GlassBackground::draw(QPainter &painter, QSizeF size, double /*scale*/) const
{
    // The edge line is one point wide and lies inside the background.
    const QRectF edge = QRectF({0, 0}, size).adjusted(0.5, 0.5, -0.5, -0.5);
    const double radius = std::max(0.0, presentedCornerRadius() - 0.5);
    painter.setPen(QPen(QColor::fromRgbF(1, 1, 1, 0.13F), 1));
    painter.setBrush(QColor::fromRgbF(0.11F, 0.115F, 0.125F, 0.93F));
    painter.drawRoundedRect(edge, radius, radius);
}

} // namespace corvane
