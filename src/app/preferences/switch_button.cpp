#include "app/preferences/switch_button.h"

#include "app/look/focus_ring.h"
#include "platform/desktop/motion_preference.h"

#include <QPainter>

namespace corvane {

namespace {

constexpr double trackWidth = 36;
constexpr double trackHeight = 20;
constexpr double knobInset = 2;
/// Around the track: room for the focus's ring, and to be hit.
constexpr double margin = 4;
constexpr double offOpacity = 0.3;
constexpr int slideMilliseconds = 140;

QColor between(const QColor &off, const QColor &on, float share)
{
    const auto mix = [share](float a, float b) { return a + (b - a) * share; };
    return QColor::fromRgbF(mix(off.redF(), on.redF()), mix(off.greenF(), on.greenF()),
                            mix(off.blueF(), on.blueF()), mix(off.alphaF(), on.alphaF()));
}

} // namespace

SwitchButton::SwitchButton(const QString &name, const QString &description, const WindowLook &look,
                           const MotionPreference &motion, QWidget *parent)
    : QCheckBox(parent)
    , m_look(look)
    , m_motion(motion)
{
    setAccessibleName(name);
    setAccessibleDescription(description);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_knob.setDuration(slideMilliseconds);
    m_knob.setEasingCurve(QEasingCurve::InOutQuad);
    m_knob.setStartValue(0.0);
    m_knob.setEndValue(1.0);
    connect(&m_knob, &QVariantAnimation::valueChanged, this, [this] { update(); });
    connect(this, &QCheckBox::toggled, this, &SwitchButton::slide);
}

QSize SwitchButton::sizeHint() const
{
    return {m_look.length(trackWidth + 2 * margin), m_look.length(trackHeight + 2 * margin)};
}

bool SwitchButton::hitButton(const QPoint &position) const
{
    return rect().contains(position);
}

void SwitchButton::slide(bool on)
{
    m_knob.setDirection(on ? QAbstractAnimation::Forward : QAbstractAnimation::Backward);
    if (isVisible() && !m_motion.reducesMotion())
        m_knob.start();
    else
        m_knob.setCurrentTime(on ? slideMilliseconds : 0);
}

QColor SwitchButton::trackColor() const
{
    return between(WindowLook::tint(palette(), offOpacity), WindowLook::accent(palette()),
                   m_knob.currentValue().toFloat());
}

void SwitchButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QRectF track(0, 0, m_look.length(trackWidth), m_look.length(trackHeight));
    track.moveCenter(QRectF(rect()).center());
    const double radius = track.height() / 2;
    if (focus_ring::isWanted(*this)) {
        const double room = m_look.length(margin);
        focus_ring::draw(painter, palette(), track.adjusted(-room, -room, room, room),
                         radius + room);
    }
    painter.setPen(WindowLook::edgeOfContrast(palette()));
    painter.setBrush(trackColor());
    painter.drawRoundedRect(WindowLook::insideEdge(track), radius, radius);

    const double inset = m_look.length(knobInset);
    const double share = layoutDirection() == Qt::RightToLeft ? 1 - m_knob.currentValue().toDouble()
                                                              : m_knob.currentValue().toDouble();
    const double x = track.left() + radius + share * (track.width() - 2 * radius);
    painter.setBrush(Qt::white);
    painter.drawEllipse(QPointF(x, track.center().y()), radius - inset, radius - inset);
}

} // namespace corvane
