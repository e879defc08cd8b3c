#include "app/look/action_button.h"

#include "app/look/focus_ring.h"

#include <QFontMetrics>
#include <QPainter>

namespace corvane {

namespace {

constexpr double radius = 5;
constexpr double sidePadding = 14;
constexpr double edgeInset = 0.5;
constexpr double edgeOpacity = 0.2;
constexpr double dimmedOpacity = 0.45;
constexpr float defaultTint = 0.14F;
constexpr double hoveredOpacity = 0.05;
constexpr double pressedOpacity = 0.12;

} // namespace

ActionButton::ActionButton(const QString &text, double fontSize, QSize minimumSize,
                           const WindowLook &look, QWidget *parent)
    : QPushButton(text, parent)
    , m_minimumSize(minimumSize)
    , m_look(look)
{
    setAttribute(Qt::WA_Hover);
    setAutoDefault(false);
    setFont(m_look.font(fontSize));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize ActionButton::sizeHint() const
{
    const int width
        = QFontMetrics(font()).horizontalAdvance(text()) + 2 * m_look.length(sidePadding);
    return m_look.length(m_minimumSize).expandedTo({width, 0});
}

void ActionButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(isEnabled() ? 1 : dimmedOpacity);
    const QRectF edge = QRectF(rect()).adjusted(edgeInset, edgeInset, -edgeInset, -edgeInset);
    const double corner = m_look.length(radius);
    const QColor accent = WindowLook::accent(palette());
    painter.setPen(isDefault() ? accent : WindowLook::edge(palette(), edgeOpacity));
    painter.setBrush(palette().color(QPalette::Active, QPalette::Button));
    painter.drawRoundedRect(edge, corner, corner);
    painter.setPen(Qt::NoPen);
    if (isDefault()) {
        QColor tint = accent;
        tint.setAlphaF(defaultTint);
        painter.setBrush(tint);
        painter.drawRoundedRect(edge, corner, corner);
    }
    if (isEnabled() && (isDown() || underMouse())) {
        painter.setBrush(WindowLook::tint(palette(), isDown() ? pressedOpacity : hoveredOpacity));
        painter.drawRoundedRect(edge, corner, corner);
    }
    if (focus_ring::isWanted(*this))
        focus_ring::draw(painter, palette(), rect(), corner);
    painter.setFont(font());
    painter.setPen(palette().color(QPalette::Active, QPalette::ButtonText));
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextHideMnemonic, text());
}

} // namespace corvane
