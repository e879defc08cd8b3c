#include "app/preferences/clear_button.h"

#include "app/look/focus_ring.h"

#include <QPainter>

namespace corvane {

namespace {

constexpr double side = 22;
constexpr double arm = 3.5;
constexpr double lineWidth = 1.5;
constexpr double groundInset = 3;
constexpr double groundOpacity = 0.08;
constexpr double hoveredOpacity = 0.16;
constexpr double dimmedOpacity = 0.35;

} // namespace

ClearButton::ClearButton(const WindowLook &look, QWidget *parent)
    : QPushButton(parent)
    , m_look(look)
{
    const QString help = tr("Clear the shortcut");
    setToolTip(help);
    setAccessibleName(help);
    setAttribute(Qt::WA_Hover);
    setAutoDefault(false);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize ClearButton::sizeHint() const
{
    return {m_look.length(side), m_look.length(side)};
}

void ClearButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF bounds = rect();
    if (focus_ring::isWanted(*this))
        focus_ring::draw(painter, palette(), bounds, bounds.width() / 2);
    painter.setOpacity(isEnabled() ? 1 : dimmedOpacity);
    const double inset = m_look.length(groundInset);
    painter.setPen(WindowLook::edgeOfContrast(palette()));
    painter.setBrush(
        WindowLook::tint(palette(), isEnabled() && underMouse() ? hoveredOpacity : groundOpacity));
    painter.drawEllipse(bounds.adjusted(inset, inset, -inset, -inset));
    const double reach = arm * bounds.width() / side;
    const QPointF c = bounds.center();
    painter.setPen(QPen(WindowLook::secondary(palette()), lineWidth * bounds.width() / side,
                        Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(c - QPointF(reach, reach), c + QPointF(reach, reach));
    painter.drawLine(c - QPointF(reach, -reach), c + QPointF(reach, -reach));
}

} // namespace corvane
