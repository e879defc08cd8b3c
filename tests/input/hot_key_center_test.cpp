#include "fakes/fake_hot_keys.h"
#include "fakes/test_clock.h"
#include "input/hot_key_center.h"
#include "input/shortcut_binder.h"

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

const Shortcut shiftCommandD
    = {KeyPosition{2}, Shortcut::command | Shortcut::shift, QStringLiteral("D")};
const Shortcut controlF5 = {KeyPosition{96}, Shortcut::control, QStringLiteral("F5")};

using Binding = HotKeyCenter::Binding;

class HotKeyCenterTest : public testing::Test {
protected:
    bool apply(const std::optional<Shortcut> &shortcut, Binding binding = Binding::Shelf)
    {
        return center->apply(shortcut, binding, [this] { ++calls; });
    }
    bool press(const Shortcut &shortcut)
    {
        const bool isOurs = keys.press(shortcut.keyCode, shortcut.modifiers);
        clock.runPending();
        return isOurs;
    }

    FakeHotKeys keys;
    TestClock clock;
    std::optional<HotKeyCenter> center{std::in_place, keys, clock};
    int calls = 0;
};

} // namespace

TEST_F(HotKeyCenterTest, APressRunsTheHandlerOnceAndNotBeforeTheMainQueueDoes)
{
    EXPECT_TRUE(apply(shiftCommandD));
    keys.press(shiftCommandD.keyCode, shiftCommandD.modifiers);
    EXPECT_EQ(calls, 0);
    clock.runPending();
    EXPECT_EQ(calls, 1);
}

TEST_F(HotKeyCenterTest, IdentifiesItsKeysBySignatureAndNumber)
{
    EXPECT_EQ(HotKeyCenter::idOf(Binding::Shelf), 1U);
    EXPECT_EQ(HotKeyCenter::idOf(Binding::ViewAll), 2U);
    std::vector<HotKeyIdentifier> heard;
    keys.installHandler([&](const auto &pressed) { heard.push_back(*pressed); });
    apply(shiftCommandD, Binding::Shelf);
    apply(controlF5, Binding::ViewAll);
    press(shiftCommandD);
    press(controlF5);
    EXPECT_EQ(heard, (std::vector<HotKeyIdentifier>{{0x4352564E, 1}, {0x4352564E, 2}}));
}

TEST_F(HotKeyCenterTest, InstallsNoEventHandlerBeforeTheFirstShortcut)
{
    EXPECT_TRUE(apply(std::nullopt));
    EXPECT_EQ(keys.handlerCount(), 0U);
    apply(shiftCommandD);
    apply(controlF5, Binding::ViewAll);
    EXPECT_EQ(keys.handlerCount(), 1U);
}

TEST_F(HotKeyCenterTest, ApplyingNoneRemovesTheRegistrationAndSucceeds)
{
    apply(controlF5, Binding::ViewAll);
    EXPECT_TRUE(apply(std::nullopt, Binding::ViewAll));
    EXPECT_EQ(keys.registrationCount(), 0U);
    EXPECT_FALSE(press(controlF5));
    EXPECT_EQ(calls, 0);
}

TEST_F(HotKeyCenterTest, AHandlerIsStoredEvenForNone)
{
    apply(shiftCommandD);
    int second = 0;
    keys.press(shiftCommandD.keyCode, shiftCommandD.modifiers);
    EXPECT_TRUE(center->apply(std::nullopt, Binding::Shelf, [&] { ++second; }));
    clock.runPending();
    EXPECT_EQ(calls, 0);
    EXPECT_EQ(second, 1) << "a press on its way finds the handler that stands there now";
}

TEST_F(HotKeyCenterTest, ReRegisteringTheSameShortcutSucceeds)
{
    EXPECT_TRUE(apply(shiftCommandD));
    EXPECT_TRUE(apply(shiftCommandD));
    EXPECT_EQ(keys.unregistrations, 1);
    EXPECT_EQ(keys.registrationCount(), 1U);
    EXPECT_TRUE(press(shiftCommandD));
    EXPECT_EQ(calls, 1);
}

TEST_F(HotKeyCenterTest, AFailedApplyLeavesTheOldCombinationDeadToo)
{
    apply(shiftCommandD);
    keys.takenByOthers.insert({controlF5.keyCode, controlF5.modifiers});
    EXPECT_FALSE(apply(controlF5));
    EXPECT_EQ(keys.registrationCount(), 0U);
    EXPECT_FALSE(press(shiftCommandD));
    EXPECT_FALSE(press(controlF5));
    EXPECT_EQ(calls, 0);
}

TEST_F(HotKeyCenterTest, TheOtherBindingsCombinationIsRefused)
{
    EXPECT_TRUE(apply(shiftCommandD, Binding::Shelf));
    EXPECT_FALSE(apply(shiftCommandD, Binding::ViewAll));
    EXPECT_TRUE(press(shiftCommandD));
    EXPECT_EQ(calls, 1);
}

TEST_F(HotKeyCenterTest, UnregisteringKeepsTheHandlerForAPressOnItsWay)
{
    apply(shiftCommandD);
    keys.press(shiftCommandD.keyCode, shiftCommandD.modifiers);
    center->unregister(Binding::Shelf);
    center->unregister(Binding::Shelf);
    EXPECT_EQ(keys.unregistrations, 1);
    clock.runPending();
    EXPECT_EQ(calls, 1);
}

TEST_F(HotKeyCenterTest, UnregisteringAllForgetsTheHandlers)
{
    apply(shiftCommandD, Binding::Shelf);
    apply(controlF5, Binding::ViewAll);
    keys.press(shiftCommandD.keyCode, shiftCommandD.modifiers);
    center->unregisterAll();
    clock.runPending();
    EXPECT_EQ(calls, 0);
    EXPECT_EQ(keys.registrationCount(), 0U);
}

TEST_F(HotKeyCenterTest, AfterUnregisteringAllItAppliesAgainWithTheSameEventHandler)
{
    apply(shiftCommandD);
    center->unregisterAll();
    EXPECT_TRUE(apply(shiftCommandD));
    EXPECT_EQ(keys.handlerCount(), 1U);
    press(shiftCommandD);
    EXPECT_EQ(calls, 1);
}

TEST_F(HotKeyCenterTest, WithoutAnEventHandlerItRegistersAllTheSame)
{
    keys.refusesHandler = true;
    EXPECT_TRUE(apply(shiftCommandD));
    EXPECT_EQ(keys.registrationCount(), 1U);
}

TEST_F(HotKeyCenterTest, APressThatCannotBeReadOrIsOfNobodyIsIgnored)
{
    apply(shiftCommandD);
    keys.pressed(std::nullopt);
    keys.pressed(HotKeyIdentifier{HotKeyCenter::signature, 77});
    clock.runPending();
    EXPECT_EQ(calls, 0);
}

TEST_F(HotKeyCenterTest, TheSignatureIsNotLookedAt)
{
    apply(shiftCommandD);
    keys.pressed(HotKeyIdentifier{0, 1});
    clock.runPending();
    EXPECT_EQ(calls, 1);
}

TEST_F(HotKeyCenterTest, AHandlerMayReplaceItself)
{
    center->apply(shiftCommandD, Binding::Shelf, [this] {
        ++calls;
        center->apply(std::nullopt, Binding::Shelf, {});
    });
    press(shiftCommandD);
    EXPECT_EQ(calls, 1);
    EXPECT_FALSE(press(shiftCommandD));
}

TEST_F(HotKeyCenterTest, APressHeardAfterItIsGoneDoesNothing)
{
    apply(shiftCommandD);
    keys.press(shiftCommandD.keyCode, shiftCommandD.modifiers);
    center.reset();
    EXPECT_EQ(keys.registrationCount(), 0U);
    clock.runPending();
    keys.pressed(HotKeyIdentifier{HotKeyCenter::signature, 1});
    clock.runPending();
    EXPECT_EQ(calls, 0);
}

namespace {

class ShortcutBinderTest : public HotKeyCenterTest {
protected:
    std::optional<Shortcut> shelfShortcut = shiftCommandD;
    std::optional<Shortcut> viewAllShortcut;
    std::optional<ShortcutBinder> binder{std::in_place, *center, [this] { return shelfShortcut; },
                                         [this] { return viewAllShortcut; }};

    bool isRefused(Binding binding) const { return binder->outcome(binding).isRefused(); }
};

} // namespace

TEST_F(ShortcutBinderTest, EachShortcutRunsItsOwnAction)
{
    QStringList log;
    binder->onToggleShelf = [&] { log << QStringLiteral("shelf"); };
    binder->onToggleViewAll = [&] { log << QStringLiteral("all"); };
    viewAllShortcut = controlF5;
    EXPECT_TRUE(binder->bindShelf());
    EXPECT_TRUE(binder->bindViewAll());
    press(shiftCommandD);
    press(controlF5);
    EXPECT_EQ(log, (QStringList{QStringLiteral("shelf"), QStringLiteral("all")}));
}

TEST_F(ShortcutBinderTest, AShortcutOfNoneBindsNothingAndSucceeds)
{
    EXPECT_TRUE(binder->bindViewAll());
    EXPECT_EQ(keys.registrationCount(), 0U);
}

TEST_F(ShortcutBinderTest, ReadsTheStoredShortcutEachTimeItBinds)
{
    binder->onToggleShelf = [this] { ++calls; };
    binder->bindShelf();
    shelfShortcut = controlF5;
    EXPECT_TRUE(binder->bindShelf());
    EXPECT_FALSE(press(shiftCommandD));
    EXPECT_TRUE(press(controlF5));
    EXPECT_EQ(calls, 1);
}

TEST_F(ShortcutBinderTest, WhatTheUserTypesWithIsRefused)
{
    shelfShortcut = Shortcut{KeyPosition{0}, 0, QStringLiteral("A")};
    viewAllShortcut = Shortcut{KeyPosition{1}, Shortcut::shift, QStringLiteral("S")};
    EXPECT_FALSE(binder->bindShelf());
    EXPECT_FALSE(binder->bindViewAll());
    EXPECT_EQ(keys.registrationCount(), 0U);
    const auto refusal = ShortcutOutcome::refused(ShortcutRefusal::TypesCharacter);
    EXPECT_EQ(binder->outcome(Binding::Shelf), refusal);
    EXPECT_EQ(binder->outcome(Binding::ViewAll), refusal);
}

TEST_F(ShortcutBinderTest, RemembersWhatWasRefused)
{
    keys.takenByOthers.insert({shiftCommandD.keyCode, shiftCommandD.modifiers});
    EXPECT_FALSE(isRefused(Binding::Shelf));
    binder->bindShelf();
    binder->bindViewAll();
    EXPECT_TRUE(isRefused(Binding::Shelf));
    EXPECT_FALSE(isRefused(Binding::ViewAll));
    binder->retryRefused();
    EXPECT_TRUE(isRefused(Binding::Shelf));
    keys.takenByOthers.clear();
    binder->retryRefused();
    EXPECT_FALSE(isRefused(Binding::Shelf));
    EXPECT_TRUE(press(shiftCommandD));
}

TEST_F(ShortcutBinderTest, WhatOneGivesUpGoesToTheOtherThatWaitsForIt)
{
    viewAllShortcut = shiftCommandD;
    binder->bindShelf();
    binder->bindViewAll();
    EXPECT_TRUE(isRefused(Binding::ViewAll));
    shelfShortcut.reset();
    binder->rebind(Binding::Shelf);
    EXPECT_FALSE(isRefused(Binding::ViewAll));
    EXPECT_TRUE(press(shiftCommandD));
    shelfShortcut = shiftCommandD;
    binder->rebind(Binding::Shelf);
    EXPECT_TRUE(isRefused(Binding::Shelf));
    EXPECT_FALSE(isRefused(Binding::ViewAll)) << "the other one keeps it";
    viewAllShortcut = controlF5;
    binder->rebind(Binding::ViewAll);
    EXPECT_FALSE(isRefused(Binding::Shelf));
    EXPECT_EQ(keys.registrationCount(), 2U);
}

TEST_F(ShortcutBinderTest, TheOutcomeIsThatOfTheLastAttempt)
{
    EXPECT_EQ(binder->outcome(Binding::Shelf), ShortcutOutcome());
    binder->bindShelf();
    binder->bindViewAll();
    EXPECT_EQ(binder->outcome(Binding::Shelf), ShortcutOutcome::bound());
    EXPECT_EQ(binder->outcome(Binding::ViewAll), ShortcutOutcome());
    shelfShortcut.reset();
    binder->bindShelf();
    EXPECT_EQ(binder->outcome(Binding::Shelf), ShortcutOutcome());
}

TEST_F(ShortcutBinderTest, ObserversHearOfEachOtherOutcomeUntilTheirSubscriptionEnds)
{
    QList<ShortcutOutcome> heard;
    Subscription observing
        = binder->observeOutcomes([&] { heard << binder->outcome(Binding::Shelf); });
    binder->bindShelf();
    binder->bindShelf();
    EXPECT_EQ(heard, QList{ShortcutOutcome::bound()}) << "the same outcome is no news";
    keys.takenByOthers.insert({shiftCommandD.keyCode, shiftCommandD.modifiers});
    binder->bindShelf();
    keys.takenByOthers.clear();
    binder->retryRefused();
    EXPECT_EQ(
        heard,
        (QList{ShortcutOutcome::bound(), ShortcutOutcome::refused(), ShortcutOutcome::bound()}));
    observing.end();
    shelfShortcut.reset();
    binder->bindShelf();
    EXPECT_EQ(heard.size(), 3);
}

TEST_F(ShortcutBinderTest, AnAnswerThatComesLaterIsTheOutcomeFromThenOn)
{
    const FakeHotKeys::Combination wanted = {shiftCommandD.keyCode, shiftCommandD.modifiers};
    QList<ShortcutOutcome> heard;
    const Subscription observing
        = binder->observeOutcomes([&] { heard << binder->outcome(Binding::Shelf); });
    keys.firstAnswer = ShortcutOutcome::pending();
    EXPECT_TRUE(binder->bindShelf()) << "it is not refused";
    keys.answer(wanted, ShortcutOutcome::bound(QStringLiteral("Meta+D")));
    keys.answer(wanted, ShortcutOutcome::refused());
    EXPECT_EQ(heard,
              (QList{ShortcutOutcome::pending(), ShortcutOutcome::bound(QStringLiteral("Meta+D")),
                     ShortcutOutcome::refused()}));
    keys.firstAnswer = ShortcutOutcome::bound();
    binder->retryRefused();
    EXPECT_EQ(heard.last(), ShortcutOutcome::bound());
    EXPECT_EQ(keys.registrationCount(), 1U);
}

TEST_F(ShortcutBinderTest, AnAnswerToAShortcutThatWasReplacedIsNotHeard)
{
    keys.firstAnswer = ShortcutOutcome::pending();
    binder->bindShelf();
    shelfShortcut = controlF5;
    binder->bindShelf();
    keys.answer({shiftCommandD.keyCode, shiftCommandD.modifiers}, ShortcutOutcome::refused());
    EXPECT_EQ(binder->outcome(Binding::Shelf), ShortcutOutcome::pending());
    binder.reset();
    keys.answer({controlF5.keyCode, controlF5.modifiers}, ShortcutOutcome::bound());
    EXPECT_EQ(center->outcome(Binding::Shelf), ShortcutOutcome::bound());
}

TEST_F(ShortcutBinderTest, TellsThatAShortcutIsTaken)
{
    keys.takenByOthers.insert({shiftCommandD.keyCode, shiftCommandD.modifiers});
    EXPECT_FALSE(binder->bindShelf());
}

TEST_F(ShortcutBinderTest, WithNoActionSetAPressDoesNothing)
{
    EXPECT_TRUE(binder->bindShelf());
    EXPECT_TRUE(press(shiftCommandD));
    binder->onToggleShelf = [this] { ++calls; };
    press(shiftCommandD);
    EXPECT_EQ(calls, 1) << "the action is looked up when the press comes";
}

TEST_F(ShortcutBinderTest, APressAfterTheBinderIsGoneDoesNothing)
{
    binder->onToggleShelf = [this] { ++calls; };
    binder->bindShelf();
    binder.reset();
    EXPECT_TRUE(press(shiftCommandD));
    EXPECT_EQ(calls, 0);
}

} // namespace corvane::test
