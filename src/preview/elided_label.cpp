#include "preview/elided_label.h"

#include "platform/desktop/parts_in_order.h"
#include "platform/qt/desktop/spoken_role.h"
#include "preview/preview_look.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QTextDocument>
#include <QTextLayout>
#include <QToolTip>

namespace corvane {

ElidedLabel::ElidedLabel(QWidget *parent)
    : QWidget(parent)
{
    // Screen readers would say labels as the window opens, and then once more with the content that
    // has the same texts as its description; of paragraphs they do not.
    speakAs<ElidedLabel>(QAccessible::Paragraph);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void ElidedLabel::setText(const QString &text)
{
    m_text = text;
    setAccessibleName(text);
    updateGeometry();
    update();
}

void ElidedLabel::setSubdued(bool isSubdued)
{
    m_isSubdued = isSubdued;
    update();
}

void ElidedLabel::setHasOwnDirection(bool hasOwnDirection)
{
    m_hasOwnDirection = hasOwnDirection;
    update();
}

void ElidedLabel::setMaximumLines(int count)
{
    m_maximumLines = count;
    QSizePolicy policy = sizePolicy();
    policy.setHeightForWidth(count > 1);
    policy.setVerticalPolicy(count > 1 ? QSizePolicy::Preferred : QSizePolicy::Fixed);
    setSizePolicy(policy);
    updateGeometry();
    update();
}

QStringList ElidedLabel::lines(int width) const
{
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QTextLayout layout(m_text, font());
    layout.setTextOption(option);
    layout.beginLayout();
    QStringList lines;
    qsizetype begin = 0;
    while (lines.size() + 1 < m_maximumLines) {
        QTextLine line = layout.createLine();
        if (!line.isValid())
            break;
        line.setLineWidth(width);
        lines << m_text.mid(begin, line.textLength()).trimmed();
        begin += line.textLength();
    }
    layout.endLayout();
    if (begin < m_text.size() || lines.isEmpty())
        lines << fontMetrics().elidedText(m_text.mid(begin), Qt::ElideMiddle, width);
    return lines;
}

/// Not by the widget's own tool tip, which would be said as its description as well.
bool ElidedLabel::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto letters = [](QString text) { return text.remove(u' '); };
    const bool isWhole = letters(lines(width()).join(QString())) == letters(m_text);
    // Names are strangers', and tool tips show markup.
    QToolTip::showText(dynamic_cast<QHelpEvent &>(*event).globalPos(),
                       isWhole ? QString() : Qt::convertFromPlainText(m_text, Qt::WhiteSpaceNormal),
                       this);
    return true;
}

QSize ElidedLabel::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(m_text) + 1, fontMetrics().height()};
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {0, fontMetrics().height()};
}

int ElidedLabel::heightForWidth(int width) const
{
    return static_cast<int>(lines(width).size()) * fontMetrics().height();
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(m_isSubdued ? preview_look::details(palette())
                               : palette().color(QPalette::WindowText));
    // A painter takes the direction of the text unless it is told otherwise, also to align it.
    painter.setLayoutDirection(m_hasOwnDirection ? Qt::LayoutDirectionAuto : layoutDirection());
    const auto start = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft);
    const QStringList shown = lines(width());
    const int height = fontMetrics().height();
    int y = (rect().height() - height * static_cast<int>(shown.size())) / 2;
    for (const QString &line : shown) {
        painter.drawText(QRect(0, y, width(), height),
                         static_cast<int>(start | Qt::AlignAbsolute | Qt::AlignVCenter)
                             | Qt::TextSingleLine,
                         withPartsInOrder(line, layoutDirection()));
        y += height;
    }
}

} // namespace corvane
