#pragma once

#include "platform/desktop/incoming_drag.h"

#include <functional>
#include <memory>

namespace corvane {

/// What another program has put on the clipboard. It may be slow or silent, or end at any moment,
/// and so it is read as something that it dropped. Main thread only.
class ClipboardSource {
public:
    /// What is there, like a drop that waits for nobody; null if there is nothing, or if its owner
    /// does not say what it has.
    using Found = std::function<void(std::shared_ptr<IncomingDrag> contents)>;

    virtual ~ClipboardSource() = default;

    /// Asks for what is there now. `found` is called once, perhaps later, unless this is destroyed
    /// before.
    virtual void look(Found found) = 0;
};

} // namespace corvane
