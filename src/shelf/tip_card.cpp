#include "shelf/tip_card.h"

#include "core/display_text.h"
#include "platform/pictures/text_measurer.h"
#include "shelf/drawing/theme.h"
#include "shelf/drawing/wrapped_lines.h"

#include <algorithm>
#include <cmath>

namespace corvane {

namespace {

/// Lighter than the shelf, which it may lie on, and like it seen on every wallpaper.
constexpr QColor cardColor(31, 32, 35);
constexpr double edgeOpacity = 0.22;

/// As much of the text as is looked at, with a sign of what is left out.
QString shownText(const QString &text)
{
    const QString shown = displayText(text);
    return shown.size() < text.size() ? shown + u'\u2026' : shown;
}

} // namespace

TipCard::TipCard(const Context &context, const QString &text)
    : m_tree(context.queue, context.motionPreference)
    , m_ground(m_tree)
{
    const Theme &theme = context.theme;
    m_ground.setBackgroundColor(cardColor);
    m_ground.setCornerRadius(cornerRadius);
    // Its line's outer edge is the card's.
    m_ground.setBorder(
        {theme.hasMoreContrast() ? theme.palette.border : Theme::Palette::white(edgeOpacity),
         cornerRadius - 0.5, 0});
    const QString shown = shownText(text);
    showLines(context, shown,
              wrappedLines(shown, theme.typography.primary, maximumWidth, maximumLines,
                           context.measurer));
}

void TipCard::showLines(const Context &context, const QString &text, const QStringList &lines)
{
    const QFont &font = context.theme.typography.primary;
    double width = 0;
    for (const QString &line : lines)
        width = std::max(width, context.measurer.width(line, font));
    width = std::ceil(std::min(width, maximumWidth));
    const double height = lineHeight * static_cast<double>(lines.size());
    m_ground.setFrame({{0, 0}, QSizeF(width, height) + 2 * padding});

    const bool isRightToLeft = text.isRightToLeft();
    Qt::LayoutDirection direction = context.theme.titleDirection();
    // Not by each line alone: they are one text.
    if (direction == Qt::LayoutDirectionAuto)
        direction = isRightToLeft ? Qt::RightToLeft : Qt::LeftToRight;
    double y = padding.height() + height;
    for (const QString &line : lines) {
        y -= lineHeight;
        auto &layer = *m_lines.emplace_back(std::make_unique<TextLayer>(m_tree));
        m_ground.addSublayer(layer);
        layer.setFont(font);
        layer.setColor(context.theme.palette.primary);
        layer.setTextDirection(direction);
        layer.setAlignment(isRightToLeft ? Qt::AlignRight : Qt::AlignLeft);
        layer.setString(line);
        layer.setFrame({padding.width(), y, width, lineHeight});
    }
}

QPainterPath TipCard::outline() const
{
    QPainterPath outline;
    outline.addRoundedRect(QRectF({0, 0}, size()), cornerRadius, cornerRadius);
    return outline;
}

void TipCard::paint(QPainter &painter, double scale)
{
    m_ground.render(painter, scale);
}

QStringList TipCard::lines() const
{
    QStringList lines;
    for (const auto &line : m_lines)
        lines << line->string();
    return lines;
}

} // namespace corvane
