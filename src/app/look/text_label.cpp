#include "app/look/text_label.h"

#include "app/look/window_look.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace corvane {

namespace {

constexpr double headingTracking = 0.6;

/// Letters of these scripts are joined.
bool isJoined(const QString &text)
{
    return std::ranges::any_of(text, [](QChar letter) {
        return letter.script() == QChar::Script_Arabic
            || letter.script() == QChar::Script_Devanagari;
    });
}

QFont spread(QFont font)
{
    font.setLetterSpacing(QFont::AbsoluteSpacing, headingTracking);
    return font;
}

} // namespace

TextLabel::TextLabel(const QString &text, const QFont &font, Tone tone, QWidget *parent)
    : QLabel(text, parent)
    , m_tone(tone)
{
    setTextFormat(Qt::PlainText);
    setFont(tone == Tone::Heading && !isJoined(text) ? spread(font) : font);
    applyTone();
}

void TextLabel::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    // This does not recurse without end, because setting the same palette again sends no event.
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ParentChange)
        applyTone();
}

void TextLabel::paintEvent(QPaintEvent *event)
{
    if (wordWrap() && layoutDirection() == Qt::RightToLeft)
        drawLinesFromTheRight();
    else
        QLabel::paintEvent(event);
}

/// Where a line is broken at a blank, `QPainter::drawText` has the blank stand before a text that
/// is written from right to left. The lines are the same here.
void TextLabel::drawLinesFromTheRight()
{
    const QRect room = contentsRect();
    QString lines = text();
    lines.replace(u'\n', QChar::LineSeparator);
    QTextLayout layout(lines, font(), this);
    const Qt::Alignment aligned = QStyle::visualAlignment(layoutDirection(), alignment());
    QTextOption option(aligned | Qt::AlignAbsolute);
    option.setTextDirection(layoutDirection());
    option.setWrapMode(QTextOption::WordWrap);
    layout.setTextOption(option);
    layout.beginLayout();
    double height = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(room.width());
        line.setPosition({0, height});
        height += line.height();
    }
    layout.endLayout();
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    const QSize size(room.width(), static_cast<int>(std::ceil(height)));
    layout.draw(&painter,
                QStyle::alignedRect(layoutDirection(), alignment(), size, room).topLeft());
}

void TextLabel::applyTone()
{
    if (m_tone == Tone::Primary)
        return;
    const QWidget *above = parentWidget();
    QPalette own;
    own.setColor(QPalette::WindowText,
                 WindowLook::secondary(above ? above->palette() : QPalette()));
    setPalette(own);
}

} // namespace corvane
