#pragma once

#include "platform/desktop/panel_events.h"

#include <optional>

class QKeyEvent;
class QWheelEvent;

namespace corvane {

/// The event for a key. Letters are named by what they type in the user's layout, special keys by
/// their names, all others by their position.
KeyEvent keyEventFrom(const QKeyEvent &event);

enum class ScrollDevice { Wheel, Touchpad };

/// The horizontal part of a scroll event; none if it has none. With Shift held a vertical wheel
/// scrolls sideways. `time` is on the main queue's clock.
///
/// Events with phases are in points, whatever the device. For others Qt's pixel deltas are ignored,
/// because they may be in the device's own units.
std::optional<ScrollEvent> scrollEventFrom(const QWheelEvent &event, double time,
                                           ScrollDevice device = ScrollDevice::Wheel);

} // namespace corvane
