#include "platform/qt/desktop/wheel_steps.h"

#include <cmath>

namespace corvane {

std::optional<ScrollEvent> WheelSteps::add(ScrollEvent scroll)
{
    if (scroll.hasPreciseDeltas || scroll.phase != ScrollEvent::Phase::None)
        return scroll;
    const bool turnsBack = m_sum * scroll.deltaX < 0;
    if (turnsBack || scroll.time - m_lastTime > memory)
        m_sum = 0;
    m_lastTime = scroll.time;
    m_sum += scroll.deltaX;
    // Sums of thirds must reach a whole notch despite rounding.
    constexpr double tolerance = 1e-6;
    const double notches = std::trunc(m_sum / notch + std::copysign(tolerance, m_sum));
    if (notches == 0)
        return std::nullopt;
    scroll.deltaX = notches * notch;
    m_sum -= scroll.deltaX;
    return scroll;
}

} // namespace corvane
