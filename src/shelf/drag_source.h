#pragma once

#include "core/drop_item.h"
#include "core/message.h"
#include "core/spool_loans.h"
#include "platform/base/lifetime.h"
#include "platform/desktop/panel_window.h"

#include <QList>
#include <QPointF>
#include <QUuid>

#include <functional>
#include <optional>

namespace corvane {

class DragWriter;
class ItemPreparation;
class Keyboard;
class SavedPictures;

/// Drags one or several items out of a panel, and tells what became of them.
///
///     idle --press--> pressed --pulled far enough: begin--> dragging --let go--> idle
///                        +--release--> idle
///
/// After the user let go, an item is "leaving" until its target has said how that ended; another
/// drag may begin meanwhile. An item is removed once the target has its contents. It stays if Shift
/// was held as it was let go, or if the target only made a link to a file in the spool.
///
/// A callback that is not set is skipped. A drag may end after this is gone, which does nothing.
/// Main thread only; everything in the context must outlive it.
class DragSource {
public:
    /// A press that moves farther than this, in points, is a drag.
    static constexpr double dragDistance = 3;

    struct Context {
        PanelWindow &panel;
        const Keyboard &keyboard;
        const DragWriter &dragWriter;
        SavedPictures &pictures;
        ItemPreparation &preparation;
    };
    struct Press {
        /// By id, because indices change when items leave between press and drag.
        QUuid item;
        /// In the panel's coordinates.
        QPointF point;
    };
    /// The picture under the pointer, and the point of it that the pointer holds, in points from
    /// its bottom left.
    struct Picture {
        Image image;
        QPointF hotSpot;
    };
    /// Draws the items that are dragged; they may be fewer than `begin` was given.
    using Painter = std::function<Picture(const QList<DropItem> &items)>;

    explicit DragSource(const Context &context);

    /// A drag has begun, or what was dragged has been let go.
    std::function<void(bool isDraggingOut)> onChanged;
    /// A target has said how a drag ended. Called before `onEjected` and `onMessage`.
    std::function<void()> onEnded;
    /// The target has the contents of these items: they are to be removed, or, with `keep`, to
    /// stay. Called for those to be removed first and then for those that stay; not called with an
    /// empty list.
    std::function<void(const QList<QUuid> &ids, bool keep)> onEjected;
    /// A message for the user: that there is nothing to drag, or that items were not taken.
    std::function<void(const Message &message)> onMessage;

    /// The button went down on that item, at `point` of the panel.
    void press(const QUuid &item, QPointF point);
    /// Ends the press and returns it; none if a drag has begun from it.
    std::optional<Press> release();
    /// The press, if the pointer is now farther than `dragDistance` from it and no drag is going
    /// on: a drag is to begin.
    std::optional<Press> pulled(QPointF to) const;

    /// Starts a drag of those of `items` that can be dragged; the button must be down. `paint` is
    /// called inside, after `onChanged`.
    void begin(const QList<DropItem> &items, const Painter &paint);

    bool isDragging() const { return !m_dragged.isEmpty(); }
    /// The items that are being dragged, until they are let go.
    const QList<QUuid> &dragged() const { return m_dragged; }
    /// The items that were let go and whose targets have not said how that ended. An item that was
    /// dragged out twice is in it twice.
    const QList<QUuid> &leaving() const { return m_leaving; }

private:
    struct Drag {
        /// The items, one for each writer.
        QList<QUuid> ids;
        QList<DropItem> forms;
        /// How many items were to be dragged; more than `ids` where some cannot be.
        qsizetype wanted = 0;
        bool keep = false;
        /// What is removed while it is on its way arrives all the same.
        SpoolLoans::Loan loan;
    };
    DragOutEvents eventsOf(Drag drag);
    void released(Drag &drag);
    void ended(Drag &drag, const DragOutEnd &end);

    Context m_context;
    std::optional<Press> m_press;
    QList<QUuid> m_dragged;
    QList<QUuid> m_leaving;
    Lifetime m_lifetime;
};

} // namespace corvane
