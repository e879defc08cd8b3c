#pragma once

#include "core/drop_item.h"
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
/// What was let go is leaving until its target has said how that ended; another drag may begin
/// before. An item goes once its target has it. It stays where Shift was held as it was let go, and
/// where it was only linked to a file of the shelf's own.
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
        /// By its id: an item before it may leave before the hand moves.
        QUuid item;
        /// In the panel's coordinates.
        QPointF point;
    };
    /// What hangs under the pointer, and the point of it that the pointer holds, in points from its
    /// bottom left.
    struct Picture {
        Image image;
        QPointF hotSpot;
    };
    /// Draws the items that travel, of those that were to.
    using Painter = std::function<Picture(const QList<DropItem> &items)>;

    explicit DragSource(const Context &context);

    /// A drag has begun, or what was dragged has been let go.
    std::function<void(bool isDraggingOut)> onChanged;
    /// A target has said how a drag ended. Called before anything comes of that.
    std::function<void()> onEnded;
    /// The target has these. They are to leave, or with `keep` to stay: called first for those that
    /// leave and then for those that stay, and not where there are none.
    std::function<void(const QList<QUuid> &ids, bool keep)> onEjected;
    /// What the user is told: that there is nothing to drag, or that something was not taken.
    std::function<void(const QString &message)> onMessage;

    void press(const QUuid &item, QPointF point);
    /// The press that comes to nothing more; none where a drag came of it.
    std::optional<Press> release();
    /// The press, where the pointer has now gone so far from it that a drag is meant and can begin.
    std::optional<Press> pulled(QPointF to) const;

    /// Starts a drag of what can travel of these items; the button must be down. `paint` is called
    /// once the drag has been told of.
    void begin(const QList<DropItem> &items, const Painter &paint);

    bool isDragging() const { return !m_dragged.isEmpty(); }
    /// The items that are being dragged, until they are let go.
    const QList<QUuid> &dragged() const { return m_dragged; }
    /// Those that were let go, whose target has not said how that ended; one twice that was dragged
    /// out twice.
    const QList<QUuid> &leaving() const { return m_leaving; }

private:
    struct Drag {
        /// One for each writer.
        QList<QUuid> ids;
        QList<DropItem> forms;
        /// More than travel: a file may be gone.
        qsizetype wanted = 0;
        bool keep = false;
    };
    DragOutEvents eventsOf(Drag drag);
    void released(Drag &drag);
    void ended(const Drag &drag, const DragOutEnd &end);

    Context m_context;
    std::optional<Press> m_press;
    QList<QUuid> m_dragged;
    QList<QUuid> m_leaving;
    Lifetime m_lifetime;
};

} // namespace corvane
