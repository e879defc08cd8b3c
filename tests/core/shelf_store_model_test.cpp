// The store beside its model: whatever is done, both publish the same, in the same order.

#include "core/feedback.h"
#include "core/settings.h"
#include "core/shelf_store.h"
#include "core/shelf_store_model.h"
#include "core/temporary_spool.h"
#include "fakes/fake_login_items.h"
#include "fakes/memory_user_defaults.h"
#include "fakes/random_steps.h"
#include "fakes/recording_sources.h"

#include <QImage>

#include <gtest/gtest.h>

#include <array>

namespace corvane::test {

namespace {

using Kind = ShelfStoreModel::Kind;

Image picture(int width)
{
    QImage bitmap(width, 1, QImage::Format_ARGB32_Premultiplied);
    return {bitmap, {1, 1}};
}

struct NamedThumbnails : RecordingThumbnails {
    void generateForFile(const QUuid &item, const QUrl &url, Completion completion) override
    {
        wanted << item;
        RecordingThumbnails::generateForFile(item, url, std::move(completion));
    }
    void generateForImageData(const QUuid &item, const QByteArray &data,
                              Completion completion) override
    {
        wanted << item;
        RecordingThumbnails::generateForImageData(item, data, std::move(completion));
    }

    QList<QUuid> wanted;
};

class StoreAndModel : TemporarySpool {
public:
    explicit StoreAndModel(RandomSteps & /*steps*/)
    {
        feedback.handler = [this](const Message &message) {
            log << QStringLiteral("message ") + message.text();
        };
        store.observeItems([this](const QList<DropItem> &items) {
            EXPECT_EQ(items.size(), store.items().size());
            log << QStringLiteral("items ") + whole();
        });
        store.observeState([this](ShelfState from, ShelfState to) {
            EXPECT_EQ(to, store.state());
            log << QStringLiteral("state from %1: ").arg(static_cast<int>(from)) + whole();
        });
        store.onLeft = [this](const QUuid &id, bool deletingFiles) {
            log << QStringLiteral("left ") + titles.value(id) + QString::number(deletingFiles);
        };
        store.observeEndOfOperation([this] { log << QStringLiteral("end"); });
    }

    void step(RandomSteps &steps)
    {
        static constexpr std::array<WeightedStep<StoreAndModel>, 20> table{{
            {12, &StoreAndModel::accept},          {6, &StoreAndModel::focus},
            {6, &StoreAndModel::discard},          {4, &StoreAndModel::eject},
            {3, &StoreAndModel::ejectSeveral},     {2, &StoreAndModel::removeSelected},
            {1, &StoreAndModel::clearAll},         {6, &StoreAndModel::toggleSelection},
            {4, &StoreAndModel::toggleSelectAll},  {4, &StoreAndModel::toggleManually},
            {3, &StoreAndModel::toggleViewAll},    {2, &StoreAndModel::closeViewAll},
            {3, &StoreAndModel::dragBegins},       {3, &StoreAndModel::dragEnds},
            {3, &StoreAndModel::ownDragChanges},   {4, &StoreAndModel::scroll},
            {2, &StoreAndModel::changeInView},     {1, &StoreAndModel::changeLinkPreviews},
            {6, &StoreAndModel::thumbnailArrives}, {4, &StoreAndModel::previewArrives},
        }};
        playOneOf(*this, steps, table);
        compare();
    }

private:
    QString whole() const
    {
        QStringList texts;
        for (const DropItem &item : store.items()) {
            const auto thumbnail = item.thumbnail();
            texts << ShelfStoreModel::itemText(item.title(), item.subtitle(),
                                               thumbnail ? thumbnail->bitmap.width() : 0,
                                               store.selection().contains(item.id()));
        }
        return texts.join(u' ')
            + ShelfStoreModel::stateText(store.focusedIndex(), store.scrollOffset(), store.state(),
                                         store.selection().size(), store.isViewAllOpen(),
                                         {store.isDragInFlight(), store.isOwnDrag()}, store.pace());
    }

    void compare()
    {
        ASSERT_EQ(lines(log), lines(model.log));
        ASSERT_EQ(whole().toStdString(), model.whole(PublicationPace::AtOnce).toStdString());
        ASSERT_EQ(thumbnails.wanted, model.thumbnailsWanted);
        ASSERT_EQ(thumbnails.cancelled, model.thumbnailsUnwanted);
        ASSERT_EQ(static_cast<qsizetype>(linkPreviews.requests.size()),
                  model.previewsWanted.size());
        compareWhatIsRead();
        for (const auto &[id, url] : spooled.asKeyValueRange())
            ASSERT_EQ(exists(url), !model.filesDeleted.contains(id)) << qPrintable(titles[id]);
        for (qsizetype i = 0; i < model.previewsWanted.size(); ++i)
            ASSERT_EQ(linkPreviews.requests[static_cast<std::size_t>(i)].isWanted(),
                      model.linkPreviews && model.find(model.previewsWanted[i]) >= 0);
        log.clear();
        model.log.clear();
    }

    void compareWhatIsRead()
    {
        QStringList visible;
        for (const auto &[index, item] : store.visibleItems())
            visible << QString::number(index) + item.title();
        ASSERT_EQ(lines(visible), lines(model.visible()));
        QList<QUuid> selected;
        for (const DropItem &item : store.selectedItems())
            selected << item.id();
        QList<QUuid> modelSelected;
        for (const auto &item : model.items) {
            ASSERT_EQ(store.indexOf(item.id), model.find(item.id));
            if (model.selection.contains(item.id))
                modelSelected << item.id;
        }
        ASSERT_EQ(selected, modelSelected);
        const auto focused = store.focusedItem();
        ASSERT_EQ(focused.has_value(), !model.items.isEmpty());
        if (focused.has_value()) {
            ASSERT_EQ(focused->id(), model.items[model.focused].id);
        }
    }

    DropItem make(Kind kind)
    {
        const QString name = QStringLiteral("i%1").arg(++made);
        const QUrl nowhere(QStringLiteral("file:///nowhere/") + name);
        switch (kind) {
        case Kind::Text:
            return {DropItem::Text{name}, name, {}, false};
        case Kind::Link:
            return {DropItem::Link{QUrl(QStringLiteral("https://host/") + name)}, name, {}, false};
        case Kind::Image:
            return {
                DropItem::ImageBytes{"x", UTType(QStringLiteral("image/png"))}, name, {}, false};
        case Kind::File:
            return {DropItem::File{nowhere}, name, {}, false};
        case Kind::SpooledFile:
            return {DropItem::File{*spool.store("x", name, QStringLiteral("png"))}, name, {}, true};
        }
        return {DropItem::Text{name}, name, {}, false};
    }

    void accept(RandomSteps &steps)
    {
        QList<DropItem> arrivals;
        QList<ShelfStoreModel::Item> modelArrivals;
        for (int left = steps.below(5); left > 0; --left) {
            const auto kind = steps.oneOf(
                {Kind::Text, Kind::Link, Kind::Image, Kind::File, Kind::File, Kind::SpooledFile});
            const DropItem item = make(kind);
            titles.insert(item.id(), item.title());
            if (kind == Kind::SpooledFile)
                spooled.insert(item.id(), std::get<DropItem::File>(item.payload()).url);
            arrivals << item;
            modelArrivals << ShelfStoreModel::Item{item.id(),    kind, item.title(),
                                                   item.title(), {},   0};
        }
        steps.note(QStringLiteral("accept %1").arg(arrivals.size()));
        EXPECT_EQ(store.accept(arrivals), model.accept(modelArrivals));
    }
    /// Sometimes beside the list.
    int anyIndex(RandomSteps &steps) const { return steps.below(model.count() + 3) - 1; }
    /// Most of them on the shelf; in any order, some of them twice.
    QList<QUuid> someIds(RandomSteps &steps) const
    {
        QList<QUuid> ids;
        for (int left = steps.below(4); left > 0; --left) {
            const bool isUnknown = model.items.isEmpty() || steps.oneIn(5);
            ids << (isUnknown ? unknown.id() : steps.oneOf(model.items).id);
        }
        return ids;
    }
    void focus(RandomSteps &steps)
    {
        const int index = anyIndex(steps);
        steps.note(QStringLiteral("focus %1").arg(index));
        store.focus(index);
        model.focus(index);
    }
    void discard(RandomSteps &steps)
    {
        const int index = anyIndex(steps);
        const bool deleting = steps.oneIn(2);
        steps.note(QStringLiteral("discard %1, deleting %2").arg(index).arg(deleting));
        store.discard(index, deleting);
        model.discard(index, deleting);
    }
    void eject(RandomSteps &steps)
    {
        const int index = anyIndex(steps);
        const bool keep = steps.oneIn(3);
        steps.note(QStringLiteral("eject %1, keep %2").arg(index).arg(keep));
        store.ejected(index, keep);
        model.ejected(index, keep);
    }
    void ejectSeveral(RandomSteps &steps)
    {
        const QList<QUuid> ids = someIds(steps);
        const bool keep = steps.oneIn(3);
        steps.note(QStringLiteral("eject %1 ids, keep %2").arg(ids.size()).arg(keep));
        store.ejected(ids, keep);
        model.ejected(ids, keep);
    }
    void removeSelected(RandomSteps &steps)
    {
        steps.note(QStringLiteral("removeSelected"));
        store.removeSelected();
        model.removeSelected();
    }
    void clearAll(RandomSteps &steps)
    {
        steps.note(QStringLiteral("clearAll"));
        store.clearAll();
        model.clearAll();
    }
    void toggleSelection(RandomSteps &steps)
    {
        const bool isUnknown = store.items().isEmpty() || steps.oneIn(15);
        const DropItem item = isUnknown ? unknown : steps.oneOf(store.items());
        steps.note(QStringLiteral("toggleSelection %1").arg(item.title()));
        store.toggleSelection(item);
        model.toggleSelection(item.id());
    }
    void toggleSelectAll(RandomSteps &steps)
    {
        steps.note(QStringLiteral("toggleSelectAll"));
        store.toggleSelectAll();
        model.toggleSelectAll();
    }
    void toggleManually(RandomSteps &steps)
    {
        steps.note(QStringLiteral("toggleManually"));
        store.toggleManually();
        model.toggleManually();
    }
    void toggleViewAll(RandomSteps &steps)
    {
        steps.note(QStringLiteral("toggleViewAll"));
        store.toggleViewAll();
        model.toggleViewAll();
    }
    void closeViewAll(RandomSteps &steps)
    {
        steps.note(QStringLiteral("closeViewAll"));
        store.closeViewAll();
        model.closeViewAll();
    }
    void dragBegins(RandomSteps &steps)
    {
        steps.note(QStringLiteral("drag begins"));
        store.dragBegan();
        model.dragBegan();
    }
    void dragEnds(RandomSteps &steps)
    {
        steps.note(QStringLiteral("drag ends"));
        store.dragEnded();
        model.dragEnded();
    }
    void ownDragChanges(RandomSteps &steps)
    {
        const bool isOwn = steps.oneIn(2);
        steps.note(QStringLiteral("own drag %1").arg(isOwn));
        store.ownDragChanged(isOwn);
        model.ownDragChanged(isOwn);
    }
    void scroll(RandomSteps &steps)
    {
        const int by = steps.below(9) - 4;
        steps.note(QStringLiteral("scroll by %1").arg(by));
        store.scrollBy(by);
        model.scrollBy(by);
    }
    void changeInView(RandomSteps &steps)
    {
        const int count = steps.oneOf({-5, 0, 1, 2, 3, 4, 5, 6, 7, 10});
        steps.note(QStringLiteral("in view %1").arg(count));
        defaults.setRaw(QStringLiteral("settings.inViewCount"), count);
        model.inView = std::min(std::max(count, 1), 6);
        // Whoever is to tell the store may do so after something else has happened.
        if (steps.oneIn(3))
            return;
        store.inViewCountChanged();
        model.inViewCountChanged();
    }
    void changeLinkPreviews(RandomSteps &steps)
    {
        model.linkPreviews = steps.oneIn(2);
        steps.note(QStringLiteral("link previews %1").arg(model.linkPreviews));
        settings.setLinkPreviews(model.linkPreviews);
    }
    /// Of any request ever made, so that some items are gone and others get another one.
    void thumbnailArrives(RandomSteps &steps)
    {
        if (thumbnails.requests.empty())
            return;
        const int request = steps.below(static_cast<int>(thumbnails.requests.size()));
        const int width = steps.oneIn(4) ? 0 : 1 + steps.below(50);
        steps.note(QStringLiteral("thumbnail %1 of request %2").arg(width).arg(request));
        thumbnails.requests[static_cast<std::size_t>(request)].completion(
            width == 0 ? std::nullopt : std::optional(picture(width)));
        model.thumbnailArrived(model.thumbnailsWanted[request], width);
    }
    void previewArrives(RandomSteps &steps)
    {
        if (linkPreviews.requests.empty())
            return;
        const int request = steps.below(static_cast<int>(linkPreviews.requests.size()));
        const auto &completion
            = linkPreviews.requests[static_cast<std::size_t>(request)].completion;
        if (steps.oneIn(5)) {
            steps.note(QStringLiteral("no preview of request %1").arg(request));
            return completion(std::nullopt);
        }
        const QString title = steps.oneIn(3) ? QString() : QStringLiteral("t%1").arg(++made);
        const QString site = steps.oneIn(2) ? QString() : QStringLiteral("s%1").arg(++made);
        const int width = steps.oneIn(2) ? 0 : 1 + steps.below(50);
        steps.note(QStringLiteral("preview '%1' '%2' %3 of request %4")
                       .arg(title, site)
                       .arg(width)
                       .arg(request));
        LinkPreview preview{title, site.isEmpty() ? std::nullopt : std::optional(site),
                            width == 0 ? std::nullopt : std::optional(picture(width))};
        completion(preview);
        model.previewArrived(model.previewsWanted[request], title,
                             site.isEmpty() ? QStringLiteral("host") : site, width);
    }

    MemoryUserDefaults defaults;
    FakeLoginItems loginItems;
    Settings settings{defaults, loginItems};
    NamedThumbnails thumbnails;
    RecordingLinkPreviews linkPreviews;
    Feedback feedback;
    ShelfStore store{settings, spool, thumbnails, linkPreviews, feedback};
    ShelfStoreModel model;
    QStringList log;
    int made = 0;
    /// As they were when the item was made.
    QHash<QUuid, QString> titles;
    QHash<QUuid, QUrl> spooled;
    const DropItem unknown{DropItem::Text{QStringLiteral("?")}, QStringLiteral("?"), {}, false};
};

} // namespace

TEST(ShelfStoreModel, PublishesTheSameWhateverIsDone)
{
    playAtRandom<StoreAndModel>(150, 80);
}

} // namespace corvane::test
