#pragma once

#include "core/feedback.h"
#include "core/settings.h"
#include "core/shelf_store.h"
#include "core/temporary_spool.h"
#include "fakes/fake_login_items.h"
#include "fakes/memory_user_defaults.h"
#include "fakes/recording_sources.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <limits>
#include <memory>

namespace corvane::test {

/// A store whose publications go into `log`: "items abc" by their titles, "state 0 2".
struct ShelfStoreTest : testing::Test, TemporarySpool {
    ShelfStoreTest()
    {
        feedback.handler = [this](const Message &message) { messages << message.text(); };
        store.observeItems([this](const QList<DropItem> &items) {
            log << QStringLiteral("items ") + joined(items);
        });
        store.observeState([this](ShelfState from, ShelfState to) {
            log << QStringLiteral("state %1 %2")
                       .arg(static_cast<int>(from))
                       .arg(static_cast<int>(to));
        });
    }

    static QString joined(const QList<DropItem> &items)
    {
        QString titles;
        for (const DropItem &item : items)
            titles += item.title();
        return titles;
    }
    QString titles() const { return joined(store.items()); }
    QString visible() const
    {
        QStringList shown;
        for (const auto &[index, item] : store.visibleItems())
            shown << QString::number(index) + item.title();
        return shown.join(QLatin1Char(' '));
    }

    static DropItem text(const char *title)
    {
        const QString string = QString::fromLatin1(title);
        return DropItem(DropItem::Text{string}, string, {}, false);
    }
    static DropItem link(const char *address)
    {
        const QString string = QString::fromLatin1(address);
        return DropItem(DropItem::Link{QUrl(string)}, string, QStringLiteral("old"), false);
    }
    DropItem file(const char *name) const
    {
        return DropItem(DropItem::File{temporary.write(name, "x")}, QString::fromLatin1(name), {},
                        false);
    }
    DropItem spooled(const QByteArray &contents)
    {
        const auto url = spool.store(contents, QStringLiteral("Image"), QStringLiteral("png"));
        return DropItem(DropItem::File{*url}, QStringLiteral("s"), {}, true);
    }
    static QUrl urlOf(const DropItem &item) { return std::get<DropItem::File>(item.payload()).url; }

    /// Accepts texts called "a", "b", "c" and so on.
    void fill(int count)
    {
        QList<DropItem> items;
        for (int i = 0; i < count; ++i)
            items << text(QByteArray(1, static_cast<char>('a' + i)).constData());
        store.accept(items);
    }

    MemoryUserDefaults defaults;
    FakeLoginItems loginItems;
    Settings settings{defaults, loginItems};
    RecordingThumbnails thumbnails;
    RecordingLinkPreviews linkPreviews;
    Feedback feedback;
    std::unique_ptr<ShelfStore> ownedStore
        = std::make_unique<ShelfStore>(settings, spool, thumbnails, linkPreviews, feedback);
    ShelfStore &store = *ownedStore;

    QStringList log;
    QStringList detail;
    QStringList messages;
};

} // namespace corvane::test
