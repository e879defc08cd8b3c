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
class QMimeData;
class QWindow;

namespace corvane {

class PanelContent;
class Pasteboard;

/// Passes drags over a panel to its content, and the content's answers to the source.
///
///     Outside --enter, content accepts--> Accepted --drop or leave--> Outside
///     Outside --enter, content refuses--> Refused  --leave---------> Outside
///
/// A drag that was refused on entering stays refused until it leaves. The only answer is Copy:
/// after another one the source might delete what it gave us. Exceptions of the content are caught
/// here, so that the source is always told that its drop is finished.
///
/// With a support, the contents of other programs' drops are fetched first, without blocking, and
/// the content is called when they are here; several drops may be on their way. Without one, and
/// for drags of this process, the content reads a drop at once.
class PanelDropTarget : public DropReceiver {
public:
    /// While so many drops are on their way nothing is pasted.
    static constexpr std::size_t maximumAwaited = 32;

    /// The support must outlive it, or be null. `window` is registered with it.
    PanelDropTarget(QWindow &window, DropSupport *support, DropFetch::Threads threads);
    ~PanelDropTarget() override;
    PanelDropTarget(const PanelDropTarget &) = delete;
    PanelDropTarget &operator=(const PanelDropTarget &) = delete;

    /// With null everything is refused, also drops that are on their way.
    void setContent(PanelContent *content);

    /// `location` in the panel's coordinates.
    void enter(QDragEnterEvent &event, QPointF location);
    void move(QDragMoveEvent &event, QPointF location);
    void drop(QDropEvent &event, QPointF location);
    void leave();

    /// Fetches what is on the clipboard, and hands it to the content as a drop.
    void paste(const std::shared_ptr<IncomingDrag> &contents);
    /// The same at once, for what Qt has.
    void paste(const QMimeData *contents);

    bool needsAddresses(const QStringList &types) const override;
    QStringList addressTypes(const QStringList &types) const override;
    Subscription fetchEarly(std::shared_ptr<IncomingDrag> drag,
                            std::function<void()> done) override;
    bool takeDrop(std::shared_ptr<IncomingDrag> drop) override;

private:
    enum class State {
        Outside,
        Accepted,
        Refused,
    };

    std::unique_ptr<Pasteboard> pasteboardOf(const QDropEvent &event) const;
    void fetch(std::shared_ptr<IncomingDrag> drop);
    void contentsArrived(DropFetch *fetch, FetchedPasteboard &pasteboard);

    DropSupport *m_support;
    DropFetch::Threads m_threads;
    PanelContent *m_content = nullptr;
    State m_state = State::Outside;
    /// The drag's last place, in the content's coordinates.
    QPointF m_location;
    /// Drops whose contents are on their way.
    std::list<std::unique_ptr<DropFetch>> m_awaited;
    Subscription m_receiving;
};

} // namespace corvane
