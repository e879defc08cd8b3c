#include "app/commands/native_paths.h"
#include "app/commands/start_wish.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <vector>

namespace corvane::test {

namespace {

/// Notes what is asked of it. Puts are finished when the test says so.
class NotingRequests : public ShelfRequests {
public:
    bool act(const QString &action, const QString &) override
    {
        log << action.toUtf8();
        return true;
    }
    void put(const ShelfDelivery &delivery, std::function<void(int)> done) override
    {
        log << (delivery.kind == ShelfDelivery::Kind::Text ? "text " : "addresses ")
                + delivery.bytes;
        waiting.push_back(std::move(done));
    }
    void list(Entries) override { }
    void take(const QString &, Entries) override { }
    bool taken(const QString &) override { return false; }
    void takerLeft(const QString &) override { }
    void end() override { }

    void finishPut()
    {
        const auto done = waiting.front();
        waiting.erase(waiting.begin());
        done(1);
    }

    QList<QByteArray> log;
    std::vector<std::function<void(int)>> waiting;
};

class StartWishTest : public testing::Test {
protected:
    StartWish wishOf(const QList<QByteArray> &arguments)
    {
        return {CommandLine::of(arguments), {folder, [this](qint64) { return input; }}};
    }
    /// All that it has done, one thing after the other.
    QList<QByteArray> fulfilled(const QList<QByteArray> &arguments)
    {
        NotingRequests requests;
        wishOf(arguments).fulfil(requests);
        while (!requests.waiting.empty())
            requests.finishPut();
        return requests.log;
    }
    void makeFile(const QByteArray &name)
    {
        const QByteArray path = folder + "/" + name;
        std::FILE *const file = std::fopen(path.constData(), "w");
        ASSERT_NE(file, nullptr);
        std::fclose(file);
    }

    QTemporaryDir temporary;
    QByteArray folder = native_paths::absolute(temporary.path().toUtf8(), {});
    std::optional<QByteArray> input = "typed";
};

} // namespace

TEST_F(StartWishTest, FilesAreAddressesWithTheirExactBytes)
{
    const QByteArray name = "\xff#%41 x\ny";
    makeFile(name);
    const QList<QByteArray> done = fulfilled({name});
    ASSERT_EQ(done.size(), 1);
    EXPECT_EQ(done.front(),
              "addresses file://" + folder.toPercentEncoding("/") + "/%FF%23%2541%20x%0Ay\r\n");
}

TEST_F(StartWishTest, FilesAndLinksAreHandedOverInTheirOrder)
{
    makeFile("b");
    makeFile("a");
    EXPECT_EQ(fulfilled({"b", "https://x.example/", "a"}),
              QList<QByteArray>{"addresses file://" + folder + "/b\r\nhttps://x.example/\r\nfile://"
                                + folder + "/a\r\n"});
}

TEST_F(StartWishTest, ATextComesInItsPlaceAndIsWaitedFor)
{
    makeFile("a");
    makeFile("b");
    NotingRequests requests;
    StartWish wish = wishOf({"a", "-", "b"});
    wish.fulfil(requests);
    EXPECT_EQ(requests.log, QList<QByteArray>{"addresses file://" + folder + "/a\r\n"});
    requests.finishPut();
    ASSERT_EQ(requests.log.size(), 2);
    EXPECT_EQ(requests.log.back(), "text typed");
    requests.finishPut();
    ASSERT_EQ(requests.log.size(), 3);
    EXPECT_EQ(requests.log.back(), "addresses file://" + folder + "/b\r\n");
}

TEST_F(StartWishTest, AnAddressOfAFileIsThatFile)
{
    makeFile("a b");
    EXPECT_EQ(fulfilled({"file://" + folder + "/a%20b"}),
              QList<QByteArray>{"addresses file://" + folder + "/a%20b\r\n"});
}

TEST_F(StartWishTest, WhatIsNotThereIsSaidAndTheRestIsPut)
{
    makeFile("a");
    StartWish wish = wishOf({"nothing", "a", "file:///nowhere/b", "https://a\nb"});
    EXPECT_EQ(wish.problems(),
              (QList<QByteArray>{"there is no file nothing", "there is no file /nowhere/b",
                                 "this is no address: https://a\nb"}));
    EXPECT_FALSE(wish.isVain());
    EXPECT_TRUE(wishOf({"nothing"}).isVain());
}

TEST_F(StartWishTest, TextsThatAreNoneAreSaid)
{
    for (const auto &bad : {std::optional<QByteArray>("\xff\xfe\xfd"), std::optional<QByteArray>(),
                            std::optional<QByteArray>(" \n")}) {
        input = bad;
        const StartWish wish = wishOf({"-"});
        EXPECT_EQ(wish.problems().size(), 1);
        EXPECT_TRUE(wish.isVain());
    }
}

TEST_F(StartWishTest, OptionsAreActions)
{
    EXPECT_EQ(fulfilled({"--toggle"}), QList<QByteArray>{"toggle"});
    EXPECT_EQ(fulfilled({"--show-all"}), QList<QByteArray>{"show-all"});
    EXPECT_EQ(fulfilled({"--preferences"}), QList<QByteArray>{"preferences"});
    EXPECT_TRUE(fulfilled({}).isEmpty());
    EXPECT_TRUE(wishOf({}).isPlain());
    EXPECT_FALSE(wishOf({"--toggle"}).isPlain());
    EXPECT_FALSE(wishOf({"--toggle"}).isVain());
}

TEST_F(StartWishTest, PathsLoseDotsAndSlashesAndNothingElse)
{
    EXPECT_EQ(native_paths::absolute("a", "/x"), "/x/a");
    EXPECT_EQ(native_paths::absolute("./a//b/.", "/x"), "/x/a/b");
    EXPECT_EQ(native_paths::absolute("a/", "/x"), "/x/a");
    EXPECT_EQ(native_paths::absolute("/", "/x"), "/");
    EXPECT_EQ(native_paths::absolute(".", "/x/y"), "/x/y");
    EXPECT_EQ(native_paths::absolute("a", ""), "");
    EXPECT_EQ(native_paths::absolute("", "/x"), "");
    EXPECT_EQ(native_paths::absolute("../\xff", folder),
              folder.left(folder.lastIndexOf('/')) + "/\xff");
}

TEST_F(StartWishTest, TheFolderAboveIsThatOfWhereALinkLeadsTo)
{
    ASSERT_TRUE(QDir(temporary.path()).mkpath(QStringLiteral("deep/inside")));
    ASSERT_TRUE(QFile::link(temporary.filePath(QStringLiteral("deep/inside")),
                            temporary.filePath(QStringLiteral("short"))));
    EXPECT_EQ(native_paths::absolute("short/../a", folder), folder + "/deep/a");
}

TEST_F(StartWishTest, AFileThatIsNamedLikeAnAddressComesFirst)
{
    ASSERT_TRUE(QDir(temporary.path()).mkpath(QStringLiteral("https:/x.example")));
    const QByteArray before = QDir::currentPath().toUtf8();
    ASSERT_EQ(::chdir(folder.constData()), 0);
    const auto done = fulfilled({"https://x.example"});
    ASSERT_EQ(::chdir(before.constData()), 0);
    EXPECT_EQ(done, QList<QByteArray>{"addresses file://" + folder + "/https%3A/x.example\r\n"});
}

TEST(NativePaths, OnlyWhatNamesASchemeIsAnAddress)
{
    for (const char *address : {"https://a", "HTTP://a", "file:/a", "sftp://h/a", "a+b-c.d://x"})
        EXPECT_TRUE(native_paths::isAddress(address)) << address;
    for (const char *path : {"a", "a:b", "mailto:a@b", "://a", "1a://b", "a b://c", "/https://a"})
        EXPECT_FALSE(native_paths::isAddress(path)) << path;
}

} // namespace corvane::test
