#pragma once

#include "platform/desktop/outside_clicks.h"

namespace corvane {

class EventMonitors;
class Pointer;

/// Clicks in other programs, on desktops that report every press to every program, but not its
/// place: the pointer is asked for that. Both references must outlive it and its subscriptions.
class MonitoredClicks : public OutsideClicks {
public:
    MonitoredClicks(EventMonitors &monitors, const Pointer &pointer);

    Subscription watch(Handler onPressed) override;

private:
    EventMonitors &m_monitors;
    const Pointer &m_pointer;
};

} // namespace corvane
