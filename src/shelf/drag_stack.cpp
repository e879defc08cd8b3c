#include "shelf/drag_stack.h"

#include "core/drag_writer.h"
#include "core/shown_numbers.h"
#include "shelf/drawing/drawing.h"
#include "shelf/drawing/theme.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <array>

namespace corvane::drag_stack {

namespace {

/// In points around the front card: room for the corners of the turned cards and for the badge.
constexpr double margin = 14;
constexpr double badgeHeight = 20;
/// How far the cards behind the front one are turned, in degrees.
constexpr std::array<double, maximumCards> turns{0, 7, -6};

const QColor ground(44, 45, 48);

void paintCard(QPainter &painter, const QRectF &place, const QImage &card)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawRoundedRect(place, DragWriter::tileCornerRadius, DragWriter::tileCornerRadius);
    painter.drawImage(place, card);
}

void paintBadge(QPainter &painter, qsizetype count, double whole, const Theme &theme)
{
    QFont font = theme.typography.primary;
    font.setWeight(QFont::DemiBold);
    const QString number = shownNumber(count);
    const QFontMetricsF metrics(font, painter.device());
    const double width = std::max(badgeHeight, metrics.horizontalAdvance(number) + 12);
    const QRectF badge(whole - width - 1, 1, width, badgeHeight);
    painter.setPen(QPen(QColor::fromRgbF(0, 0, 0, 0.35F), 1));
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(badge, badgeHeight / 2, badgeHeight / 2);
    painter.setPen(Qt::black);
    painter.setFont(font);
    painter.drawText(badge, Qt::AlignCenter, number);
}

} // namespace

Image onGround(const Image &card)
{
    QImage bitmap(card.bitmap.size(), QImage::Format_ARGB32_Premultiplied);
    bitmap.fill(Qt::transparent);
    QPainter painter(&bitmap);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.scale(bitmap.width() / card.size.width(), bitmap.height() / card.size.height());
    paintCard(painter, QRectF({0, 0}, card.size), card.bitmap);
    painter.end();
    return {bitmap, card.size};
}

Image image(const std::vector<Image> &cards, qsizetype count, double side, const Theme &theme,
            double scale)
{
    const double whole = side + 2 * margin;
    QImage bitmap = transparentBitmap({whole, whole}, scale);
    QPainter painter(&bitmap);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    for (std::size_t i = std::min(cards.size(), maximumCards); i-- > 0;) {
        painter.save();
        painter.translate(whole / 2, whole / 2);
        painter.rotate(turns.at(i));
        // The ground hides the next card, too.
        paintCard(painter, {-side / 2, -side / 2, side, side}, cards[i].bitmap);
        painter.restore();
    }
    paintBadge(painter, count, whole, theme);
    painter.end();
    return {bitmap, QSizeF(whole, whole)};
}

} // namespace corvane::drag_stack
