#pragma once

#include "platform/desktop/outside_clicks.h"

namespace corvane {

class EventMonitors;
class Pointer;

/// Clicks elsewhere on desktops that tell every program of every press, though not where it was:
/// the pointer is asked then. Both must outlive it and its subscriptions.
class MonitoredClicks : public OutsideClicks {
public:
    MonitoredClicks(EventMonitors &monitors, const Pointer &pointer);

    Subscription watch(Handler onPressed) override;

private:
    EventMonitors &m_monitors;
    const Pointer &m_pointer;
};

} // namespace corvane
