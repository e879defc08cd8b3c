#include "app/preferences/link_button.h"

#include "app/look/focus_ring.h"

#include <QFontMetrics>
#include <QPainter>

namespace corvane {

namespace {

constexpr double textSize = 13;
constexpr double horizontalPadding = 8;
constexpr double verticalPadding = 4;
constexpr double radius = 5;

} // namespace

LinkButton::LinkButton(const QString &text, const WindowLook &look, QWidget *parent)
    : QPushButton(text, parent)
    , m_look(look)
{
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::PointingHandCursor);
    setFont(m_look.font(textSize));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAutoDefault(false);
}

QSize LinkButton::sizeHint() const
{
    const QFontMetrics metrics(font());
    return {metrics.horizontalAdvance(text()) + 2 * m_look.length(horizontalPadding),
            metrics.height() + 2 * m_look.length(verticalPadding)};
}

void LinkButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (focus_ring::isWanted(*this))
        focus_ring::draw(painter, palette(), rect(), m_look.length(radius));
    QFont present = font();
    present.setUnderline(underMouse());
    painter.setFont(present);
    painter.setPen(palette().color(QPalette::Link));
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextHideMnemonic, text());
}

} // namespace corvane
