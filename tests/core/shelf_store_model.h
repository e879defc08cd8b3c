#pragma once

#include "core/publication_pace.h"
#include "core/shelf_state.h"

#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QUuid>

#include <algorithm>
#include <utility>

namespace corvane::test {

/// The store told in the plainest words, without loading, disk or speed: lists that are searched,
/// and a log of all that is published, each publication with the whole state as it was then.
struct ShelfStoreModel {
    enum class Kind { Text, Link, Image, File, SpooledFile };
    struct Item {
        QUuid id;
        Kind kind = Kind::Text;
        /// Its first title.
        QString name;
        QString title;
        QString subtitle;
        /// Tells one picture from the other; 0 for none.
        int thumbnail = 0;
    };

    /// How a publication is written down, here and for the real store.
    static QString itemText(const QString &title, const QString &subtitle, int thumbnail,
                            bool isSelected)
    {
        return QStringLiteral("%1/%2/%3%4")
            .arg(title, subtitle)
            .arg(thumbnail)
            .arg(isSelected ? QStringLiteral("*") : QString());
    }
    /// `drags` is what is told of them: in flight, and one of our own.
    static QString stateText(int focus, int offset, ShelfState state, qsizetype selected,
                             bool isViewAllOpen, std::pair<bool, bool> drags, PublicationPace pace)
    {
        return QStringLiteral(
                   " | focus %1, offset %2, state %3, %4 selected, bar %5, drags %6%7, pace %8")
            .arg(focus)
            .arg(offset)
            .arg(static_cast<int>(state))
            .arg(selected)
            .arg(isViewAllOpen)
            .arg(drags.first)
            .arg(drags.second)
            .arg(static_cast<int>(pace));
    }

    QString whole(PublicationPace pace) const
    {
        QStringList texts;
        for (const Item &item : items)
            texts << itemText(item.title, item.subtitle, item.thumbnail,
                              selection.contains(item.id));
        return texts.join(u' ')
            + stateText(focused, offset, state, selection.size(), isViewAllOpen,
                        {isDragInFlight, isOwnDrag}, pace);
    }
    PublicationPace pace() const
    {
        return isWithinOperation ? PublicationPace::WithinOperation : PublicationPace::AtOnce;
    }
    int count() const { return static_cast<int>(items.size()); }
    int find(const QUuid &id) const
    {
        for (int i = 0; i < count(); ++i) {
            if (items[i].id == id)
                return i;
        }
        return -1;
    }

    void publish() { log << QStringLiteral("items ") + whole(pace()); }
    void publishDetail() { log << QStringLiteral("items ") + whole(PublicationPace::Detail); }
    void changeState(ShelfState to)
    {
        const ShelfState from = state;
        state = to;
        if (from != to)
            log << QStringLiteral("state from %1: ").arg(static_cast<int>(from)) + whole(pace());
    }
    template<typename Work>
    void operation(Work work)
    {
        const bool isOutermost = !isWithinOperation;
        isWithinOperation = true;
        work();
        if (!isOutermost)
            return;
        isWithinOperation = false;
        log << QStringLiteral("end");
    }

    void focus(int index)
    {
        if (items.isEmpty())
            return;
        focused = std::min(count() - 1, std::max(index, 0));
        int first = std::min(focused, offset);
        if (focused >= first + inView)
            first = focused - inView + 1;
        offset = std::min(std::max(count() - inView, 0), std::max(first, 0));
        publish();
    }
    bool accept(const QList<Item> &arrivals)
    {
        if (arrivals.isEmpty())
            return false;
        operation([&] {
            items += arrivals;
            publish();
            for (const Item &item : arrivals)
                selection.insert(item.id);
            focus(count() - 1);
            changeState(ShelfState::Occupied);
        });
        for (const Item &item : arrivals) {
            if (item.kind == Kind::Link && linkPreviews)
                previewsWanted << item.id;
            if (item.kind != Kind::Link && item.kind != Kind::Text)
                thumbnailsWanted << item.id;
        }
        return true;
    }
    void discard(int index, bool deletingFile)
    {
        if (index < 0 || index >= count())
            return;
        operation([&] {
            const Item item = items.takeAt(index);
            thumbnailsUnwanted << item.id;
            publish();
            selection.remove(item.id);
            left(item, deletingFile);
            if (items.isEmpty())
                becomeEmpty();
            else
                focus(std::min(count() - 1, index));
        });
    }
    void left(const Item &item, bool deletingFile)
    {
        if (deletingFile && item.kind == Kind::SpooledFile)
            filesDeleted << item.id;
        log << QStringLiteral("left ") + item.name + QString::number(deletingFile);
    }
    void becomeEmpty()
    {
        isViewAllOpen = false;
        focused = 0;
        offset = 0;
        changeState(ShelfState::Idle);
    }
    void ejected(int index, bool keep)
    {
        if (keep)
            log << QStringLiteral("message Kept on the shelf");
        else
            discard(index, false);
    }
    void ejected(const QList<QUuid> &ids, bool keep)
    {
        if (keep)
            log << QStringLiteral("message Kept on the shelf");
        else if (!ids.isEmpty())
            discardEach(ids, false);
    }
    void discardEach(const QList<QUuid> &ids, bool deletingFiles)
    {
        operation([&] {
            for (const QUuid &id : ids)
                discard(find(id), deletingFiles);
        });
    }
    void removeSelected()
    {
        QList<QUuid> selected;
        for (const Item &item : items) {
            if (selection.contains(item.id))
                selected << item.id;
        }
        if (!selected.isEmpty())
            discardEach(selected, true);
    }
    void clearAll()
    {
        operation([&] {
            for (const Item &item : items)
                left(item, true);
            for (const Item &item : items)
                thumbnailsUnwanted << item.id;
            items.clear();
            publish();
            selection.clear();
            becomeEmpty();
        });
    }
    void toggleSelection(const QUuid &id)
    {
        if (selection.contains(id))
            selection.remove(id);
        else
            selection.insert(id);
        publish();
    }
    void toggleSelectAll()
    {
        const bool isAll = !items.isEmpty() && selection.size() == items.size();
        selection.clear();
        for (const Item &item : items) {
            if (!isAll)
                selection.insert(item.id);
        }
        publish();
    }
    void toggleManually()
    {
        if (state == ShelfState::Occupied)
            changeState(ShelfState::Idle);
        else if (!items.isEmpty())
            changeState(ShelfState::Occupied);
        else
            changeState(state == ShelfState::Idle ? ShelfState::Expanded : ShelfState::Idle);
    }
    void toggleViewAll()
    {
        if (!isViewAllOpen && count() < 2)
            return;
        isViewAllOpen = !isViewAllOpen;
        publish();
    }
    void closeViewAll()
    {
        if (!isViewAllOpen)
            return;
        isViewAllOpen = false;
        publish();
    }
    void scrollBy(int steps)
    {
        const int before = offset;
        offset = std::min(std::max(count() - inView, 0), std::max(offset + steps, 0));
        if (offset != before)
            publish();
    }
    void inViewCountChanged()
    {
        offset = std::min(offset, std::max(count() - inView, 0));
        publish();
    }
    void ownDragChanged(bool isOwn)
    {
        if (isOwnDrag == isOwn)
            return;
        isOwnDrag = isOwn;
        publish();
    }
    void dragBegan()
    {
        isDragInFlight = true;
        if (state == ShelfState::Idle)
            changeState(ShelfState::Expanded);
        else
            publish();
    }
    void dragEnded()
    {
        isDragInFlight = false;
        if (state == ShelfState::Expanded)
            changeState(items.isEmpty() ? ShelfState::Idle : ShelfState::Occupied);
        else
            publish();
    }
    void thumbnailArrived(const QUuid &id, int thumbnail)
    {
        const int index = find(id);
        if (index < 0 || thumbnail == 0)
            return;
        items[index].thumbnail = thumbnail;
        publishDetail();
    }
    /// `site` is what stands below the title once there is one.
    void previewArrived(const QUuid &id, const QString &title, const QString &site, int thumbnail)
    {
        const int index = find(id);
        if (index < 0)
            return;
        if (!title.isEmpty()) {
            items[index].title = title;
            publishDetail();
            items[index].subtitle = site;
            publishDetail();
        }
        thumbnailArrived(id, thumbnail);
    }
    QStringList visible() const
    {
        QStringList shown;
        const int start = std::min(std::max(count() - 1, 0), offset);
        for (int i = start; i < std::min(start + inView, count()); ++i)
            shown << QString::number(i) + items[i].title;
        return shown;
    }

    QList<Item> items;
    int focused = 0;
    int offset = 0;
    ShelfState state = ShelfState::Idle;
    QSet<QUuid> selection;
    bool isViewAllOpen = false;
    bool isDragInFlight = false;
    bool isOwnDrag = false;
    bool isWithinOperation = false;
    int inView = 1;
    bool linkPreviews = true;

    QStringList log;
    /// In the order in which they were asked for.
    QList<QUuid> thumbnailsWanted;
    QList<QUuid> thumbnailsUnwanted;
    QList<QUuid> previewsWanted;
    QList<QUuid> filesDeleted;
};

} // namespace corvane::test
