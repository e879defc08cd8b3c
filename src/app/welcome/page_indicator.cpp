#include "app/welcome/page_indicator.h"

#include "core/shown_numbers.h"
#include "platform/desktop/motion_preference.h"
#include "platform/qt/desktop/spoken_role.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace corvane {

namespace {

constexpr double dot = 7;
constexpr double capsule = 22;
constexpr double gap = 7;
constexpr double otherOpacity = 0.22;
constexpr int moveMilliseconds = 220;

} // namespace

PageIndicator::PageIndicator(int count, const WindowLook &look, const MotionPreference &motion,
                             QWidget *parent)
    : QWidget(parent)
    , m_count(count)
    , m_look(look)
    , m_motion(motion)
{
    speakAs<PageIndicator>(QAccessible::StaticText);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_place.setDuration(moveMilliseconds);
    m_place.setEasingCurve(QEasingCurve::InOutQuad);
    m_place.setStartValue(0.0);
    m_place.setEndValue(0.0);
    connect(&m_place, &QVariantAnimation::valueChanged, this, [this] { update(); });
    setCurrent(0);
}

QSize PageIndicator::sizeHint() const
{
    const int others = m_count - 1;
    return {m_look.length(capsule) + others * m_look.length(dot) + others * m_look.length(gap),
            m_look.length(dot)};
}

void PageIndicator::setCurrent(int page)
{
    setAccessibleName(tr("Step %1 of %2").arg(shownNumber(page + 1), shownNumber(m_count)));
    m_place.setStartValue(m_place.currentValue());
    m_place.setEndValue(static_cast<double>(page));
    m_place.stop();
    m_place.setCurrentTime(0);
    if (isVisible() && !m_motion.reducesMotion())
        m_place.start();
    else
        m_place.setCurrentTime(moveMilliseconds);
    update();
}

void PageIndicator::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const double place = m_place.currentValue().toDouble();
    const double height = m_look.length(dot);
    const double longer = m_look.length(capsule) - height;
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    double x = 0;
    for (int i = 0; i < m_count; ++i) {
        const double share = std::max(0.0, 1 - std::abs(place - i));
        const double length = height + longer * share;
        const QRectF shape(isMirrored ? width() - x - length : x, 0, length, height);
        painter.setBrush(WindowLook::tint(palette(), otherOpacity));
        painter.drawRoundedRect(shape, height / 2, height / 2);
        painter.setOpacity(share);
        painter.setBrush(WindowLook::accent(palette()));
        painter.drawRoundedRect(shape, height / 2, height / 2);
        painter.setOpacity(1);
        painter.setPen(WindowLook::edgeOfContrast(palette()));
        painter.setBrush(Qt::NoBrush);
        const QRectF edge = WindowLook::insideEdge(shape);
        painter.drawRoundedRect(edge, edge.height() / 2, edge.height() / 2);
        painter.setPen(Qt::NoPen);
        x += shape.width() + m_look.length(gap);
    }
}

} // namespace corvane
