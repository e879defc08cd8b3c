#include "app/preferences/choice_button.h"

#include "app/look/focus_ring.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

namespace corvane {

namespace {

constexpr double radius = 6;
constexpr double chosenOpacity = 0.08;
constexpr double hoveredOpacity = 0.04;

} // namespace

ChoiceButton::ChoiceButton(const QString &text, const Shape &shape, const WindowLook &look,
                           QWidget *parent)
    : QRadioButton(text, parent)
    , m_shape(shape)
    , m_look(look)
{
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    // Tab comes to the chosen one. Qt sees to that once one of them has had the focus.
    setFocusPolicy(Qt::ClickFocus);
    connect(this, &QRadioButton::toggled, this,
            [this](bool isChosen) { setFocusPolicy(isChosen ? Qt::StrongFocus : Qt::ClickFocus); });
}

QSize ChoiceButton::sizeHint() const
{
    // Of the wider font, so that nothing moves when another one is chosen.
    const QFontMetrics metrics(m_look.font(m_shape.fontSize, QFont::DemiBold));
    const int width
        = metrics.horizontalAdvance(text()) + 2 * m_look.length(m_shape.horizontalPadding);
    return {std::max(width, m_look.length(m_shape.minimumWidth)),
            metrics.height() + 2 * m_look.length(m_shape.verticalPadding)};
}

bool ChoiceButton::hitButton(const QPoint &position) const
{
    return rect().contains(position);
}

QFont ChoiceButton::presentFont() const
{
    return m_look.font(m_shape.fontSize, isChecked() ? QFont::DemiBold : QFont::Normal);
}

void ChoiceButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double opacity = isChecked() ? chosenOpacity : underMouse() ? hoveredOpacity : 0;
    painter.setPen(WindowLook::edgeOfContrast(palette()));
    painter.setBrush(WindowLook::tint(palette(), opacity));
    painter.drawRoundedRect(WindowLook::insideEdge(rect()), m_look.length(radius),
                            m_look.length(radius));
    if (focus_ring::isWanted(*this))
        focus_ring::draw(painter, palette(), rect(), m_look.length(radius));
    painter.setFont(presentFont());
    painter.setPen(isChecked() ? palette().color(QPalette::WindowText)
                               : WindowLook::secondary(palette()));
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextHideMnemonic, text());
}

} // namespace corvane
