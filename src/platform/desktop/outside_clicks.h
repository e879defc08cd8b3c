#pragma once

#include "platform/base/subscription.h"

#include <QPointF>

#include <functional>
#include <optional>

namespace corvane {

/// Hears presses of any mouse button in other programs' windows, as far as the desktop tells of
/// them. What a window system reports of a wheel as buttons is none. Main thread only.
class OutsideClicks {
public:
    /// Where, in global points; none where nobody tells.
    using Handler = std::function<void(std::optional<QPointF> place)>;

    virtual ~OutsideClicks() = default;

    /// Until the subscription ends, which may happen inside of the handler. An inactive one where
    /// the desktop tells of none.
    virtual Subscription watch(Handler onPressed) = 0;
};

} // namespace corvane
