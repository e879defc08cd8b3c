#pragma once

#include "platform/desktop/panel_events.h"

#include <optional>

class QKeyEvent;
class QWheelEvent;

namespace corvane {

/// The key's event: letters by what they type in the user's layout, keys with a name by that name,
/// everything else by its position.
KeyEvent keyEventFrom(const QKeyEvent &event);

enum class ScrollDevice { Wheel, Touchpad };

/// The horizontal part of a scroll; none where there is nothing horizontal about it. With Shift
/// held a vertical wheel scrolls sideways. `time` is on the main queue's clock.
///
/// What has phases is measured in points, whatever the device. Without them the toolkit's pixels
/// are not looked at: they may be the device's own units, which mean nothing.
std::optional<ScrollEvent> scrollEventFrom(const QWheelEvent &event, double time,
                                           ScrollDevice device = ScrollDevice::Wheel);

} // namespace corvane
