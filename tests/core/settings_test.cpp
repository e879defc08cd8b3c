#include "core/settings.h"
#include "fakes/fake_login_items.h"
#include "fakes/memory_user_defaults.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace corvane {
namespace {

const Shortcut defaultShortcut = {KeyPosition{2}, 768, QStringLiteral("D")};
const Shortcut other = {KeyPosition{9}, 4352, QStringLiteral("V")};

QString key(const char *name)
{
    return QString::fromLatin1(name);
}

struct SettingsTest : testing::Test {
    test::MemoryUserDefaults defaults;
    test::FakeLoginItems loginItems;
    Settings settings{defaults, loginItems};
};

TEST_F(SettingsTest, HasItsDefaultsFromTheStartWithoutStoringThem)
{
    EXPECT_TRUE(settings.autoShowOnDrag());
    EXPECT_TRUE(settings.autoCheckUpdates());
    EXPECT_TRUE(settings.linkPreviews());
    EXPECT_EQ(settings.inViewCount(), 1);
    EXPECT_FALSE(settings.seenWelcome());
    EXPECT_FALSE(settings.betaUpdates());
    EXPECT_FALSE(settings.keepItems());
    EXPECT_FALSE(defaults.boolForKey(key("settings.playFeedback")));
    EXPECT_TRUE(defaults.stored.isEmpty());
}

TEST_F(SettingsTest, TheNumberInViewHasADefaultBeforeItIsClamped)
{
    EXPECT_EQ(defaults.integerForKey(key("settings.inViewCount")), 1);
}

TEST_F(SettingsTest, KeepsEachSwitchUnderItsKey)
{
    settings.setAutoShowOnDrag(false);
    settings.setAutoCheckUpdates(false);
    settings.setLinkPreviews(false);
    settings.setSeenWelcome(true);
    settings.setBetaUpdates(true);
    settings.setKeepItems(true);
    EXPECT_EQ(defaults.stored.value(key("settings.autoShowOnDrag")), false);
    EXPECT_EQ(defaults.stored.value(key("settings.autoCheckUpdates")), false);
    EXPECT_EQ(defaults.stored.value(key("settings.linkPreviews")), false);
    EXPECT_EQ(defaults.stored.value(key("settings.seenWelcome")), true);
    EXPECT_EQ(defaults.stored.value(key("settings.betaUpdates")), true);
    EXPECT_EQ(defaults.stored.value(key("settings.keepItems")), true);
    EXPECT_TRUE(settings.keepItems());
    EXPECT_FALSE(settings.autoShowOnDrag() || settings.autoCheckUpdates());
    EXPECT_FALSE(settings.linkPreviews());
    EXPECT_TRUE(settings.seenWelcome());
}

TEST_F(SettingsTest, StoresTheNumberInViewClamped)
{
    const auto storedAfter = [this](qint64 count) {
        settings.setInViewCount(count);
        return defaults.integerForKey(key("settings.inViewCount"));
    };
    EXPECT_EQ(storedAfter(0), 1);
    EXPECT_EQ(storedAfter(-3), 1);
    EXPECT_EQ(storedAfter(9), 6);
    EXPECT_EQ(storedAfter(4), 4);
}

TEST_F(SettingsTest, TellsOfTheLayoutOnceForEachWriteEvenOfTheSameValue)
{
    int told = 0;
    settings.observeLayout([&] { ++told; });
    settings.setInViewCount(3);
    EXPECT_EQ(told, 1);
    settings.setInViewCount(3);
    EXPECT_EQ(told, 2);
}

TEST_F(SettingsTest, StoresTheNumberBeforeItTells)
{
    int seen = 0;
    settings.observeLayout([&] { seen = settings.inViewCount(); });
    settings.setInViewCount(5);
    EXPECT_EQ(seen, 5);
}

TEST_F(SettingsTest, TellsOfTheLayoutForNothingElse)
{
    int told = 0;
    settings.observeLayout([&] { ++told; });
    settings.setAutoShowOnDrag(false);
    settings.setAutoCheckUpdates(false);
    settings.setLinkPreviews(false);
    settings.setSeenWelcome(true);
    settings.setBetaUpdates(true);
    settings.setKeepItems(true);
    settings.setShortcut(other);
    settings.setViewAllShortcut(other);
    settings.setLaunchAtLogin(true);
    EXPECT_EQ(told, 0);
}

TEST_F(SettingsTest, ClampsANumberInViewThatSomebodyElseWrote)
{
    defaults.setRaw(key("settings.inViewCount"), 0);
    EXPECT_EQ(settings.inViewCount(), 1);
    defaults.setRaw(key("settings.inViewCount"), 10);
    EXPECT_EQ(settings.inViewCount(), 6);
    defaults.setRaw(key("settings.inViewCount"), QStringLiteral("garbage"));
    EXPECT_EQ(settings.inViewCount(), 1);
    defaults.setRaw(key("settings.inViewCount"), QStringLiteral("99999999999999999999"));
    EXPECT_EQ(settings.inViewCount(), 6);
}

TEST_F(SettingsTest, HasADefaultShortcutForTheShelfAlone)
{
    EXPECT_EQ(settings.shortcut(), defaultShortcut);
    EXPECT_EQ(settings.viewAllShortcut(), std::nullopt);
}

TEST_F(SettingsTest, KeepsShortcuts)
{
    settings.setShortcut(other);
    settings.setViewAllShortcut(defaultShortcut);
    EXPECT_EQ(settings.shortcut(), other);
    EXPECT_EQ(settings.viewAllShortcut(), defaultShortcut);
    EXPECT_EQ(defaults.dataForKey(key("settings.shortcut")), other.toJson());
    EXPECT_EQ(defaults.dataForKey(key("settings.viewAllShortcut")), defaultShortcut.toJson());
}

TEST_F(SettingsTest, TellsAClearedShortcutFromOneThatWasNeverSet)
{
    settings.setShortcut(std::nullopt);
    settings.setViewAllShortcut(std::nullopt);
    EXPECT_EQ(settings.shortcut(), std::nullopt);
    EXPECT_EQ(settings.viewAllShortcut(), std::nullopt);
    EXPECT_EQ(defaults.dataForKey(key("settings.shortcut")), QByteArray());
}

TEST_F(SettingsTest, ReadsABrokenShortcutAsNone)
{
    for (const QVariant &garbage :
         {QVariant(QByteArray("\xff\x00garbage", 9)), QVariant(QStringLiteral("Ctrl+D")),
          QVariant(7), QVariant(QStringList{QStringLiteral("{"), QStringLiteral("}")}),
          QVariant(QByteArray(R"({"keyCode":2,"modifiers":768})"))}) {
        defaults.setRaw(key("settings.shortcut"), garbage);
        defaults.setRaw(key("settings.viewAllShortcut"), garbage);
        EXPECT_EQ(settings.shortcut(), std::nullopt);
        EXPECT_EQ(settings.viewAllShortcut(), std::nullopt);
    }
}

TEST_F(SettingsTest, ChangesTheLoginItemAndStoresNothing)
{
    settings.setLaunchAtLogin(true);
    EXPECT_TRUE(loginItems.registered);
    settings.setLaunchAtLogin(false);
    EXPECT_FALSE(loginItems.registered);
    EXPECT_TRUE(defaults.stored.isEmpty());
}

QStringList logged;

TEST_F(SettingsTest, LogsALoginItemThatCannotBeChanged)
{
    logged.clear();
    const auto previous = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &line) { logged << line; });
    settings.setLaunchAtLogin(true);
    loginItems.error = QStringLiteral("The folder is \"read-only\".");
    settings.setLaunchAtLogin(false);
    qInstallMessageHandler(previous);
    EXPECT_EQ(logged,
              QStringList{QStringLiteral("[Corvane] Launch at login change failed: The folder is "
                                         "\"read-only\".")});
    EXPECT_TRUE(loginItems.registered);
    EXPECT_TRUE(defaults.stored.isEmpty());
}

} // namespace
} // namespace corvane
