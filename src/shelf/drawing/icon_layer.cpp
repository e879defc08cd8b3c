#include "shelf/drawing/icon_layer.h"

namespace corvane {

void IconLayer::setIcon(StrokeIcon icon, double side, double inset, const QColor &tint,
                        double weight)
{
    const QString key = QStringLiteral("%1 %2, inset %3, weight %4, %5")
                            .arg(stroke_icon::name(icon))
                            .arg(side)
                            .arg(inset)
                            .arg(weight)
                            .arg(tint.name(QColor::HexArgb));
    setContents(key, [=](double scale) {
        return stroke_icon::image(icon, side, tint, inset, weight, scale);
    });
}

} // namespace corvane
