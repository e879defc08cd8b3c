#include "app/look/text_label.h"

#include "app/look/window_look.h"

#include <QEvent>

namespace corvane {

namespace {

constexpr double headingTracking = 0.6;

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
    setFont(tone == Tone::Heading ? spread(font) : font);
    applyTone();
}

void TextLabel::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    // This does not recurse without end, because setting the same palette again sends no event.
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ParentChange)
        applyTone();
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
