#include "platform/desktop/stored_modifiers.h"
#include "platform/display.h"
#include "platform/freedesktop/shortcuts/kde_service.h"
#include "platform/freedesktop/shortcuts/kde_shortcuts.h"
#include "platform/freedesktop/shortcuts/super_shift.h"

#include <gtest/gtest.h>

#include <vector>

namespace corvane::test {

namespace {

using enum OptionalHotKeys::Presence;

constexpr int metaShift = static_cast<int>(Qt::META) | static_cast<int>(Qt::SHIFT);
constexpr int metaShiftD = metaShift | Qt::Key_D;
constexpr int metaShiftK = metaShift | Qt::Key_K;
constexpr KeyPosition keyK{40};

const auto toggle = QStringLiteral("toggle");
const auto viewAll = QStringLiteral("view-all");

std::vector<DesktopAction> kdeActions()
{
    return {{.id = 1,
             .name = toggle,
             .title = QStringLiteral("Toggle"),
             .command = QStringLiteral("corvane")},
            {.id = 2,
             .name = viewAll,
             .title = QStringLiteral("View all"),
             .command = QStringLiteral("corvane-all")}};
}

KeyName ansi(KeyPosition key, bool /*isShifted*/)
{
    const QString name = key == KeyPosition::D ? QStringLiteral("d")
        : key == keyK                          ? QStringLiteral("k")
                                               : QString();
    return {.text = name, .symbol = name};
}

class KdeShortcutsTest : public testing::Test {
protected:
    void start(int patience = KdeShortcuts::answerMilliseconds)
    {
        keys.emplace(KdeShortcuts::Component{KdeService::program(), QStringLiteral("Program")},
                     kdeActions(), ansi, patience);
        presence = keys->observePresence([this] { presences.push_back(keys->presence()); });
        keys->installHandler([this](const std::optional<HotKeyIdentifier> &pressed) {
            heard.push_back(pressed->id);
        });
    }
    /// The service is there.
    void startWithService()
    {
        kde.come();
        start();
        ASSERT_TRUE(eventually([this] { return keys->presence() == There; }));
    }
    Subscription take(KeyPosition key = KeyPosition::D, std::uint32_t id = 1)
    {
        auto [outcome, subscription]
            = keys->registerHotKey(key, superShift, {1, id},
                                   [this](const ShortcutOutcome &later) { told.push_back(later); });
        EXPECT_EQ(outcome, ShortcutOutcome::pending());
        return std::move(subscription);
    }
    bool becomes(const ShortcutOutcome &outcome)
    {
        const bool came = eventually([&] { return !told.empty() && told.back() == outcome; });
        told.clear();
        return came;
    }
    void belongsToAnother(int key)
    {
        kde.actions[{QStringLiteral("other"), QStringLiteral("thing")}].keys = {key};
    }

    KdeService kde;
    std::optional<KdeShortcuts> keys;
    std::vector<OptionalHotKeys::Presence> presences;
    std::vector<ShortcutOutcome> told;
    std::vector<std::uint32_t> heard;
    Subscription presence;
};

} // namespace

TEST_F(KdeShortcutsTest, freeKeysAreBoundInTheBackground)
{
    startWithService();
    const auto taken = take();
    EXPECT_TRUE(becomes(ShortcutOutcome::bound()));
    EXPECT_EQ(kde.action(toggle).keys, QList{metaShiftD});
    EXPECT_TRUE(kde.action(toggle).isPresent);
    EXPECT_TRUE(eventually([&] { return kde.action(toggle).wanted == QList{metaShiftD}; }));
}

TEST_F(KdeShortcutsTest, aPressIsToldOnceHoweverLongItIsHeld)
{
    startWithService();
    const auto taken = take();
    const auto other = take(keyK, 2);
    ASSERT_TRUE(eventually([&] { return told.size() == 2; }));
    kde.press(viewAll);
    kde.release(viewAll);
    kde.press(toggle);
    kde.press(toggle);
    kde.release(toggle);
    // Of the same name.
    kde.press(toggle, QStringLiteral("another.Program"));
    kde.release(toggle);
    kde.press(toggle);
    EXPECT_TRUE(eventually([&] { return heard.size() == 3; }));
    settle();
    EXPECT_EQ(heard, (std::vector<std::uint32_t>{2, 1, 1}));
}

TEST_F(KdeShortcutsTest, keysOfAnotherProgramAreRefused)
{
    belongsToAnother(metaShiftD);
    startWithService();
    const auto taken = take();
    EXPECT_TRUE(becomes(ShortcutOutcome::refused()));
    EXPECT_EQ(kde.action(toggle).wanted, QList<int>()) << "they are asked for again next time";
}

TEST_F(KdeShortcutsTest, keysThatNoKeyboardTypesAreRefusedAtOnce)
{
    startWithService();
    constexpr KeyPosition nothing{127};
    EXPECT_TRUE(keys->registerHotKey(nothing, superShift, {1, 1}, {}).outcome.isRefused());
}

TEST_F(KdeShortcutsTest, whatTheUserChoseInTheDesktopCountsUntilOthersAreAskedFor)
{
    kde.action(toggle) = {.keys = {metaShiftK}, .wanted = {metaShiftD}, .isFresh = false};
    startWithService();
    auto taken = take();
    EXPECT_TRUE(becomes(ShortcutOutcome::bound(QStringLiteral("Meta+Shift+K"))));
    EXPECT_TRUE(kde.action(toggle).isPresent);
    taken.end();
    taken = take(keyK);
    EXPECT_TRUE(becomes(ShortcutOutcome::bound()));
    EXPECT_TRUE(eventually([&] { return kde.action(toggle).wanted == QList{metaShiftK}; }));
}

TEST_F(KdeShortcutsTest, whatTheUserChoosesMeanwhileIsTold)
{
    startWithService();
    const auto taken = take();
    ASSERT_TRUE(becomes(ShortcutOutcome::bound()));
    kde.choose(toggle, {metaShiftK});
    EXPECT_TRUE(becomes(ShortcutOutcome::bound(QStringLiteral("Meta+Shift+K"))));
    kde.choose(toggle, {});
    EXPECT_TRUE(becomes(ShortcutOutcome::setInDesktop(QStringLiteral("corvane"))));
}

TEST_F(KdeShortcutsTest, keysThatTheUserTookAwayComeBackWhenTheyAreAskedForAnew)
{
    kde.action(toggle) = {.keys = {}, .wanted = {metaShiftD}, .isFresh = false};
    startWithService();
    auto taken = take();
    EXPECT_TRUE(becomes(ShortcutOutcome::setInDesktop(QStringLiteral("corvane"))));
    taken.end();
    taken = take();
    EXPECT_TRUE(becomes(ShortcutOutcome::bound()));
    EXPECT_EQ(kde.action(toggle).keys, QList{metaShiftD});
}

TEST_F(KdeShortcutsTest, keysThatAnotherActionGaveUpAreTakenFromIt)
{
    startWithService();
    auto first = take();
    ASSERT_TRUE(becomes(ShortcutOutcome::bound()));
    first.end();
    const auto second = take(KeyPosition::D, 2);
    EXPECT_TRUE(becomes(ShortcutOutcome::bound()));
    EXPECT_EQ(kde.action(viewAll).keys, QList{metaShiftD});
    EXPECT_EQ(kde.action(toggle).keys, QList<int>());
}

TEST_F(KdeShortcutsTest, keysThatTheUserGaveToAnotherActionStayThere)
{
    kde.action(viewAll) = {.keys = {metaShiftD}, .wanted = {metaShiftK}, .isFresh = false};
    startWithService();
    const auto second = take(keyK, 2);
    ASSERT_TRUE(becomes(ShortcutOutcome::bound(QStringLiteral("Meta+Shift+D"))));
    const auto first = take();
    EXPECT_TRUE(becomes(ShortcutOutcome::refused()));
    EXPECT_EQ(kde.action(viewAll).keys, QList{metaShiftD});
}

TEST_F(KdeShortcutsTest, givenUpKeysGoToOtherProgramsAgain)
{
    startWithService();
    auto taken = take();
    const auto other = take(keyK, 2);
    ASSERT_TRUE(eventually([&] { return told.size() == 2; }));
    taken.end();
    EXPECT_TRUE(eventually([&] { return !kde.action(toggle).isPresent; }));
    EXPECT_TRUE(kde.action(viewAll).isPresent);
    keys.reset();
    EXPECT_TRUE(eventually([&] { return !kde.action(viewAll).isPresent; }));
    EXPECT_EQ(kde.action(viewAll).keys, QList{metaShiftK}) << "for the next start";
}

TEST_F(KdeShortcutsTest, suspendedKeysGoToOtherProgramsMeanwhile)
{
    startWithService();
    const auto taken = take();
    ASSERT_TRUE(becomes(ShortcutOutcome::bound()));
    auto suspension = keys->suspend();
    EXPECT_TRUE(eventually([&] { return !kde.action(toggle).isPresent; }));
    kde.press(toggle);
    settle();
    EXPECT_TRUE(heard.empty());
    suspension.reset();
    EXPECT_TRUE(eventually([&] { return kde.action(toggle).isPresent; }));
}

TEST_F(KdeShortcutsTest, aServiceThatGoesAndComesBackIsToldOf)
{
    startWithService();
    kde.go();
    EXPECT_TRUE(eventually([this] { return keys->presence() == Absent; }));
    kde.come();
    EXPECT_TRUE(eventually([this] { return keys->presence() == There; }));
    const auto taken = take();
    EXPECT_TRUE(becomes(ShortcutOutcome::bound()));
}

TEST_F(KdeShortcutsTest, withoutAServiceNothingIsThere)
{
    start();
    EXPECT_EQ(keys->presence(), Unknown);
    EXPECT_TRUE(eventually([this] { return keys->presence() == Absent; }));
}

TEST_F(KdeShortcutsTest, aServiceBesideTheCompositorHearsNoKeysHere)
{
    kde.come(false);
    start();
    EXPECT_TRUE(eventually([this] { return keys->presence() == Absent; }));
}

TEST_F(KdeShortcutsTest, aServiceThatDoesNotAnswerIsAbsentAfterAWhile)
{
    kde.manners = KdeService::Manners::Silent;
    kde.come();
    start(200);
    ASSERT_TRUE(eventually([this] { return keys->presence() == There; }));
    const auto taken = take();
    EXPECT_TRUE(eventually([this] { return keys->presence() == Absent; }));
    EXPECT_EQ(kde.questions, 1);
    EXPECT_TRUE(told.empty());
}

TEST_F(KdeShortcutsTest, aServiceThatAnswersSomethingElseIsAbsent)
{
    kde.manners = KdeService::Manners::Confused;
    startWithService();
    const auto taken = take();
    EXPECT_TRUE(eventually([this] { return keys->presence() == Absent; }));
    EXPECT_TRUE(told.empty());
}

} // namespace corvane::test
