#include "platform/freedesktop/autostart_login_items.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

class LoginItemsTest : public testing::Test {
protected:
    LoginItemsTest()
    {
        QDir(folder).removeRecursively();
        QFile::remove(folder);
    }
    QByteArray entry() const
    {
        QFile file(folder + QLatin1String("/corvane.desktop"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void write(const QByteArray &text) const
    {
        QDir().mkpath(folder);
        QFile file(folder + QLatin1String("/corvane.desktop"));
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

TEST_F(LoginItemsTest, saysWhatWentWrong)
{
    QFile inTheWay(folder);
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    const auto problem = items.registerItem();
    ASSERT_TRUE(problem);
    EXPECT_TRUE(problem->contains(folder)) << qPrintable(*problem);
}

} // namespace corvane::test
