#include "e2e/desktop/program.h"
#include "fakes/fake_hot_keys.h"
#include "fakes/test_clock.h"
#include "platform/display.h"
#include "platform/qt/base/qt_main_queue.h"
#include "platform/silent_server.h"
#include "platform/x11/base/x11_connection.h"
#include "platform/x11/keys/x11_hot_keys.h"
#include "platform/x11/keys/x11_keyboard_layout.h"

#include <gtest/gtest.h>

#include <array>
#include <deque>

namespace corvane::test {

namespace {

namespace keys = e2e::keys;

constexpr std::uint32_t command = 256;
constexpr std::uint32_t shift = 512;
constexpr std::uint32_t option = 2048;
constexpr std::uint32_t control = 4096;

/// Keys by their place and by what they type. The window manager has some with Super alone.
struct Key {
    KeyPosition code;
    std::uint32_t symbol;
};
constexpr Key keyD = {KeyPosition::D, 'd'};
constexpr Key keyK = {KeyPosition{40}, 'k'};
constexpr std::uint32_t numLock = 0xff7f;
constexpr std::uint32_t capsLock = 0xffe5;
constexpr std::uint32_t scrollLock = 0xff14;
constexpr std::uint32_t nextLayout = 0xfe08;

/// The user's and the other programs' verbs on the stand-in ...
struct FakeKeyboard {
    FakeHotKeys service;
    void press(Key key, std::uint32_t modifiers) { service.press(key.code, modifiers); }
    void takeElsewhere(Key key, std::uint32_t modifiers)
    {
        service.takenByOthers.insert({key.code, modifiers});
    }
    bool until(const std::function<bool()> &condition) { return condition(); }
    void waitABit() { }
};

/// ... and on a real desktop.
struct RealKeyboard {
    QtMainQueue queue;
    X11Connection connection;
    X11HotKeys service{connection, queue};
    Display display;
    /// Another program.
    e2e::XServer other{qgetenv("DISPLAY")};

    ~RealKeyboard()
    {
        for (const std::uint32_t symbol : held)
            display.hands.keyUp(symbol);
    }
    static std::vector<std::uint32_t> symbolsOf(std::uint32_t modifiers)
    {
        std::vector<std::uint32_t> symbols;
        const std::array all = {std::pair(command, keys::super), std::pair(shift, keys::shift),
                                std::pair(option, keys::alt), std::pair(control, keys::control)};
        for (const auto &[bit, symbol] : all) {
            if ((modifiers & bit) != 0)
                symbols.push_back(symbol);
        }
        return symbols;
    }
    void hold(Key key, std::uint32_t modifiers)
    {
        held = symbolsOf(modifiers);
        held.push_back(key.symbol);
        for (const std::uint32_t symbol : held)
            display.hands.keyDown(symbol);
    }
    void letGo()
    {
        for (; !held.empty(); held.pop_back())
            display.hands.keyUp(held.back());
    }
    void press(Key key, std::uint32_t modifiers)
    {
        hold(key, modifiers);
        letGo();
    }
    /// Whether another program gets the combination; it gives it back at once.
    bool isFree(Key key, std::uint32_t modifiers) const
    {
        return grabElsewhere(key, modifiers, false);
    }
    void takeElsewhere(Key key, std::uint32_t modifiers) const
    {
        ASSERT_TRUE(grabElsewhere(key, modifiers, true));
    }
    bool grabElsewhere(Key key, std::uint32_t modifiers, bool keep, std::uint16_t locks = 0) const
    {
        auto *const server = other.connection();
        std::uint16_t mask = locks;
        mask |= (modifiers & command) != 0 ? XCB_MOD_MASK_4 : 0;
        mask |= (modifiers & shift) != 0 ? XCB_MOD_MASK_SHIFT : 0;
        mask |= (modifiers & option) != 0 ? XCB_MOD_MASK_1 : 0;
        mask |= (modifiers & control) != 0 ? XCB_MOD_MASK_CONTROL : 0;
        const xcb_keycode_t code = key.code == keyD.code ? 40 : 45;
        auto *const error
            = xcb_request_check(server,
                                xcb_grab_key_checked(server, 0, other.root(), mask, code,
                                                     XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
        const bool isTaken = error == nullptr;
        std::free(error);
        if (isTaken && !keep)
            std::free(xcb_request_check(server,
                                        xcb_ungrab_key_checked(server, code, other.root(), mask)));
        return isTaken;
    }
    void toggle(std::uint32_t lock) { display.hands.key(lock); }
    bool until(const std::function<bool()> &condition) { return eventually(condition); }
    void waitABit() { settle(); }

    std::vector<std::uint32_t> held;
};

/// Runs a program that changes the keyboard, and puts everything back at the end.
struct KeyboardSetup {
    static void run(const QString &program, const QStringList &arguments)
    {
        ASSERT_TRUE(e2e::outputOf(program, arguments, QProcessEnvironment::systemEnvironment()))
            << program.toStdString();
    }
    static void layout(const QStringList &arguments)
    {
        run(QStringLiteral("setxkbmap"), arguments);
    }
    static void modify(const QString &expression)
    {
        run(QStringLiteral("xmodmap"), {QStringLiteral("-e"), expression});
    }
    ~KeyboardSetup()
    {
        layout({QStringLiteral("-layout"), QStringLiteral("us"), QStringLiteral("-option"), {}});
        run(QStringLiteral("xset"), {QStringLiteral("r"), QStringLiteral("rate")});
        settle();
    }
};

template<typename Keyboard>
class HotKeysContract : public testing::Test {
protected:
    HotKeysContract()
    {
        keyboard.service.installHandler([this](const std::optional<HotKeyIdentifier> &pressed) {
            heard.push_back(pressed.value_or(HotKeyIdentifier{}).id);
        });
    }
    /// Null where it is refused. What is given lasts until it is ended.
    Subscription *take(Key key, std::uint32_t modifiers, std::uint32_t id = 1)
    {
        auto [outcome, subscription] = keyboard.service.registerHotKey(
            key.code, modifiers, {0x4352564E, id},
            [this](const ShortcutOutcome &later) { outcomes.push_back(later); });
        EXPECT_EQ(outcome.isRefused(), !subscription.isActive());
        refusal = outcome.why;
        if (outcome.isRefused())
            return nullptr;
        EXPECT_EQ(outcome, ShortcutOutcome::bound());
        return &taken.emplace_back(std::move(subscription));
    }
    /// Whether exactly these were heard of in the end.
    bool hears(const std::vector<std::uint32_t> &ids)
    {
        const bool came = keyboard.until([&] { return heard.size() >= ids.size(); });
        keyboard.waitABit();
        return came && heard == ids;
    }

    Keyboard keyboard;
    std::vector<std::uint32_t> heard;
    std::vector<ShortcutOutcome> outcomes;
    ShortcutRefusal refusal = ShortcutRefusal::Taken;
    std::deque<Subscription> taken;
};

using AllKeyboards = testing::Types<FakeKeyboard, RealKeyboard>;
TYPED_TEST_SUITE(HotKeysContract, AllKeyboards);

class X11HotKeysTest : public HotKeysContract<RealKeyboard> { };

} // namespace

TYPED_TEST(HotKeysContract, aPressIsToldWithItsIdentifier)
{
    ASSERT_TRUE(this->take(keyD, command | shift, 7));
    this->keyboard.press(keyD, command | shift);
    EXPECT_TRUE(this->hears({7}));
    this->keyboard.press(keyD, command | shift);
    EXPECT_TRUE(this->hears({7, 7}));
}

TYPED_TEST(HotKeysContract, everyModifierWorksAndOthersAreOthers)
{
    ASSERT_TRUE(this->take(keyK, control | option, 1));
    ASSERT_TRUE(this->take(keyD, control | option | shift | command, 2));
    this->keyboard.press(keyK, control);
    this->keyboard.press(keyK, option);
    this->keyboard.press(keyK, control | option | shift);
    this->keyboard.press(keyD, control | option);
    this->keyboard.press(keyK, control | option);
    EXPECT_TRUE(this->hears({1}));
    this->keyboard.press(keyD, control | option | shift | command);
    EXPECT_TRUE(this->hears({1, 2}));
}

TYPED_TEST(HotKeysContract, whatAnotherProgramHoldsIsRefused)
{
    this->keyboard.takeElsewhere(keyD, command | shift);
    EXPECT_FALSE(this->take(keyD, command | shift));
    EXPECT_EQ(this->refusal, ShortcutRefusal::Taken);
    EXPECT_TRUE(this->take(keyD, command | control));
    this->keyboard.press(keyD, command | shift);
    this->keyboard.waitABit();
    EXPECT_TRUE(this->heard.empty());
}

TYPED_TEST(HotKeysContract, whatAnotherRegistrationOfOursHoldsIsRefused)
{
    auto *const first = this->take(keyD, command | shift, 1);
    ASSERT_TRUE(first);
    EXPECT_FALSE(this->take(keyD, command | shift, 2));
    this->keyboard.press(keyD, command | shift);
    EXPECT_TRUE(this->hears({1}));
    first->end();
    EXPECT_TRUE(this->take(keyD, command | shift, 2));
    this->keyboard.press(keyD, command | shift);
    EXPECT_TRUE(this->hears({1, 2}));
}

TYPED_TEST(HotKeysContract, whatIsNotRegisteredAnyMoreIsNotHeard)
{
    auto *const registration = this->take(keyD, command | shift);
    ASSERT_TRUE(registration);
    registration->end();
    this->keyboard.press(keyD, command | shift);
    this->keyboard.waitABit();
    EXPECT_TRUE(this->heard.empty());
}

TYPED_TEST(HotKeysContract, impossibleValuesAreRefused)
{
    for (const std::uint32_t code : {9999U, 0xffffU, 0xffffffffU})
        EXPECT_FALSE(this->take({KeyPosition{code}, 0}, command)) << code;
    for (const std::uint32_t modifiers : {1U, 1024U, command | 0x10000U, 0xffffffffU})
        EXPECT_FALSE(this->take(keyD, modifiers)) << modifiers;
}

TYPED_TEST(HotKeysContract, whatTheUserTypesWithIsRefused)
{
    constexpr KeyPosition leftShift{56};
    constexpr KeyPosition capsLockKey{57};
    for (const std::uint32_t modifiers : {0U, shift}) {
        EXPECT_FALSE(this->take(keyD, modifiers)) << modifiers;
        EXPECT_EQ(this->refusal, ShortcutRefusal::TypesCharacter);
    }
    EXPECT_FALSE(this->take({leftShift, keys::shift}, option));
    EXPECT_FALSE(this->take({capsLockKey, capsLock}, control));
    this->keyboard.press(keyD, shift);
    this->keyboard.waitABit();
    EXPECT_TRUE(this->heard.empty());
}

TYPED_TEST(HotKeysContract, whileSuspendedNothingIsHeard)
{
    ASSERT_TRUE(this->take(keyD, command | shift));
    {
        const auto outer = this->keyboard.service.suspend();
        auto inner = this->keyboard.service.suspend();
        inner.reset();
        this->keyboard.press(keyD, command | shift);
        this->keyboard.waitABit();
        EXPECT_TRUE(this->heard.empty()) << "until the last of them is gone";
    }
    this->keyboard.press(keyD, command | shift);
    EXPECT_TRUE(this->hears({1}));
}

TYPED_TEST(HotKeysContract, whileSuspendedTakenIsTakenAndFreeIsFree)
{
    this->keyboard.takeElsewhere(keyK, command);
    {
        const auto suspension = this->keyboard.service.suspend();
        EXPECT_FALSE(this->take(keyK, command, 1));
        EXPECT_TRUE(this->take(keyD, command | control, 2));
        EXPECT_FALSE(this->take(keyD, command | control, 3));
        this->keyboard.press(keyD, command | control);
        this->keyboard.waitABit();
        EXPECT_TRUE(this->heard.empty());
    }
    this->keyboard.press(keyD, command | control);
    EXPECT_TRUE(this->hears({2}));
}

TYPED_TEST(HotKeysContract, aHandlerMayUnregisterItsOwnHotKey)
{
    auto *const registration = this->take(keyD, command | control);
    ASSERT_TRUE(registration);
    this->keyboard.service.installHandler([&](const auto &) { registration->end(); });
    this->keyboard.press(keyD, command | control);
    EXPECT_TRUE(this->hears({1}));
    this->keyboard.press(keyD, command | control);
    this->keyboard.waitABit();
    EXPECT_TRUE(this->hears({1}));
}

TEST_F(X11HotKeysTest, worksWithEveryLockOn)
{
    const KeyboardSetup setup;
    KeyboardSetup::modify(QStringLiteral("add mod3 = Scroll_Lock"));
    settle();
    ASSERT_TRUE(take(keyD, command | shift));
    std::vector<std::uint32_t> expected;
    const std::vector<std::vector<std::uint32_t>> combinations
        = {{capsLock}, {numLock}, {capsLock, numLock}, {scrollLock}, {numLock, scrollLock}};
    for (const auto &locks : combinations) {
        for (const std::uint32_t lock : locks)
            keyboard.toggle(lock);
        keyboard.press(keyD, command | shift);
        expected.push_back(1);
        EXPECT_TRUE(hears(expected)) << locks.size() << " locks, the first " << locks.front();
        for (const std::uint32_t lock : locks)
            keyboard.toggle(lock);
    }
}

TEST_F(X11HotKeysTest, aCombinationTakenUnderOneLockOnlyIsRefusedWhole)
{
    ASSERT_TRUE(keyboard.grabElsewhere(keyD, command | control, true, XCB_MOD_MASK_LOCK));
    EXPECT_FALSE(take(keyD, command | control));
    EXPECT_TRUE(eventually([&] { return keyboard.isFree(keyD, command | control); }))
        << "the variants that were free are let go again";
}

TEST_F(X11HotKeysTest, aRegistrationIsOursAloneAndFreeAfterwards)
{
    auto *const registration = take(keyD, command | shift);
    ASSERT_TRUE(registration);
    EXPECT_FALSE(keyboard.isFree(keyD, command | shift));
    {
        const auto suspension = keyboard.service.suspend();
        EXPECT_TRUE(eventually([&] { return keyboard.isFree(keyD, command | shift); }));
    }
    EXPECT_FALSE(keyboard.isFree(keyD, command | shift));
    registration->end();
    EXPECT_TRUE(eventually([&] { return keyboard.isFree(keyD, command | shift); }));
}

TEST_F(X11HotKeysTest, aHeldKeyIsOnePress)
{
    const KeyboardSetup setup;
    KeyboardSetup::run(
        QStringLiteral("xset"),
        {QStringLiteral("r"), QStringLiteral("rate"), QStringLiteral("60"), QStringLiteral("100")});
    ASSERT_TRUE(take(keyD, command | shift));
    keyboard.hold(keyD, command | shift);
    // Many repetitions long.
    eventually([] { return false; }, std::chrono::milliseconds{400});
    keyboard.letGo();
    EXPECT_TRUE(hears({1}));
    keyboard.press(keyD, command | shift);
    EXPECT_TRUE(hears({1, 1}));
}

TEST_F(X11HotKeysTest, aKeyThatIsStillHeldWhenItIsTakenIsNoPress)
{
    const KeyboardSetup setup;
    KeyboardSetup::run(
        QStringLiteral("xset"),
        {QStringLiteral("r"), QStringLiteral("rate"), QStringLiteral("60"), QStringLiteral("100")});
    keyboard.hold(keyD, command | shift);
    ASSERT_TRUE(take(keyD, command | shift));
    eventually([] { return false; }, std::chrono::milliseconds{400});
    keyboard.letGo();
    settle();
    EXPECT_TRUE(heard.empty());
    keyboard.press(keyD, command | shift);
    EXPECT_TRUE(hears({1}));
}

TEST_F(X11HotKeysTest, staysWithTheKeysPositionInEveryLayout)
{
    const KeyboardSetup setup;
    ASSERT_TRUE(take(keyD, command | shift));
    KeyboardSetup::layout({QStringLiteral("-layout"), QStringLiteral("us"),
                           QStringLiteral("-variant"), QStringLiteral("dvorak")});
    settle();
    // What types an e there stands where others have their d.
    keyboard.press({keyD.code, 'e'}, command | shift);
    EXPECT_TRUE(hears({1}));
}

TEST_F(X11HotKeysTest, worksInTheSecondLayoutOfTwo)
{
    const KeyboardSetup setup;
    KeyboardSetup::layout({QStringLiteral("-layout"), QStringLiteral("us,ru"),
                           QStringLiteral("-option"), QStringLiteral("grp:menu_toggle")});
    settle();
    ASSERT_TRUE(take(keyD, command | shift));
    keyboard.display.hands.key(nextLayout);

    keyboard.press(keyD, command | shift);

    EXPECT_TRUE(hears({1}));
}

TEST_F(X11HotKeysTest, followsAModifierThatMovesToAnotherBit)
{
    const KeyboardSetup setup;
    ASSERT_TRUE(take(keyD, command | control));
    KeyboardSetup::modify(QStringLiteral("clear mod4"));
    KeyboardSetup::modify(QStringLiteral("add mod3 = Super_L"));
    settle();
    keyboard.press(keyD, command | control);
    EXPECT_TRUE(hears({1}));
}

TEST_F(X11HotKeysTest, followsTheModifiersAlsoAfterAKeyWasNamed)
{
    const KeyboardSetup setup;
    EXPECT_EQ(X11KeyboardLayout().charactersOf(keyD.code), QStringLiteral("d"));
    ASSERT_TRUE(take(keyD, command | control));
    KeyboardSetup::layout({QStringLiteral("-layout"), QStringLiteral("us,ru"),
                           QStringLiteral("-option"), QStringLiteral("grp:menu_toggle")});
    KeyboardSetup::modify(QStringLiteral("clear mod4"));
    KeyboardSetup::modify(QStringLiteral("add mod3 = Super_L"));
    settle();
    keyboard.display.hands.key(nextLayout);
    EXPECT_EQ(X11KeyboardLayout().charactersOf(keyD.code), QStringLiteral("в"));
    keyboard.press(keyD, command | control);
    EXPECT_TRUE(hears({1}));
}

TEST_F(X11HotKeysTest, withoutASuperKeyItIsRefusedAndComesBackWithTheKey)
{
    ASSERT_TRUE(take(keyD, command | control));
    {
        const KeyboardSetup setup;
        testing::internal::CaptureStderr();
        KeyboardSetup::modify(QStringLiteral("clear mod4"));
        EXPECT_TRUE(eventually([&] { return keyboard.isFree(keyD, command | control); }));
        settle();
        EXPECT_FALSE(take(keyK, command, 2));
        KeyboardSetup::modify(QStringLiteral("clear mod2"));
        settle();
        const QString said = QString::fromStdString(testing::internal::GetCapturedStderr());
        EXPECT_EQ(said.count(QStringLiteral("cannot be taken:")), 1) << qPrintable(said);
    }
    EXPECT_TRUE(eventually([&] { return !keyboard.isFree(keyD, command | control); }));
    EXPECT_EQ(outcomes, (std::vector{ShortcutOutcome::refused(), ShortcutOutcome::bound()}));
    keyboard.press(keyD, command | control);
    EXPECT_TRUE(hears({1}));
}

TEST_F(X11HotKeysTest, whatWasTakenElsewhereDuringASuspensionIsSaidOnceAndCostsNothingElse)
{
    ASSERT_TRUE(take(keyD, command | control, 1));
    ASSERT_TRUE(take(keyK, command, 2));
    auto suspension = keyboard.service.suspend();
    ASSERT_TRUE(eventually([&] { return keyboard.isFree(keyD, command | control); }));
    keyboard.takeElsewhere(keyD, command | control);
    testing::internal::CaptureStderr();
    suspension.reset();
    suspension = keyboard.service.suspend();
    suspension.reset();
    const QString said = QString::fromStdString(testing::internal::GetCapturedStderr());
    EXPECT_EQ(said.count(QStringLiteral("cannot be taken:")), 1) << qPrintable(said);
    EXPECT_EQ(outcomes, std::vector{ShortcutOutcome::refused()});
    keyboard.press(keyD, command | control);
    keyboard.press(keyK, command);
    EXPECT_TRUE(hears({2}));
}

TEST_F(X11HotKeysTest, worksWhileAnotherProgramHoldsThePointer)
{
    ASSERT_TRUE(take(keyD, command | control));
    auto *const server = keyboard.other.connection();
    std::free(xcb_grab_pointer_reply(server,
                                     xcb_grab_pointer(server, 0, keyboard.other.root(),
                                                      XCB_EVENT_MASK_BUTTON_RELEASE,
                                                      XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC,
                                                      e2e::noWindow, e2e::noAtom, XCB_CURRENT_TIME),
                                     nullptr));
    keyboard.press(keyD, command | control);
    EXPECT_TRUE(hears({1}));
}

TEST_F(X11HotKeysTest, aServerThatKeepsSilentForAMomentCostsNoKey)
{
    const auto handle = take(keyD, command | control);
    ASSERT_TRUE(handle);
    X11Connection connection;
    std::optional<X11HotKeys> later;
    HotKeyService::Registration registration;
    QList<ShortcutOutcome> told;
    EXPECT_TRUE(endsWhileTheServerStandsStill(connection.get(), [&] {
        // Taken away and back.
        keyboard.service.suspend().reset();
        later.emplace(connection, keyboard.queue);
        registration
            = later->registerHotKey(keyK.code, command | control, {},
                                    [&](const ShortcutOutcome &outcome) { told << outcome; });
        EXPECT_EQ(registration.outcome, ShortcutOutcome::pending());
    }));
    // What was asked for while the server stood still is done and undone first.
    EXPECT_TRUE(eventually([&] {
        keyboard.press(keyD, command | control);
        return !heard.empty();
    }));
    EXPECT_TRUE(eventually([&] { return told == QList{ShortcutOutcome::bound()}; }));
    EXPECT_FALSE(keyboard.isFree(keyK, command | control));
}

TEST_F(X11HotKeysTest, aServerThatKeepsSilentForLongerIsAskedAgainUntilItAnswers)
{
    TestClock clock;
    X11Connection connection;
    std::optional<X11HotKeys> later;
    HotKeyService::Registration registration;
    QList<ShortcutOutcome> told;
    EXPECT_TRUE(endsWhileTheServerStandsStill(connection.get(), [&] {
        later.emplace(connection, clock);
        registration
            = later->registerHotKey(keyK.code, command | control, {},
                                    [&](const ShortcutOutcome &outcome) { told << outcome; });
        // The modifiers are not known yet.
        clock.advance(1);
    }));
    EXPECT_TRUE(eventually([&] {
        clock.advance(1);
        return told == QList{ShortcutOutcome::bound()};
    }));
    told.clear();
    EXPECT_TRUE(endsWhileTheServerStandsStill(connection.get(), [&] {
        later->suspend().reset();
        clock.advance(1);
    }));
    EXPECT_EQ(told, QList{ShortcutOutcome::pending()});
    EXPECT_TRUE(eventually([&] { return connection.atom("CORVANE_AWAKE") != XCB_NONE; }));
    auto suspension = later->suspend();
    clock.advance(2);
    EXPECT_EQ(told, QList{ShortcutOutcome::pending()}) << "not while it is suspended";
    EXPECT_TRUE(keyboard.isFree(keyK, command | control));
    suspension.reset();
    EXPECT_EQ(told, (QList{ShortcutOutcome::pending(), ShortcutOutcome::bound()}));
    EXPECT_FALSE(keyboard.isFree(keyK, command | control));
}

TEST_F(X11HotKeysTest, whenItEndsItsKeysAreFree)
{
    auto second = std::make_unique<X11HotKeys>(keyboard.connection, keyboard.queue);
    const auto registration = second->registerHotKey(keyD.code, command | control, {1, 1}, {});
    ASSERT_EQ(registration.outcome, ShortcutOutcome::bound());
    EXPECT_FALSE(keyboard.isFree(keyD, command | control));
    second.reset();
    EXPECT_TRUE(eventually([&] { return keyboard.isFree(keyD, command | control); }));
}

} // namespace corvane::test
