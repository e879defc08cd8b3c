#include "core/shelf_store.h"

#include "core/feedback.h"
#include "core/link_preview_source.h"
#include "core/scratch_spool.h"
#include "core/settings.h"
#include "core/thumbnail_source.h"
#include "platform/base/checked_math.h"

#include <algorithm>
#include <utility>

namespace corvane {

class ShelfStore::Operation {
public:
    explicit Operation(ShelfStore &store)
        : m_store(store)
    {
        ++m_store.m_operations;
    }
    ~Operation()
    {
        if (--m_store.m_operations == 0)
            m_store.m_endObservers.notify();
    }
    Operation(const Operation &) = delete;
    Operation &operator=(const Operation &) = delete;

private:
    ShelfStore &m_store;
};

ShelfStore::ShelfStore(const Settings &settings, const ScratchSpool &spool,
                       ThumbnailSource &thumbnails, LinkPreviewSource &linkPreviews,
                       const Feedback &feedback)
    : m_settings(settings)
    , m_spool(spool)
    , m_thumbnails(thumbnails)
    , m_linkPreviews(linkPreviews)
    , m_feedback(feedback)
{
}

ShelfStore::~ShelfStore() = default;

template<typename Notify>
void ShelfStore::publish(PublicationPace pace, Notify notify)
{
    const Lifetime::Token life = m_lifetime.token();
    const PublicationPace outer = std::exchange(m_pace, pace);
    notify();
    if (!life.isOver())
        m_pace = outer;
}

void ShelfStore::observeState(StateObserver observer)
{
    m_stateObservers.add(std::move(observer));
}

void ShelfStore::observeItems(ItemObserver observer)
{
    m_itemObservers.add(std::move(observer));
}

void ShelfStore::observeEndOfOperation(std::function<void()> observer)
{
    m_endObservers.add(std::move(observer));
}

void ShelfStore::publishItems(PublicationPace pace)
{
    publish(pace, [this] { m_itemObservers.notify(m_items); });
}

void ShelfStore::setState(ShelfState state)
{
    const ShelfState old = std::exchange(m_state, state);
    if (old != state)
        publish(PublicationPace::AtOnce, [&] { m_stateObservers.notify(old, state); });
}

void ShelfStore::setItems(QList<DropItem> items)
{
    const QList<DropItem> replaced = std::exchange(m_items, std::move(items));
    m_index.invalidate();
    for (const DropItem &item : replaced) {
        if (!indexOf(item.id()))
            m_thumbnails.cancel(item.id());
    }
    publishItems();
}

std::optional<DropItem> ShelfStore::focusedItem() const
{
    const bool isInside = m_focusedIndex >= 0 && m_focusedIndex < count();
    return isInside ? std::optional(m_items[m_focusedIndex]) : std::nullopt;
}

std::vector<std::pair<int, DropItem>> ShelfStore::visibleItems() const
{
    // `setItems` may have put a shorter list in place without changing the offset.
    const int start = std::min(std::max(count() - 1, 0), m_scrollOffset);
    const int end = std::min(start + m_settings.inViewCount(), count());
    std::vector<std::pair<int, DropItem>> visible;
    for (int i = start; i < end; ++i)
        visible.emplace_back(i, m_items[i]);
    return visible;
}

QList<DropItem> ShelfStore::selectedItems() const
{
    QList<DropItem> selected;
    for (const DropItem &item : m_items) {
        if (m_selection.contains(item.id()))
            selected << item;
    }
    return selected;
}

bool ShelfStore::accept(const QList<DropItem> &newItems)
{
    if (newItems.isEmpty())
        return false;
    // A copy: an observer may change the caller's list, which may be `m_items` itself.
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
    const QList<DropItem> arrivals = newItems;
    {
        const Operation operation(*this);
        m_items.append(arrivals);
        m_index.invalidate();
        publishItems();
        m_selection.reserve(m_selection.size() + arrivals.size());
        for (const DropItem &item : arrivals)
            m_selection.insert(item.id());
        focus(count() - 1);
        setState(ShelfState::Occupied);
    }
    startLoading(arrivals);
    return true;
}

void ShelfStore::ejected(int index, bool keep)
{
    if (keep)
        m_feedback.show({Message::Kind::Kept});
    else
        // The program that took the drop may still be reading the spooled file.
        discard(index, false);
}

void ShelfStore::ejected(const QList<QUuid> &ids, bool keep)
{
    if (keep) {
        m_feedback.show({Message::Kind::Kept});
        return;
    }
    discardEach(ids, false);
}

void ShelfStore::removeSelected()
{
    QList<QUuid> leaving;
    leaving.reserve(m_selection.size());
    for (const DropItem &item : std::as_const(m_items)) {
        if (m_selection.contains(item.id()))
            leaving << item.id();
    }
    discardEach(leaving, true);
}

void ShelfStore::discardEach(const QList<QUuid> &ids, bool deletingSpoolFiles)
{
    // A copy: an observer may change the caller's list.
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
    const QList<QUuid> leaving = ids;
    if (leaving.isEmpty())
        return;
    const Operation operation(*this);
    for (const QUuid &id : leaving) {
        if (const auto index = indexOf(id))
            discard(*index, deletingSpoolFiles);
    }
}

void ShelfStore::clearAll()
{
    const Operation operation(*this);
    for (const DropItem &item : std::as_const(m_items))
        tellLeft(item, true);
    if (!m_items.isEmpty())
        m_lastThatLeft = m_items.back().title();
    setItems({});
    m_selection.clear();
    becomeEmpty();
}

void ShelfStore::discard(int index, bool deletingSpoolFile)
{
    if (index < 0 || index >= count())
        return;
    const Operation operation(*this);
    const DropItem item = m_items.takeAt(index);
    m_lastThatLeft = item.title();
    m_index.removed(item.id());
    m_thumbnails.cancel(item.id());
    publishItems();
    m_selection.remove(item.id());
    tellLeft(item, deletingSpoolFile);
    if (m_items.isEmpty())
        becomeEmpty();
    else
        focus(std::min(count() - 1, index));
}

void ShelfStore::tellLeft(const DropItem &item, bool deletingFiles) const
{
    const auto *file = std::get_if<DropItem::File>(&item.payload());
    if (deletingFiles && item.isSpooled() && file)
        m_spool.discard(file->url);
    if (onLeft)
        onLeft(item.id(), deletingFiles);
}

void ShelfStore::becomeEmpty()
{
    m_isViewAllOpen = false;
    m_focusedIndex = 0;
    m_scrollOffset = 0;
    setState(ShelfState::Idle);
}

void ShelfStore::focus(int index)
{
    if (m_items.isEmpty())
        return;
    m_focusedIndex = std::min(count() - 1, std::max(index, 0));
    int offset = std::min(m_focusedIndex, m_scrollOffset);
    // The first item is in view at the beginning, however many are. Reading the setting would take
    // longer than all the rest, for each of the thousands that may be removed from there.
    if (m_focusedIndex > 0) {
        const int inView = m_settings.inViewCount();
        if (m_focusedIndex >= offset + inView)
            offset = m_focusedIndex - inView + 1;
        offset = std::min(lastOffset(inView), offset);
    }
    m_scrollOffset = offset;
    publishItems();
}

int ShelfStore::lastOffset(int inView) const
{
    return std::max(count() - inView, 0);
}

void ShelfStore::scrollBy(int steps)
{
    const int last = lastOffset(m_settings.inViewCount());
    const int offset = std::clamp(checkedAdd(m_scrollOffset, steps), 0, last);
    if (std::exchange(m_scrollOffset, offset) != offset)
        publishItems();
}

void ShelfStore::inViewCountChanged()
{
    m_scrollOffset = std::min(m_scrollOffset, lastOffset(m_settings.inViewCount()));
    publishItems();
}

void ShelfStore::toggleSelection(const DropItem &item)
{
    if (!m_selection.remove(item.id()))
        m_selection.insert(item.id());
    publishItems();
}

void ShelfStore::toggleSelectAll()
{
    const bool isEverythingSelected = !m_items.isEmpty() && m_selection.size() == m_items.size();
    m_selection.clear();
    if (!isEverythingSelected) {
        m_selection.reserve(m_items.size());
        for (const DropItem &item : std::as_const(m_items))
            m_selection.insert(item.id());
    }
    publishItems();
}

void ShelfStore::toggleManually()
{
    if (m_state == ShelfState::Occupied)
        setState(ShelfState::Idle);
    else if (!m_items.isEmpty())
        setState(ShelfState::Occupied);
    else
        setState(m_state == ShelfState::Idle ? ShelfState::Expanded : ShelfState::Idle);
}

void ShelfStore::toggleViewAll()
{
    if (!m_isViewAllOpen && m_items.size() < 2)
        return;
    m_isViewAllOpen = !m_isViewAllOpen;
    publishItems();
}

void ShelfStore::closeViewAll()
{
    if (std::exchange(m_isViewAllOpen, false))
        publishItems();
}

void ShelfStore::dragBegan()
{
    m_isDragInFlight = true;
    if (m_state == ShelfState::Idle)
        setState(ShelfState::Expanded);
    else
        publishItems();
}

void ShelfStore::ownDragChanged(bool isOwn)
{
    if (std::exchange(m_isOwnDrag, isOwn) == isOwn)
        return;
    if (onOwnDragChanged)
        onOwnDragChanged(isOwn);
    publishItems();
}

void ShelfStore::dragEnded()
{
    m_isDragInFlight = false;
    if (m_state == ShelfState::Expanded)
        setState(m_items.isEmpty() ? ShelfState::Idle : ShelfState::Occupied);
    else
        publishItems();
}

} // namespace corvane
