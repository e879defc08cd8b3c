#include "platform/desktop/stored_modifiers.h"
#include "platform/display.h"
#include "platform/freedesktop/shortcuts/portal_service.h"
#include "platform/freedesktop/shortcuts/portal_shortcuts.h"
#include "platform/freedesktop/shortcuts/super_shift.h"
#include "platform/qt/base/qt_main_queue.h"

#include <gtest/gtest.h>

#include <vector>

namespace corvane::test {

namespace {

using enum OptionalHotKeys::Presence;

const auto command = ShortcutOutcome::setInDesktop(QStringLiteral("corvane"));
const auto bound = ShortcutOutcome::bound(QStringLiteral("Super+Shift+D"));

std::vector<DesktopAction> portalActions()
{
    return {{.id = 1,
             .name = QStringLiteral("toggle"),
             .title = QStringLiteral("Toggle"),
             .command = QStringLiteral("corvane")},
            {.id = 2,
             .name = QStringLiteral("view-all"),
             .title = QStringLiteral("View all"),
             .command = QStringLiteral("corvane-all")}};
}

KeyName typesD(KeyPosition /*key*/, bool /*isShifted*/)
{
    return {.text = QStringLiteral("d"), .symbol = QStringLiteral("d")};
}

/// Time passes for it when a test says so, besides.
class LaterQueue : public QtMainQueue {
public:
    double now() const override { return QtMainQueue::now() + later; }
    double later = 0;
};

class PortalShortcutsTest : public testing::Test {
protected:
    void start(double patience = PortalShortcuts::sessionPatience)
    {
        keys.emplace(portalActions(), typesD, queue, patience);
        keys->installHandler([this](const std::optional<HotKeyIdentifier> &pressed) {
            heard.push_back(pressed->id);
        });
    }
    void startWithPortal(double patience = PortalShortcuts::sessionPatience)
    {
        portal.come();
        start(patience);
        ASSERT_TRUE(eventually([this] { return keys->presence() == There; }));
    }
    Subscription take(std::uint32_t id = 1)
    {
        auto [outcome, subscription]
            = keys->registerHotKey(KeyPosition::D, superShift, {1, id},
                                   [this](const ShortcutOutcome &later) { told.push_back(later); });
        EXPECT_EQ(outcome, ShortcutOutcome::pending());
        return std::move(subscription);
    }
    bool isAsked(std::size_t count = 1)
    {
        return eventually([&] { return portal.asked.size() == count; });
    }
    void bindAndWait()
    {
        portal.userSays(true);
        ASSERT_TRUE(becomes(bound));
        queue.later += PortalShortcuts::lastingSession;
    }
    bool becomes(const ShortcutOutcome &outcome)
    {
        const bool came = eventually([&] { return !told.empty() && told.back() == outcome; });
        told.clear();
        return came;
    }

    LaterQueue queue;
    PortalService portal;
    std::optional<PortalShortcuts> keys;
    std::vector<ShortcutOutcome> told;
    std::vector<std::uint32_t> heard;
};

} // namespace

TEST_F(PortalShortcutsTest, keysAreProposedTogetherAndBoundAsTheUserSays)
{
    startWithPortal();
    const auto first = take(1);
    const auto second = take(2);
    ASSERT_TRUE(isAsked(2));
    EXPECT_EQ(portal.asked[QStringLiteral("toggle")], QStringLiteral("SHIFT+LOGO+d"));
    settle();
    EXPECT_TRUE(told.empty()) << "the user has not answered";
    portal.userSays(true);
    EXPECT_TRUE(eventually([&] { return told.size() == 2; }));
    EXPECT_TRUE(becomes(bound));
    EXPECT_EQ(portal.sessions.size(), 1U);
}

TEST_F(PortalShortcutsTest, aPortalThatListsNothingHasBoundNothing)
{
    portal.manners.listsShortcuts = false;
    startWithPortal();
    const auto taken = take();
    ASSERT_TRUE(isAsked());
    portal.userSays(true);
    EXPECT_TRUE(becomes(command));
    EXPECT_EQ(keys->presence(), There);
}

TEST_F(PortalShortcutsTest, aPortalThatListsSomethingElseHasBoundNothing)
{
    portal.manners.isConfused = true;
    startWithPortal();
    const auto taken = take();
    ASSERT_TRUE(isAsked());
    portal.userSays(true);
    EXPECT_TRUE(becomes(command));
}

TEST_F(PortalShortcutsTest, whereTheUserSaysNoThereIsTheCommand)
{
    startWithPortal();
    const auto taken = take();
    ASSERT_TRUE(isAsked());
    portal.userSays(false);
    EXPECT_TRUE(becomes(command));
    EXPECT_EQ(keys->outcomeWithoutKeys({1, 1}), command);
}

TEST_F(PortalShortcutsTest, aPressIsToldUnlessItIsSuspendedOrOfAnotherSession)
{
    startWithPortal();
    const auto taken = take();
    ASSERT_TRUE(isAsked());
    portal.userSays(true);
    ASSERT_TRUE(becomes(bound));
    portal.press(QStringLiteral("toggle"), 7);
    portal.press(QStringLiteral("view-all"), 0);
    portal.press(QStringLiteral("toggle"), 0);
    EXPECT_TRUE(eventually([&] { return !heard.empty(); }));
    const auto suspension = keys->suspend();
    portal.press(QStringLiteral("toggle"), 0);
    settle();
    EXPECT_EQ(heard, std::vector<std::uint32_t>{1});
}

TEST_F(PortalShortcutsTest, whatTheUserChangesLaterIsTold)
{
    startWithPortal();
    const auto taken = take();
    ASSERT_TRUE(isAsked());
    portal.userSays(true);
    ASSERT_TRUE(becomes(bound));
    portal.choose(QStringLiteral("Super+Y"));
    EXPECT_TRUE(becomes(ShortcutOutcome::bound(QStringLiteral("Super+Y"))));
}

TEST_F(PortalShortcutsTest, whatIsGivenUpEndsItsSession)
{
    startWithPortal();
    auto first = take(1);
    ASSERT_TRUE(isAsked());
    first.end();
    EXPECT_TRUE(eventually([&] { return portal.sessions.front()->isClosed; }));
    const auto second = take(2);
    ASSERT_TRUE(eventually([&] { return portal.sessions.size() == 2; }));
    ASSERT_TRUE(eventually([&] { return portal.asked.contains(QStringLiteral("view-all")); }));
    keys.reset();
    EXPECT_TRUE(eventually([&] { return portal.sessions.back()->isClosed; }));
}

TEST_F(PortalShortcutsTest, whatIsBoundIsAskedForAgainWhenThePortalEndsItsSession)
{
    startWithPortal();
    const auto taken = take();
    ASSERT_TRUE(isAsked());
    ASSERT_NO_FATAL_FAILURE(bindAndWait());
    portal.asked.clear();
    portal.end(0);
    EXPECT_TRUE(becomes(ShortcutOutcome::pending()));
    ASSERT_TRUE(isAsked());
    portal.userSays(true);
    EXPECT_TRUE(becomes(bound));
    portal.press(QStringLiteral("toggle"), 0);
    portal.press(QStringLiteral("toggle"), 1);
    EXPECT_TRUE(eventually([&] { return !heard.empty(); }));
    EXPECT_EQ(portal.sessions.size(), 2U);
    EXPECT_EQ(heard, std::vector<std::uint32_t>{1});
}

TEST_F(PortalShortcutsTest, aSessionThatIsNotKeptIsNotAskedForAgain)
{
    startWithPortal();
    const auto taken = take();
    ASSERT_TRUE(isAsked());
    ASSERT_NO_FATAL_FAILURE(bindAndWait());
    portal.asked.clear();
    portal.end(0);
    ASSERT_TRUE(isAsked());
    portal.userSays(true);
    ASSERT_TRUE(becomes(bound));
    portal.end(1);
    EXPECT_TRUE(becomes(command));
    settle();
    EXPECT_EQ(portal.sessions.size(), 2U);
}

TEST_F(PortalShortcutsTest, whoSaidNoIsNotAskedAgainWhenTheSessionEnds)
{
    startWithPortal();
    const auto taken = take();
    ASSERT_TRUE(isAsked());
    portal.userSays(false);
    ASSERT_TRUE(becomes(command));
    queue.later += PortalShortcuts::lastingSession;
    portal.end(0);
    settle();
    EXPECT_TRUE(told.empty());
    EXPECT_EQ(portal.sessions.size(), 1U);
}

TEST_F(PortalShortcutsTest, aSessionThatEndsBeforeTheUserAnsweredHasBoundNothing)
{
    startWithPortal();
    const auto taken = take();
    ASSERT_TRUE(isAsked());
    portal.end(0);
    EXPECT_TRUE(becomes(command));
    portal.userSays(true);
    settle();
    EXPECT_TRUE(told.empty());
    EXPECT_EQ(portal.sessions.size(), 1U);
}

TEST_F(PortalShortcutsTest, withoutThatPortalNothingIsThere)
{
    start();
    EXPECT_EQ(keys->presence(), Unknown);
    EXPECT_TRUE(eventually([this] { return keys->presence() == Absent; }));
}

TEST_F(PortalShortcutsTest, aPortalThatGoesAndComesBackIsAskedAnew)
{
    startWithPortal();
    portal.go();
    EXPECT_TRUE(eventually([this] { return keys->presence() == Absent; }));
    portal.come();
    ASSERT_TRUE(eventually([this] { return keys->presence() == There; }));
    const auto taken = take();
    EXPECT_TRUE(isAsked());
}

TEST_F(PortalShortcutsTest, aPortalThatMakesNoSessionIsAbsentAfterAWhile)
{
    portal.manners.makesSessions = false;
    startWithPortal(0.2);
    const auto taken = take();
    EXPECT_TRUE(eventually([this] { return keys->presence() == Absent; }));
    EXPECT_TRUE(told.empty());
}

} // namespace corvane::test
