#include "shelf/drawing/being_made_glyph.h"

#include "shelf/drawing/drawing.h"
#include "shelf/drawing/phosphor_icon_drawing.h"
#include "shelf/drawing/theme.h"

#include <QPainter>

#include <cmath>

namespace corvane {

namespace {

constexpr double glyphOpacity = 0.34;
/// As shares of the glyph's side: a dot's radius, the distance from dot to dot, and how far the
/// dots are below the glyph.
constexpr double dotShare = 0.105;
constexpr double dotStepShare = 0.28;
constexpr double dotDropShare = 0.2;

} // namespace

QImage beingMadeGlyph(double side, double glyphSide, const Theme &theme, double scale)
{
    QImage tile = transparentBitmap({side, side}, scale);
    QPainter painter(&tile);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const double dot = std::fmax(glyphSide * dotShare, 1);
    const double drop = glyphSide * dotDropShare;
    // Glyph and dots are centred together.
    const double top = std::round((side - glyphSide - drop) / 2);
    const double left = (side - glyphSide) / 2;
    painter.drawImage(QPointF(left, top),
                      phosphor_icon::image(PhosphorIcon::Image, glyphSide,
                                           Theme::Palette::white(glyphOpacity), 0, scale));
    painter.setBrush(theme.palette.control);
    for (const int place : {-1, 0, 1}) {
        const QPointF centre(side / 2 + place * glyphSide * dotStepShare, top + glyphSide + drop);
        painter.drawEllipse(centre, dot, dot);
    }
    return tile;
}

} // namespace corvane
