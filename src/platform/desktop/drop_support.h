#pragma once

#include "platform/base/subscription.h"
#include "platform/desktop/incoming_drag.h"

#include <QStringList>

#include <memory>

class QWindow;

namespace corvane {

/// Who takes what other programs drop on a panel.
class DropReceiver {
public:
    virtual ~DropReceiver() = default;

    /// Whether the answer to a drag that offers these types depends on the addresses it carries.
    /// They are fetched then before anybody hears that the drag is there.
    virtual bool needsAddresses(const QStringList &types) const = 0;
    /// The types among those that addresses come in, the best first.
    virtual QStringList addressTypes(const QStringList &types) const = 0;
    /// The drag was let go over the panel. False where it is not wanted; it is finished then.
    virtual bool takeDrop(std::shared_ptr<IncomingDrag> drop) = 0;
};

/// What drops on our panels need of the window system beyond what Qt does for them: Qt fetches the
/// contents while everything stands still, and then tells the source at once that the drop is over.
/// There is one for each window system, where it is needed; it serves all panels. Main thread only.
class DropSupport {
public:
    virtual ~DropSupport() = default;

    /// Until the subscription ends the receiver is told of other programs' drops on the window,
    /// which Qt sees leave instead.
    virtual Subscription addReceiver(QWindow &window, DropReceiver &receiver) = 0;
    /// Another program's drag that is over one of the windows; null where there is none.
    virtual std::shared_ptr<IncomingDrag> incomingDrag() = 0;
};

} // namespace corvane
