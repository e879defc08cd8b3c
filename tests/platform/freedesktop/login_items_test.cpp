#include "platform/freedesktop/autostart_login_items.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
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
        QFile file(program);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    }
    ~LoginItemsTest() override
    {
        for (const char *name : {"APPIMAGE", "APPDIR", "XDG_CURRENT_DESKTOP"})
            qunsetenv(name);
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
    QTemporaryDir programs;
    QString program = programs.filePath(QStringLiteral("\"100%\" $HOME\\corvane"));
    AutostartLoginItems items{program};
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

TEST_F(LoginItemsTest, theEntryHasThePictureAndTheWordsThatDesktopsListItWith)
{
    QGuiApplication::setDesktopFileName(QStringLiteral("org.example.Program"));
    EXPECT_FALSE(items.registerItem());
    QGuiApplication::setDesktopFileName({});
    EXPECT_TRUE(entry().contains("\nIcon=org.example.Program\n")) << entry().constData();
    EXPECT_TRUE(entry().contains("\nComment=A shelf at the top of the screen for what you drag\n"))
        << entry().constData();
}

TEST_F(LoginItemsTest, quotesThePathOfTheProgram)
{
    AutostartLoginItems odd(QStringLiteral("/opt/my \"apps\"/100% $HOME\\corvane"));
    EXPECT_FALSE(odd.registerItem());
    EXPECT_TRUE(
        entry().contains("\nExec=\"/opt/my \\\\\"apps\\\\\"/100%% \\\\$HOME\\\\\\\\corvane\"\n"))
        << entry().constData();
}

TEST_F(LoginItemsTest, aHiddenEntryIsNotRegistered)
{
    write("[Desktop Entry]\nExec=true\nHidden=true\n");
    EXPECT_FALSE(items.isRegistered());
    EXPECT_FALSE(items.registerItem());
    EXPECT_TRUE(items.isRegistered());
    write("[Desktop Entry]\nExec=true\nHidden = false\n");
    EXPECT_TRUE(items.isRegistered());
}

TEST_F(LoginItemsTest, anEntryThatAnotherProgramSwitchedOffIsNotRegistered)
{
    for (const char *line : {"X-GNOME-Autostart-enabled=false", "X-GNOME-Autostart-enabled = False",
                             "X-MATE-Autostart-enabled=false", "Hidden=True", "Hidden=1"}) {
        write("[Desktop Entry]\nExec=true\n" + QByteArray(line) + '\n');
        EXPECT_FALSE(items.isRegistered()) << line;
        EXPECT_FALSE(items.registerItem());
        EXPECT_TRUE(items.isRegistered()) << "switched on again after " << line;
    }
    write("[Desktop Entry]\nExec=true\nX-GNOME-Autostart-enabled=true\n");
    EXPECT_TRUE(items.isRegistered());
}

TEST_F(LoginItemsTest, whatOtherGroupsOfTheEntrySayCountsForNothing)
{
    write("[Desktop Entry]\nExec=true\n[Desktop Action off]\nHidden=true\n");
    EXPECT_TRUE(items.isRegistered());
    write("[Something]\nExec=true\n");
    EXPECT_FALSE(items.isRegistered());
}

TEST_F(LoginItemsTest, anEntryForOtherDesktopsIsNotRegistered)
{
    qputenv("XDG_CURRENT_DESKTOP", "ubuntu:GNOME");
    for (const char *line : {"OnlyShowIn=KDE;XFCE;", "NotShowIn=KDE;GNOME;"}) {
        write("[Desktop Entry]\nExec=true\n" + QByteArray(line) + '\n');
        EXPECT_FALSE(items.isRegistered()) << line;
    }
    for (const char *line : {"OnlyShowIn=KDE;GNOME", "NotShowIn=KDE;"}) {
        write("[Desktop Entry]\nExec=true\n" + QByteArray(line) + '\n');
        EXPECT_TRUE(items.isRegistered()) << line;
    }
}

TEST_F(LoginItemsTest, anEntryWhoseProgramIsGoneIsNotRegistered)
{
    EXPECT_FALSE(items.registerItem());
    EXPECT_TRUE(items.isRegistered());
    ASSERT_TRUE(QFile::remove(program));
    EXPECT_FALSE(items.isRegistered());
    for (const char *lines : {"Name=Corvane", "Exec=", "Exec=\"true", "Exec=/nowhere/at-all",
                              "Exec=true\nTryExec=nowhere-at-all"}) {
        write("[Desktop Entry]\n" + QByteArray(lines) + '\n');
        EXPECT_FALSE(items.isRegistered()) << lines;
    }
    write("[Desktop Entry]\nExec=true --hidden\nTryExec=true\n");
    EXPECT_TRUE(items.isRegistered());
}

TEST_F(LoginItemsTest, theFileOfAnotherProgramsAppImageIsNotWritten)
{
    qputenv("APPIMAGE", "/home/somebody/Terminal.AppImage");
    const QByteArray ours = "Exec=\"" + QCoreApplication::applicationFilePath().toUtf8() + "\"\n";
    for (const QByteArray &mount : {QByteArray("/tmp/.mount_Terminal"), QByteArray(),
                                    QByteArray("/"), QFile::encodeName(programs.path())}) {
        qputenv("APPDIR", mount);
        EXPECT_FALSE(AutostartLoginItems().registerItem());
        EXPECT_TRUE(entry().contains(ours)) << entry().constData();
    }
}

TEST_F(LoginItemsTest, theFileOfTheAppImageThatItRunsFromIsWritten)
{
    qputenv("APPIMAGE", "/home/somebody/Corvane.AppImage");
    qputenv("APPDIR", QFile::encodeName(QCoreApplication::applicationDirPath()));
    EXPECT_FALSE(AutostartLoginItems().registerItem());
    EXPECT_TRUE(entry().contains("Exec=\"/home/somebody/Corvane.AppImage\"\n"))
        << entry().constData();
}

TEST_F(LoginItemsTest, aLinkIsReplacedAndRemovedAndWhatItLeadsToIsLeftAlone)
{
    const QTemporaryDir elsewhere;
    const QString target = elsewhere.filePath(QStringLiteral("mine.desktop"));
    const QByteArray text = "[Desktop Entry]\nExec=true somebody else\n";
    write(text);
    ASSERT_TRUE(QFile::rename(path(), target));
    ASSERT_TRUE(QFile::link(target, path()));
    EXPECT_TRUE(items.isRegistered()) << "the desktop starts what it leads to";
    EXPECT_FALSE(items.registerItem());
    EXPECT_FALSE(QFileInfo(path()).isSymLink());
    EXPECT_FALSE(entry().contains("somebody else"));
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
    write("[Desktop Entry]\nExec=true\n" + QByteArray(large, 'x') + "\nHidden=true\n");
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
