#include "input/monitored_clicks.h"

#include "platform/reports/event_monitors.h"
#include "platform/reports/pointer.h"

#include <utility>

namespace corvane {

MonitoredClicks::MonitoredClicks(EventMonitors &monitors, const Pointer &pointer)
    : m_monitors(monitors)
    , m_pointer(pointer)
{
}

Subscription MonitoredClicks::watch(Handler onPressed)
{
    return m_monitors.addGlobalMouseDownMonitor(
        [&pointer = m_pointer, onPressed = std::move(onPressed)] {
            onPressed(pointer.location());
        });
}

} // namespace corvane
