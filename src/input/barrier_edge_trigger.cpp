#include "input/barrier_edge_trigger.h"

#include "platform/base/geometry.h"
#include "platform/reports/full_screen_windows.h"
#include "platform/reports/mouse_buttons.h"
#include "platform/reports/pointer.h"
#include "platform/reports/pointer_barriers.h"

#include <algorithm>

namespace corvane {

namespace {

QRectF edgeOf(const EdgeStretch &stretch)
{
    const QRectF &screen = stretch.screen->frame;
    return {minX(screen) + stretch.left, maxY(screen) - BarrierEdgeTrigger::edgeDepth,
            stretch.width, BarrierEdgeTrigger::edgeDepth};
}

} // namespace

BarrierEdgeTrigger::BarrierEdgeTrigger(const Desktop &desktop)
    : m_desktop(desktop)
{
    m_desktop.barriers.onEntered = [this] {
        // A copy: the callback may replace itself.
        if (const auto entered = onEntered)
            entered();
    };
    m_desktop.barriers.onLeft = [this] {
        if (const auto left = onLeft)
            left();
    };
}

BarrierEdgeTrigger::~BarrierEdgeTrigger()
{
    m_desktop.barriers.watch({});
    m_desktop.barriers.onEntered = nullptr;
    m_desktop.barriers.onLeft = nullptr;
}

void BarrierEdgeTrigger::watch(const std::vector<EdgeStretch> &stretches)
{
    m_watched = stretches;
    m_desktop.barriers.watch(stretches);
}

bool BarrierEdgeTrigger::isStillThere() const
{
    const auto location = m_desktop.pointer.location();
    if (!location || isButtonHeld())
        return false;
    const auto here = std::ranges::find_if(m_watched, [&](const EdgeStretch &stretch) {
        return contains(edgeOf(stretch), *location);
    });
    return here != m_watched.end() && !m_desktop.fullScreenWindows.isCovered(*here->screen);
}

bool BarrierEdgeTrigger::isButtonHeld() const
{
    return m_desktop.buttons.pressedMouseButtons() != 0;
}

} // namespace corvane
