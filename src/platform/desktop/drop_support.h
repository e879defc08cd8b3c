#pragma once

#include "platform/base/subscription.h"
#include "platform/desktop/incoming_drag.h"

#include <QStringList>

#include <functional>
#include <memory>

class QWindow;

namespace corvane {

/// The part of a panel that takes the drops of other programs.
class DropReceiver {
public:
    virtual ~DropReceiver() = default;

    /// Whether the answer to a drag that offers these types depends on the addresses it carries. If
    /// so they are fetched before Qt hears of the drag.
    virtual bool needsAddresses(const QStringList &types) const = 0;
    /// The types among `types` that hold addresses, the best first.
    virtual QStringList addressTypes(const QStringList &types) const = 0;
    /// Fetches all that a drop of this drag would ask for, until the subscription ends. `done` is
    /// called once, however that went, and may be called before this returns.
    virtual Subscription fetchEarly(std::shared_ptr<IncomingDrag> drag, std::function<void()> done)
        = 0;
    /// The drag was dropped on the panel. False to refuse it; it is then finished as not taken.
    virtual bool takeDrop(std::shared_ptr<IncomingDrag> drop) = 0;
};

/// What drops on our panels need from the window system beyond what Qt does for them. Qt blocks
/// while it fetches the contents, and then tells the source at once that the drop is over. There is
/// one for each window system that needs it; it serves all panels. Main thread only.
class DropSupport {
public:
    virtual ~DropSupport() = default;

    /// Until the subscription ends, the receiver gets other programs' drops on the window; for Qt
    /// they are drags that leave it.
    virtual Subscription addReceiver(QWindow &window, DropReceiver &receiver) = 0;
    /// The drag of another program that is over one of the windows; null when there is none.
    virtual std::shared_ptr<IncomingDrag> incomingDrag() = 0;
};

} // namespace corvane
