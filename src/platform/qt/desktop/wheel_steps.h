#pragma once

#include "platform/desktop/panel_events.h"

#include <optional>

namespace corvane {

/// Adds up the scroll events of high-resolution wheels, which report parts of a notch, to whole
/// notches, so that code that handles single events sees each notch once. Events with phases or
/// from a touchpad are passed on unchanged.
class WheelSteps {
public:
    /// In units of `ScrollEvent::deltaX`.
    static constexpr double notch = 4;
    /// In seconds: a part of a notch is forgotten after this pause, because a wheel at rest
    /// trembles.
    static constexpr double memory = 0.25;

    /// The event with whole notches, or none while less has been added up.
    std::optional<ScrollEvent> add(ScrollEvent scroll);

private:
    double m_sum = 0;
    double m_lastTime = 0;
};

} // namespace corvane
