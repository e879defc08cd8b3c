#include "app/commands/shelf_request_handler.h"
#include "fakes/asking_screen_locator.h"
#include "fakes/shelf_model.h"
#include "platform/system/file_url.h"

#include <gtest/gtest.h>

#include <optional>

namespace corvane::test {

namespace {

class ShelfRequestHandlerTest : public testing::Test, protected ShelfModel {
protected:
    ShelfRequestHandlerTest()
    {
        desk.preparation.onReady = [this](const DropItem &made) { store.becomeReady(made); };
        store.onLeft = [this](const QUuid &id, bool deletingFiles) {
            desk.savedPictures.itemLeft(id, deletingFiles);
        };
    }

    QByteArray pathOf(const QByteArray &name)
    {
        return file_url::nativePath(desk.writtenFile(name, "x"));
    }
    static QByteArray uri(const QByteArray &path)
    {
        return file_url::encoded(file_url::fromNativePath(path), path) + "\r\n";
    }
    int putAddresses(const QByteArray &list)
    {
        int count = -1;
        handler.put({ShelfDelivery::Kind::Addresses, list}, [&](int items) { count = items; });
        return count;
    }
    std::optional<int> putText(const QByteArray &text)
    {
        std::optional<int> count;
        handler.put({ShelfDelivery::Kind::Text, text}, [&](int items) { count = items; });
        finishWork();
        return count;
    }
    void finishWork()
    {
        do {
            work.runAll();
            desk.work.runAll();
            desk.clock.runPending();
        } while (work.pendingCount() + desk.work.pendingCount() > 0);
    }
    QByteArray listed()
    {
        QByteArray entries;
        handler.list([&](const QByteArray &all) { entries = all; });
        return entries.replace('\0', '\n');
    }
    QByteArray takenBy(const QString &taker)
    {
        QByteArray entries;
        handler.take(taker, [&](const QByteArray &all) { entries = all; });
        return entries.replace('\0', '\n');
    }
    QStringList titles() const
    {
        QStringList all;
        for (const DropItem &item : store.items())
            all << item.title();
        return all;
    }

    ShelfRequestHandler::Context context(ScreenLocator &screenLocator)
    {
        return {.ingest = desk.ingest,
                .store = store,
                .screenLocator = screenLocator,
                .preparation = desk.preparation,
                .pictures = desk.savedPictures,
                .workQueue = work,
                .mainQueue = desk.clock,
                .perform =
                    [this](const QString &action) {
                        log << action + qEnvironmentVariable("XDG_ACTIVATION_TOKEN");
                        return action == QStringLiteral("known");
                    },
                .terminate = [this] { log << QStringLiteral("end"); }};
    }

    QStringList log;
    ShelfRequestHandler handler{context(locator)};
    const QString one = QStringLiteral(":1.1");
    const QString other = QStringLiteral(":1.2");
};

} // namespace

TEST_F(ShelfRequestHandlerTest, FilesAndLinksComeInTheirOrderAndOpenTheShelf)
{
    const QByteArray list = uri(pathOf("b")) + uri(pathOf("a")) + "https://x.example/p\r\n"
        + uri(pathOf("c")) + "https://y.example/q\r\nhttps://z.example/r\r\n";
    EXPECT_EQ(putAddresses(list), 6);
    EXPECT_EQ(titles(),
              (QStringList{QStringLiteral("b"), QStringLiteral("a"), QStringLiteral("/p"),
                           QStringLiteral("c"), QStringLiteral("/q"), QStringLiteral("/r")}));
    EXPECT_EQ(store.state(), ShelfState::Occupied);
    EXPECT_EQ(store.focusedIndex(), 5);
}

TEST_F(ShelfRequestHandlerTest, AHiddenShelfOpensOnceTheDesktopHasSaidWhereTheUserIs)
{
    AskingScreenLocator asking;
    ShelfRequestHandler asker(context(asking));
    const auto put = [&](const char *name) {
        asker.put({ShelfDelivery::Kind::Addresses, uri(pathOf(name))},
                  [this](int items) { log << QString::number(items); });
    };
    put("a");
    EXPECT_TRUE(asking.isAsked());
    EXPECT_TRUE(store.items().isEmpty());
    asking.answer(screen);
    EXPECT_EQ(log, QStringList{QStringLiteral("1")});
    EXPECT_EQ(store.state(), ShelfState::Occupied);
    put("b");
    EXPECT_FALSE(asking.isAsked()) << "it is shown already, and stays where it is";
    EXPECT_EQ(store.items().size(), 2);
}

TEST_F(ShelfRequestHandlerTest, TheSameFileTwiceIsTwoItems)
{
    const QByteArray file = uri(pathOf("a"));
    EXPECT_EQ(putAddresses(file + file), 2);
    EXPECT_EQ(putAddresses(file), 1);
    EXPECT_EQ(store.items().size(), 3);
}

TEST_F(ShelfRequestHandlerTest, WhatADropWouldNotBringIsNotTaken)
{
    EXPECT_EQ(putAddresses("mailto:a@b.example\r\nnonsense\r\n"), 0);
    EXPECT_EQ(putText(" \n"), 0);
    EXPECT_EQ(putText("\xff\xfe\xfd"), 0);
    EXPECT_TRUE(store.items().isEmpty());
    EXPECT_EQ(store.state(), ShelfState::Idle);
}

TEST_F(ShelfRequestHandlerTest, ATextStaysAsItIs)
{
    const QByteArray text = "\xc3\xa9 one\n two\n";
    EXPECT_EQ(putText(text), 1);
    EXPECT_EQ(std::get<DropItem::Text>(store.items().constFirst().payload()).string,
              QString::fromUtf8(text));
}

TEST_F(ShelfRequestHandlerTest, ALargeTextIsDecodedElsewhereAndComesWhole)
{
    const QByteArray text = QByteArray("0123456789\n").repeated(100'000);
    std::optional<int> count;
    handler.put({ShelfDelivery::Kind::Text, text}, [&](int items) { count = items; });
    EXPECT_FALSE(count);
    finishWork();
    EXPECT_EQ(count, 1);
    EXPECT_EQ(std::get<DropItem::Text>(store.items().constFirst().payload()).string.size(),
              text.size());
}

TEST_F(ShelfRequestHandlerTest, PathsAreListedByteByByteAndTextsAreNot)
{
    const QByteArray path = pathOf("plain");
    const QByteArray strange = file_url::nativePath(QUrl::fromLocalFile(desk.temporary.path()))
        + QByteArray("/\xff#%41 x");
    putText("text");
    putAddresses(uri(path) + uri(strange) + "https://x.example/%41?b#c\r\n");
    EXPECT_EQ(listed(), path + "\n" + strange + "\nhttps://x.example/A?b#c\n");
}

TEST_F(ShelfRequestHandlerTest, WhatIsTakenStaysUntilItsArrivalIsConfirmed)
{
    const QByteArray path = pathOf("a");
    putAddresses(uri(path));
    putText("text");
    EXPECT_EQ(takenBy(one), path + "\n");
    EXPECT_EQ(store.items().size(), 2);
    EXPECT_TRUE(handler.taken(one));
    EXPECT_EQ(titles(), QStringList{QStringLiteral("text")});
    EXPECT_FALSE(handler.taken(one));
    EXPECT_TRUE(QFile::exists(QString::fromUtf8(path)));
    EXPECT_EQ(takenBy(one), "");
}

TEST_F(ShelfRequestHandlerTest, NothingIsGivenToTwoTakersAndNothingIsLostWithOneThatLeaves)
{
    putAddresses(uri(pathOf("a")));
    const QByteArray first = takenBy(one);
    EXPECT_FALSE(first.isEmpty());
    EXPECT_EQ(takenBy(other), "");
    EXPECT_FALSE(handler.taken(other));
    handler.takerLeft(one);
    EXPECT_FALSE(handler.taken(one));
    EXPECT_EQ(takenBy(other), first);
    EXPECT_TRUE(handler.taken(other));
    EXPECT_TRUE(store.items().isEmpty());
}

TEST_F(ShelfRequestHandlerTest, WhatCameAfterItWasTakenStays)
{
    putAddresses(uri(pathOf("a")));
    takenBy(one);
    putAddresses(uri(pathOf("b")));
    EXPECT_TRUE(handler.taken(one));
    EXPECT_EQ(titles(), QStringList{QStringLiteral("b")});
}

TEST_F(ShelfRequestHandlerTest, AFileOfTheShelfsOwnIsThereForItsTakerAlsoIfItIsRemoved)
{
    const auto file
        = desk.spool.store(QByteArrayLiteral("x"), QStringLiteral("Image"), QStringLiteral("png"));
    ASSERT_TRUE(file);
    store.accept({DropItem(DropItem::File{*file}, QStringLiteral("Image.png"), {}, true)});
    EXPECT_EQ(takenBy(one), file_url::nativePath(*file) + "\n");
    store.clearAll();
    EXPECT_TRUE(QFile::exists(file->toLocalFile()));
    EXPECT_TRUE(handler.taken(one));
    EXPECT_TRUE(QFile::exists(file->toLocalFile()));
}

TEST_F(ShelfRequestHandlerTest, ActionsAreDoneByNameWithTheDesktopsPermission)
{
    EXPECT_TRUE(handler.act(QStringLiteral("known"), QStringLiteral(" token")));
    EXPECT_FALSE(handler.act(QStringLiteral("unknown"), {}));
    EXPECT_EQ(log, (QStringList{QStringLiteral("known token"), QStringLiteral("unknown")}));
    EXPECT_FALSE(qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"));
}

TEST_F(ShelfRequestHandlerTest, ItEndsAfterTheCallThatAskedForIt)
{
    EXPECT_TRUE(handler.act(QStringLiteral("quit"), {}));
    EXPECT_TRUE(log.isEmpty());
    desk.clock.runPending();
    EXPECT_EQ(log, QStringList{QStringLiteral("end")});
}

} // namespace corvane::test
