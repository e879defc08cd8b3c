#include "platform/qt/preview/elided_label.h"

#include <QPainter>

namespace corvane {

ElidedLabel::ElidedLabel(QWidget *parent)
    : QWidget(parent)
{
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

QSize ElidedLabel::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(m_text) + 1, fontMetrics().height()};
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {0, fontMetrics().height()};
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QColor color = palette().color(QPalette::WindowText);
    constexpr float subdued = 0.65F;
    if (m_isSubdued)
        color.setAlphaF(subdued);
    painter.setPen(color);
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(m_text, Qt::ElideMiddle, width()));
}

} // namespace corvane
