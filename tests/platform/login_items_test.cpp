#include "platform/freedesktop/autostart_login_items.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace corvane::test {

namespace {

class LoginItemsTest : public testing::Test {
protected:
    LoginItemsTest()
    {
        QDir(folder).removeRecursively();
        QFile::remove(folder);
    }
    QString path() const { return folder + QLatin1String("/corvane.desktop"); }
    static QByteArray contents(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QByteArray entry() const { return contents(path()); }
    void write(const QByteArray &text) const
    {
        QDir().mkpath(folder);
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    QString folder = qEnvironmentVariable("XDG_CONFIG_HOME") + QLatin1String("/autostart");
    AutostartLoginItems items{QStringLiteral("/opt/my \"apps\"/100% $HOME\\corvane")};
};

} // namespace

TEST_F(LoginItemsTest, registersAndUnregisters)
{
    EXPECT_FALSE(items.isRegistered());
    EXPECT_FALSE(items.registerItem());
    EXPECT_TRUE(items.isRegistered());
    EXPECT_TRUE(entry().startsWith("[Desktop Entry]\n"));
    EXPECT_FALSE(items.unregisterItem());
    EXPECT_FALSE(items.isRegistered());
    EXPECT_FALSE(items.unregisterItem());
}

TEST_F(LoginItemsTest, quotesThePathOfTheProgram)
{
    EXPECT_FALSE(items.registerItem());
    EXPECT_TRUE(
        entry().contains("\nExec=\"/opt/my \\\\\"apps\\\\\"/100%% \\\\$HOME\\\\\\\\corvane\"\n"))
        << entry().constData();
}

TEST_F(LoginItemsTest, aHiddenEntryIsNotRegistered)
{
    write("[Desktop Entry]\nExec=corvane\nHidden=true\n");
    EXPECT_FALSE(items.isRegistered());
    EXPECT_FALSE(items.registerItem());
    EXPECT_TRUE(items.isRegistered());
    write("[Desktop Entry]\nHidden = false\n");
    EXPECT_TRUE(items.isRegistered());
}

TEST_F(LoginItemsTest, aLinkIsReplacedAndRemovedAndWhatItLeadsToIsLeftAlone)
{
    const QTemporaryDir elsewhere;
    const QString target = elsewhere.filePath(QStringLiteral("mine.desktop"));
    const QByteArray text = "[Desktop Entry]\nExec=somebody else's\n";
    write(text);
    ASSERT_TRUE(QFile::rename(path(), target));
    ASSERT_TRUE(QFile::link(target, path()));
    EXPECT_TRUE(items.isRegistered()) << "the desktop starts what it leads to";
    EXPECT_FALSE(items.registerItem());
    EXPECT_FALSE(QFileInfo(path()).isSymLink());
    EXPECT_TRUE(entry().contains("corvane"));
    EXPECT_EQ(contents(target), text);

    ASSERT_TRUE(QFile::remove(path()));
    ASSERT_TRUE(QFile::link(target, path()));
    EXPECT_FALSE(items.unregisterItem());
    EXPECT_FALSE(items.isRegistered());
    EXPECT_EQ(contents(target), text);
}

TEST_F(LoginItemsTest, aLinkThatLeadsNowhereIsNotRegisteredAndIsReplaced)
{
    QDir().mkpath(folder);
    ASSERT_TRUE(QFile::link(QStringLiteral("/nowhere/at-all.desktop"), path()));
    EXPECT_FALSE(items.isRegistered());
    EXPECT_FALSE(items.registerItem());
    EXPECT_TRUE(items.isRegistered());
    EXPECT_FALSE(items.unregisterItem());

    ASSERT_TRUE(QFile::link(QStringLiteral("/nowhere/at-all.desktop"), path()));
    EXPECT_FALSE(items.unregisterItem());
    EXPECT_FALSE(QFileInfo(path()).isSymLink());
}

TEST_F(LoginItemsTest, aPipeOfThatNameIsNotWaitedFor)
{
    QDir().mkpath(folder);
    ASSERT_EQ(::mkfifo(QFile::encodeName(path()).constData(), S_IRUSR | S_IWUSR), 0);
    EXPECT_FALSE(items.isRegistered());
    EXPECT_FALSE(items.registerItem());
    EXPECT_TRUE(items.isRegistered());
}

TEST_F(LoginItemsTest, aFolderOfThatNameIsSaidAndLeftAlone)
{
    QDir().mkpath(path());
    EXPECT_FALSE(items.isRegistered());
    EXPECT_TRUE(items.registerItem());
    EXPECT_TRUE(items.unregisterItem());
    EXPECT_TRUE(QFileInfo(path()).isDir());
}

TEST_F(LoginItemsTest, anotherProgramsEntryOfThatNameIsReplacedAsAWhole)
{
    write("[Desktop Entry]\nExec=somebody else's\nOnlyShowIn=Nowhere;\n");
    EXPECT_FALSE(items.registerItem());
    EXPECT_FALSE(entry().contains("somebody else's"));
    EXPECT_FALSE(entry().contains("OnlyShowIn"));
}

TEST_F(LoginItemsTest, onlyTheBeginningOfAnEndlessEntryIsRead)
{
    constexpr qsizetype large = 10'000'000;
    write(QByteArray(large, 'x') + "\nHidden=true\n");
    EXPECT_TRUE(items.isRegistered());
}

TEST_F(LoginItemsTest, saysWhatWentWrong)
{
    QFile inTheWay(folder);
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    const auto problem = items.registerItem();
    ASSERT_TRUE(problem);
    EXPECT_TRUE(problem->contains(folder)) << qPrintable(*problem);
}

} // namespace corvane::test
