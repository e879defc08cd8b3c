#pragma once

#include "core/drop_item.h"
#include "core/item_index.h"
#include "core/publication_pace.h"
#include "core/shelf_state.h"
#include "platform/base/callback_list.h"
#include "platform/base/lifetime.h"

#include <QList>
#include <QSet>
#include <QString>
#include <QUuid>

#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace corvane {

struct Feedback;
struct LinkPreview;
class LinkPreviewSource;
class ScratchSpool;
class Settings;
class ThumbnailSource;

/// The one model of the shelf: what it holds, whether it is open, what is focused and selected.
///
/// It is changed by operations alone, and every change is published at once, on the caller's
/// thread, which is the main thread, to state observers (old and new state) and item observers (the
/// whole list). The order of publications within an operation is part of the contract and stands
/// with each operation. Indices out of range and unknown ids are ignored. The sources, spool,
/// settings and feedback must outlive the store; their results may come after it is gone.
class ShelfStore {
public:
    using StateObserver = std::function<void(ShelfState oldState, ShelfState newState)>;
    using ItemObserver = std::function<void(const QList<DropItem> &items)>;

    ShelfStore(const Settings &settings, const ScratchSpool &spool, ThumbnailSource &thumbnails,
               LinkPreviewSource &linkPreviews, const Feedback &feedback);
    ShelfStore(const ShelfStore &) = delete;
    ShelfStore &operator=(const ShelfStore &) = delete;
    ~ShelfStore();

    void observeState(StateObserver observer);
    void observeItems(ItemObserver observer);
    /// Title of the item that left last; empty before one has.
    const QString &lastThatLeft() const { return m_lastThatLeft; }
    /// Called for each item that leaves the shelf. With `deletingFiles` the files that were made
    /// for it are to be deleted, too; otherwise another program was given them.
    std::function<void(const QUuid &id, bool deletingFiles)> onLeft;
    /// Called when the drag in flight has become one of the shelf's own, or is none any more,
    /// before that is published.
    std::function<void(bool isOwn)> onOwnDragChanged;
    /// Called once at the end of each operation that publishes more than once.
    void observeEndOfOperation(std::function<void()> observer);
    /// To be asked while an observer is being called: what the publication is part of.
    PublicationPace pace() const
    {
        return m_operations > 0 ? PublicationPace::WithinOperation : m_pace;
    }

    ShelfState state() const { return m_state; }

    const QList<DropItem> &items() const { return m_items; }
    /// Replaces them, and publishes.
    void setItems(QList<DropItem> items);

    /// The item's index; none when it is not on the shelf. Takes the same time for any number of
    /// items.
    std::optional<int> indexOf(const QUuid &id) const { return m_index.indexOf(id, m_items); }

    int focusedIndex() const { return m_focusedIndex; }
    std::optional<DropItem> focusedItem() const;
    /// Index of the first item in the carousel.
    int scrollOffset() const { return m_scrollOffset; }
    std::vector<std::pair<int, DropItem>> visibleItems() const;

    const QSet<QUuid> &selection() const { return m_selection; }
    QList<DropItem> selectedItems() const;

    bool isViewAllOpen() const { return m_isViewAllOpen; }
    /// A drag of something droppable is going on anywhere.
    bool isDragInFlight() const { return m_isDragInFlight; }
    /// That drag started on the shelf.
    bool isOwnDrag() const { return m_isOwnDrag; }

    /// Appends the items (published), selects them, focuses the last (published), becomes occupied,
    /// and starts loading what completes them. False, and nothing happens, for an empty list.
    bool accept(const QList<DropItem> &newItems);
    /// An item was dragged out and taken: it leaves the shelf, without its file being deleted, or
    /// stays with a message if `keep` is set.
    void ejected(int index, bool keep);
    void ejected(const QList<QUuid> &ids, bool keep);
    /// Removes every selected item, spooled files too.
    void removeSelected();
    void clearAll();
    void discard(int index, bool deletingSpoolFile);
    /// Focuses the item nearest to `index`, scrolls it into view and publishes; nothing when empty.
    void focus(int index);
    /// Moves the carousel by so many items, negative is back, as far as there are any, and
    /// publishes; nothing where it stays as it is.
    void scrollBy(int steps);
    /// Another number of items is in view: leaves no empty places at the carousel's end, and
    /// publishes.
    void inViewCountChanged();
    /// Replaces an item's subtitle and publishes; nothing if it is gone.
    void describe(const QUuid &id, const QString &subtitle);
    /// The same for a file, with what it was found to be.
    void describeFile(const QUuid &id, const QString &subtitle, bool isFolder);
    /// The item of `made`'s id takes over what it was made into (published), and its thumbnail is
    /// asked for; nothing if it is gone.
    void becomeReady(const DropItem &made);
    void toggleSelection(const DropItem &item);
    void toggleSelectAll();
    /// Opens or closes the shelf for the user.
    void toggleManually();
    /// Opens or closes the view-all bar for the user, and publishes. A closed one stays closed, and
    /// nothing is published, with fewer than two items: it is not offered for a single one.
    void toggleViewAll();
    /// Closes the view-all bar and publishes; nothing where it is closed.
    void closeViewAll();
    /// A drag of something droppable began in any program. A closed shelf opens for it, and the
    /// state observers are called; otherwise the item observers are.
    void dragBegan();
    /// The drag in flight ended, anywhere. A shelf that is open for a drop closes, or becomes
    /// occupied if it holds items, and the state observers are called; otherwise the item observers
    /// are.
    void dragEnded();
    /// Sets whether the drag in flight is one of the shelf's own; publishes if that changes.
    void ownDragChanged(bool isOwn);

private:
    /// Exists while an operation goes on that publishes more than once.
    class Operation;

    int count() const { return static_cast<int>(m_items.size()); }
    void discardEach(const QList<QUuid> &ids, bool deletingSpoolFiles);
    void tellLeft(const DropItem &item, bool deletingFiles) const;
    void becomeEmpty();
    /// Changes the state and, if it differs, tells the state observers.
    void setState(ShelfState state);
    /// The largest scroll offset that leaves no empty place at the carousel's end.
    int lastOffset(int inView) const;
    void startLoading(const QList<DropItem> &items);
    void startLink(const DropItem &item, const QUrl &url);
    /// Calls every item observer with the present items.
    void publishItems(PublicationPace pace = PublicationPace::AtOnce);
    template<typename Notify>
    void publish(PublicationPace pace, Notify notify);
    /// Finds the item again, changes it in its place and publishes; nothing if it is gone.
    template<typename Change>
    void change(const QUuid &id, PublicationPace pace, Change apply);
    void mergeThumbnail(const QUuid &id, const std::optional<Image> &thumbnail);
    void mergeLinkPreview(const QUuid &id, const QUrl &url, const LinkPreview &preview);

    const Settings &m_settings;
    const ScratchSpool &m_spool;
    ThumbnailSource &m_thumbnails;
    LinkPreviewSource &m_linkPreviews;
    const Feedback &m_feedback;

    ShelfState m_state = ShelfState::Idle;
    QList<DropItem> m_items;
    int m_focusedIndex = 0;
    int m_scrollOffset = 0;
    QSet<QUuid> m_selection;
    QString m_lastThatLeft;
    bool m_isViewAllOpen = false;
    CallbackList<ShelfState, ShelfState> m_stateObservers;
    CallbackList<const QList<DropItem> &> m_itemObservers;
    CallbackList<> m_endObservers;
    /// How many operations that publish more than once are going on, one inside the other.
    int m_operations = 0;
    PublicationPace m_pace = PublicationPace::AtOnce;
    bool m_isDragInFlight = false;
    bool m_isOwnDrag = false;

    mutable ItemIndex m_index;
    Lifetime m_lifetime;
};

} // namespace corvane
