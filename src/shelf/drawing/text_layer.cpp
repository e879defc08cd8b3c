#include "shelf/drawing/text_layer.h"

#include "core/display_text.h"
#include "platform/desktop/parts_in_order.h"
#include "shelf/drawing/drawing.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace corvane {

namespace {

bool hasLettersFromRightToLeft(const QString &line)
{
    const auto characters = line.toUcs4();
    return std::ranges::any_of(characters, [](char32_t character) {
        const QChar::Direction direction = QChar::direction(character);
        return direction == QChar::DirR || direction == QChar::DirAL || direction == QChar::DirAN;
    });
}

} // namespace

void TextLayer::invalidate()
{
    m_bitmapScale = 0;
    needsDisplay();
}

void TextLayer::setString(const QString &string)
{
    if (string == m_string)
        return;
    m_string = string;
    invalidate();
}

void TextLayer::setFont(const QFont &font)
{
    if (font == m_font)
        return;
    m_font = font;
    invalidate();
}

void TextLayer::setColor(const QColor &color)
{
    if (color == m_color)
        return;
    m_color = color;
    invalidate();
}

void TextLayer::setAlignment(Qt::Alignment alignment)
{
    if (alignment == m_alignment)
        return;
    m_alignment = alignment;
    invalidate();
}

void TextLayer::setTextDirection(Qt::LayoutDirection direction)
{
    if (direction == m_direction)
        return;
    m_direction = direction;
    invalidate();
}

void TextLayer::setElideMode(Qt::TextElideMode mode)
{
    if (mode == m_elideMode)
        return;
    m_elideMode = mode;
    invalidate();
}

QImage TextLayer::rasterized(double width, double height, double scale) const
{
    QImage bitmap = transparentBitmap({width, height}, scale);
    QPainter painter(&bitmap);
    painter.setFont(m_font);
    painter.setPen(m_color);
    const QFontMetricsF metrics(m_font, &bitmap);
    const QString text = withPartsInOrder(displayText(m_string), m_direction);
    const QString line = metrics.elidedText(text, m_elideMode, width);
    const double advance = metrics.horizontalAdvance(line);
    double x = 0;
    if (m_alignment & Qt::AlignHCenter)
        x = (width - advance) / 2;
    else if (m_alignment & Qt::AlignRight)
        x = width - advance;
    const bool runsFromLeft = m_direction == Qt::LeftToRight || !hasLettersFromRightToLeft(line);
    painter.setLayoutDirection(runsFromLeft ? Qt::LeftToRight : m_direction);
    // Baselines on whole pixels keep the letters sharp.
    const double baseline = (height + metrics.ascent() - metrics.descent()) / 2;
    painter.drawText(QPointF(std::round(x * scale) / scale, std::round(baseline * scale) / scale),
                     line);
    return bitmap;
}

void TextLayer::draw(QPainter &painter, QSizeF size, double scale) const
{
    Layer::draw(painter, size, scale);
    if (m_string.isEmpty() || bounds().isEmpty())
        return;
    if (m_bitmapScale != scale || m_bitmapBounds != bounds()) {
        m_bitmap = rasterized(bounds().width(), bounds().height(), scale);
        m_bitmapBounds = bounds();
        m_bitmapScale = scale;
    }
    drawOnPixels(painter, m_bitmap,
                 {(size.width() - bounds().width()) / 2, (size.height() - bounds().height()) / 2});
}

} // namespace corvane
