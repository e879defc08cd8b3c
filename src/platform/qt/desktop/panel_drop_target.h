#pragma once

#include "platform/base/subscription.h"
#include "platform/desktop/drop_support.h"
#include "platform/qt/desktop/drop_fetch.h"

#include <QPointF>

#include <list>
#include <memory>

class QDragEnterEvent;
class QDragMoveEvent;
class QDropEvent;
class QWindow;

namespace corvane {

class PanelContent;
class Pasteboard;

/// A drag over a panel, told to its content and answered to its source.
///
///     Outside --enter, content accepts--> Accepted --drop or leave--> Outside
///     Outside --enter, content refuses--> Refused  --leave---------> Outside
///
/// What was refused on entering stays refused until it leaves. The only answer is Copy: after any
/// other one the source could take its things away from under us. Nothing may be thrown past these
/// calls: whatever happens here, the source is told that its drop is finished.
///
/// With a support, what other programs drop is fetched first, in its source's time, and the content
/// is told when it is here; several drops may be on their way. Without one, and for drags of this
/// process, a drop is read while it is dropped.
class PanelDropTarget : public DropReceiver {
public:
    /// The support must outlive it, or be null. It is told of the window.
    PanelDropTarget(QWindow &window, DropSupport *support, DropFetch::Threads threads);
    ~PanelDropTarget() override;
    PanelDropTarget(const PanelDropTarget &) = delete;
    PanelDropTarget &operator=(const PanelDropTarget &) = delete;

    /// Null while there is nobody to ask: everything is refused, what is on its way too.
    void setContent(PanelContent *content);

    void enter(QDragEnterEvent &event, double panelHeight);
    void move(QDragMoveEvent &event, double panelHeight);
    void drop(QDropEvent &event, double panelHeight);
    void leave();

    bool needsAddresses(const QStringList &types) const override;
    QStringList addressTypes(const QStringList &types) const override;
    bool takeDrop(std::shared_ptr<IncomingDrag> drop) override;

private:
    enum class State {
        Outside,
        Accepted,
        Refused,
    };

    std::unique_ptr<Pasteboard> pasteboardOf(const QDropEvent &event) const;
    void contentsArrived(DropFetch *fetch, FetchedPasteboard &pasteboard);

    DropSupport *m_support;
    DropFetch::Threads m_threads;
    PanelContent *m_content = nullptr;
    State m_state = State::Outside;
    /// Where the drag was last, in the content's coordinates.
    QPointF m_location;
    /// What was let go and is on its way.
    std::list<std::unique_ptr<DropFetch>> m_awaited;
    Subscription m_receiving;
};

} // namespace corvane
