#pragma once

#include "platform/desktop/panel_events.h"

#include <optional>

namespace corvane {

/// Gathers what fine wheels send, which turn less than a notch at a time, into whole notches:
/// whoever looks at one event alone sees every notch. What has phases or comes from a touchpad
/// passes as it is.
class WheelSteps {
public:
    static constexpr double notch = 4;
    /// Seconds after which a part of a notch is forgotten: a wheel that came to rest trembles.
    static constexpr double memory = 0.25;

    /// Whole notches, or nothing while there are none.
    std::optional<ScrollEvent> add(ScrollEvent scroll);

private:
    double m_sum = 0;
    double m_lastTime = 0;
};

} // namespace corvane
