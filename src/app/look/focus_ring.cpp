#include "app/look/focus_ring.h"

#include "app/look/window_look.h"

#include <QPainter>
#include <QWidget>

namespace corvane::focus_ring {

bool isWanted(const QWidget &widget)
{
    return widget.hasFocus() && widget.window()->testAttribute(Qt::WA_KeyboardFocusChange);
}

void draw(QPainter &painter, const QPalette &palette, const QRectF &rect, double radius)
{
    constexpr double width = 2;
    constexpr double inset = width / 2;
    painter.save();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(WindowLook::accent(palette), width));
    painter.drawRoundedRect(rect.adjusted(inset, inset, -inset, -inset), radius - inset,
                            radius - inset);
    painter.restore();
}

} // namespace corvane::focus_ring
