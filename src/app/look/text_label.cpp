#include "app/look/text_label.h"

#include "app/look/window_look.h"

#include <QAccessibleWidget>
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

/// For assistive programs. Labels are read when their window opens, and when the keyboard comes to
/// their group; paragraphs are not.
class SpokenLabel : public QAccessibleWidget {
public:
    explicit SpokenLabel(TextLabel &label)
        : QAccessibleWidget(&label)
        , m_label(label)
    {
    }

    static void install()
    {
        static const bool isInstalled = [] {
            QAccessible::installFactory(
                [](const QString &, QObject *object) -> QAccessibleInterface * {
                    auto *const label = qobject_cast<TextLabel *>(object);
                    // The toolkit keeps it, and deletes it along with the label.
                    return label ? new SpokenLabel(*label) : nullptr;
                });
            return true;
        }();
        Q_UNUSED(isInstalled)
    }

    QAccessible::Role role() const override
    {
        return m_label.isSaidByControl() ? QAccessible::Paragraph : QAccessible::StaticText;
    }
    QString text(QAccessible::Text kind) const override
    {
        const QString own = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && own.isEmpty() ? m_label.text() : own;
    }

private:
    TextLabel &m_label;
};

QFont spread(QFont font)
{
    font.setLetterSpacing(QFont::AbsoluteSpacing, headingTracking);
    return font;
}

} // namespace

TextLabel::TextLabel(const QString &text, const QFont &font, Tone tone, QWidget *parent)
    : QLabel(parent)
    , m_tone(tone)
{
    SpokenLabel::install();
    setTextFormat(Qt::PlainText);
    // Here and not in the toolkit's constructor, where nobody could see yet what kind of label it
    // is, and its part for assistive programs would be made and kept.
    setText(text);
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
