#pragma once

#include "platform/pasteboard/pasteboard_form.h"

#include <functional>
#include <optional>

namespace corvane {

struct DragOutEnd;

/// What drags out of our panels need of the window system beyond what Qt does for them. There is
/// one for each window system, where it is needed; it serves all panels. Main thread only.
///
/// Qt's drag is over when the user lets go, and reports what the target said it would do. What the
/// target did, it says later; which contents it has got is known here only.
///
///     dragWillBegin --user lets go--> dragWasDropped --target has finished, or never will--> ended
///                                     dragCameToNothing
class DragSupport {
public:
    using DragId = int;

    virtual ~DragSupport() = default;

    /// A drag of ours is about to start. Targets are given `forms`, also if they ask in ways or at
    /// times that Qt does not answer. Forms that are not final tell only what is offered: requests
    /// wait for `formsAreReady`, for a bounded time.
    virtual DragId dragWillBegin(PasteboardForms forms, bool areFinal) = 0;
    /// The final forms of a drag; none if they could not be made.
    virtual void formsAreReady(DragId drag, std::optional<PasteboardForms> forms) = 0;
    /// The user let go over another program's window that would take it. `ended` is called once,
    /// later: when the target said how it ended, when it is gone, or when it has said nothing for
    /// too long.
    virtual void dragWasDropped(DragId drag, std::function<void(const DragOutEnd &)> ended) = 0;
    /// The user let go elsewhere, or gave up.
    virtual void dragCameToNothing(DragId drag) = 0;
};

} // namespace corvane
