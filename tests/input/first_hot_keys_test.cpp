#include "fakes/fake_optional_hot_keys.h"
#include "input/first_hot_keys.h"
#include "input/shortcut.h"

#include <gtest/gtest.h>

#include <vector>

namespace corvane::test {

namespace {

using enum OptionalHotKeys::Presence;
using Combination = FakeHotKeys::Combination;

constexpr Combination superShiftD = {KeyPosition::D, Shortcut::command | Shortcut::shift};
constexpr Combination controlAndF5 = {KeyPosition::F5, Shortcut::control};

class FirstHotKeysTest : public testing::Test {
protected:
    HotKeyService::Registration take(const Combination &combination, std::uint32_t id = 1)
    {
        return keys.registerHotKey(
            combination.first, combination.second, {1, id},
            [this](const ShortcutOutcome &outcome) { told.push_back(outcome); });
    }

    FakeOptionalHotKeys best{Unknown};
    FakeOptionalHotKeys other{There, ShortcutChoice::InTheDesktop};
    FirstHotKeys keys{{&best, &other}};
    std::vector<ShortcutOutcome> told;
};

} // namespace

TEST_F(FirstHotKeysTest, WaitForTheBestServiceAsLongAsNothingIsKnownOfIt)
{
    const auto taken = take(superShiftD);
    EXPECT_EQ(taken.outcome, ShortcutOutcome::pending());
    EXPECT_EQ(keys.chosen(), nullptr);
    EXPECT_EQ(other.keys.registrationCount(), 0U);
    best.become(There);
    EXPECT_EQ(keys.chosen(), &best);
    EXPECT_TRUE(best.keys.isRegistered(superShiftD));
    EXPECT_EQ(told, std::vector{ShortcutOutcome::bound()});
}

TEST_F(FirstHotKeysTest, GoToTheNextServiceWhereTheBestOneIsNotThere)
{
    other.keys.firstAnswer = ShortcutOutcome::setInDesktop(QStringLiteral("command"));
    const auto taken = take(superShiftD);
    best.become(Absent);
    EXPECT_EQ(keys.chosen(), &other);
    EXPECT_EQ(told, std::vector{other.keys.firstAnswer});
    EXPECT_EQ(best.keys.registrationCount(), 0U);
}

TEST_F(FirstHotKeysTest, MoveWhenTheirServiceGoesAndBackWhenItReturns)
{
    best.become(There);
    const auto taken = take(superShiftD);
    EXPECT_EQ(taken.outcome, ShortcutOutcome::bound());
    best.become(Absent);
    EXPECT_FALSE(best.keys.isRegistered(superShiftD));
    EXPECT_TRUE(other.keys.isRegistered(superShiftD));
    best.become(There);
    EXPECT_TRUE(best.keys.isRegistered(superShiftD));
    EXPECT_FALSE(other.keys.isRegistered(superShiftD));
    EXPECT_TRUE(told.empty()) << "they were bound all the time";
}

TEST_F(FirstHotKeysTest, SayWhoIsChosenOnceWhatIsRegisteredHasMoved)
{
    const auto taken = take(superShiftD);
    std::vector<bool> hadMoved;
    keys.onChosen = [&] { hadMoved.push_back(told == std::vector{ShortcutOutcome::bound()}); };
    best.become(There);
    best.become(There);
    EXPECT_EQ(hadMoved, std::vector{true});
}

TEST_F(FirstHotKeysTest, AreHeardOfWhicheverServiceHasThem)
{
    std::vector<std::uint32_t> heard;
    keys.installHandler([&](const auto &pressed) { heard.push_back(pressed->id); });
    keys.installHandler([&](const auto &pressed) { heard.push_back(10 * pressed->id); });
    best.become(There);
    const auto first = take(superShiftD, 1);
    const auto second = take(controlAndF5, 2);
    best.keys.press(superShiftD.first, superShiftD.second);
    best.become(Absent);
    other.keys.press(controlAndF5.first, controlAndF5.second);
    EXPECT_EQ(heard, (std::vector<std::uint32_t>{1, 10, 2, 20}));
}

TEST_F(FirstHotKeysTest, AreGivenUpWithTheirSubscription)
{
    best.become(There);
    auto taken = take(superShiftD);
    taken.subscription.end();
    EXPECT_EQ(best.keys.registrationCount(), 0U);
    best.become(Absent);
    EXPECT_EQ(other.keys.registrationCount(), 0U);
}

TEST_F(FirstHotKeysTest, ThatAServiceRefusesLaterAreToldToBeRefused)
{
    best.keys.takenByOthers.insert(superShiftD);
    const auto taken = take(superShiftD);
    best.become(There);
    EXPECT_EQ(told, std::vector{ShortcutOutcome::refused()});
    const auto again = take(controlAndF5, 2);
    EXPECT_EQ(again.outcome, ShortcutOutcome::bound());
    best.keys.answer(controlAndF5, ShortcutOutcome::refused());
    EXPECT_EQ(told.size(), 2U);
}

TEST_F(FirstHotKeysTest, ThatTypeACharacterOrAreOursAlreadyAreRefusedAtOnce)
{
    const auto typing = take({KeyPosition::D, Shortcut::shift});
    EXPECT_EQ(typing.outcome, ShortcutOutcome::refused(ShortcutRefusal::TypesCharacter));
    const auto first = take(superShiftD, 1);
    const auto second = take(superShiftD, 2);
    EXPECT_EQ(second.outcome, ShortcutOutcome::refused());
    EXPECT_FALSE(second.subscription.isActive());
    const auto unknown = take({KeyPosition::D, Shortcut::command | 1024U}, 3);
    EXPECT_EQ(unknown.outcome, ShortcutOutcome::refused());
    best.become(There);
    EXPECT_EQ(best.keys.registrationCount(), 1U);
}

TEST_F(FirstHotKeysTest, StaySuspendedWhenTheyMove)
{
    best.become(There);
    {
        const auto outer = keys.suspend();
        const auto inner = keys.suspend();
        EXPECT_EQ(best.keys.suspensions, 1);
        best.become(Absent);
        EXPECT_EQ(best.keys.suspensions, 0);
        EXPECT_EQ(other.keys.suspensions, 1);
    }
    EXPECT_EQ(other.keys.suspensions, 0);
}

TEST_F(FirstHotKeysTest, WithoutKeysAreWhatTheChosenServiceSays)
{
    other.keys.withoutKeys = ShortcutOutcome::setInDesktop(QStringLiteral("command"));
    EXPECT_EQ(keys.outcomeWithoutKeys({1, 1}), ShortcutOutcome());
    best.become(Absent);
    EXPECT_EQ(keys.outcomeWithoutKeys({1, 1}), other.keys.withoutKeys);
}

} // namespace corvane::test
