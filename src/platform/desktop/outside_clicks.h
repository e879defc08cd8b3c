#pragma once

#include "platform/base/subscription.h"

#include <QPointF>

#include <functional>
#include <optional>

namespace corvane {

/// Reports presses of any mouse button in other programs' windows, as far as the desktop tells of
/// them. Wheels that a window system reports as buttons do not count. Main thread only.
class OutsideClicks {
public:
    /// The place, in global points; none if it is not known.
    using Handler = std::function<void(std::optional<QPointF> place)>;

    virtual ~OutsideClicks() = default;

    /// Calls `onPressed` until the subscription ends, which may happen inside it. The subscription
    /// is inactive if the desktop does not tell of such clicks.
    virtual Subscription watch(Handler onPressed) = 0;
};

} // namespace corvane
