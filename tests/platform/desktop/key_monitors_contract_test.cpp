#include "e2e/desktop/program.h"
#include "platform/display.h"
#include "platform/qt/desktop/qt_key_monitors.h"
#include "platform/x11/keys/x11_keyboard_layout.h"

#include <QLineEdit>
#include <QShortcut>
#include <QVBoxLayout>
#include <QWidget>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

namespace keys = e2e::keys;
using Kind = KeyMonitors::Event::Kind;
using Disposition = KeyMonitors::Disposition;

/// Of keys that layouts give other meanings.
namespace place {
constexpr xcb_keycode_t escape = 9, control = 37, shift = 50, alt = 64, space = 65, capsLock = 66,
                        rightAlt = 108, super = 133;
} // namespace place

void setLayout(const QStringList &arguments)
{
    ASSERT_TRUE(e2e::outputOf(QStringLiteral("setxkbmap"), arguments,
                              QProcessEnvironment::systemEnvironment()));
    settle();
}

/// A window of ours with a text field, a shortcut and the keyboard.
class QtKeyMonitorsTest : public testing::Test {
protected:
    QtKeyMonitorsTest()
    {
        auto *const column = new QVBoxLayout(&window);
        column->addWidget(&first);
        column->addWidget(&second);
        first.setAttribute(Qt::WA_InputMethodEnabled, false);
        QObject::connect(&shortcut, &QShortcut::activated, &window, [this] { ++activations; });
        window.setGeometry(200, 200, 300, 120);
        window.show();
        window.activateWindow();
        first.setFocus();
        EXPECT_TRUE(eventually([this] { return window.isActiveWindow() && first.hasFocus(); }));
    }
    ~QtKeyMonitorsTest() override
    {
        for (const std::uint32_t symbol : {keys::shift, keys::control, keys::alt, keys::super})
            display.hands.keyUp(symbol);
        if (hasOtherLayout)
            setLayout({QStringLiteral("-layout"), QStringLiteral("us"), QStringLiteral("-option"),
                       QString()});
    }
    [[nodiscard]] Subscription listen(Disposition disposition)
    {
        return monitors.addLocalMonitor([this, disposition](const KeyMonitors::Event &event) {
            if (event.kind == Kind::KeyDown)
                heard.push_back(event);
            else
                ++modifierChanges;
            return disposition;
        });
    }
    /// What the monitor hears of one key.
    KeyMonitors::Event hear(std::uint32_t symbol,
                            std::initializer_list<std::uint32_t> modifiers = {})
    {
        heard.clear();
        display.hands.key(symbol, modifiers);
        const bool came = eventually([this] { return !heard.empty(); });
        settle();
        return came ? heard.front() : KeyMonitors::Event{};
    }
    void useLayout(const QStringList &arguments)
    {
        hasOtherLayout = true;
        setLayout(arguments);
    }

    Display display;
    X11KeyboardLayout layout;
    QtKeyMonitors monitors{layout};
    QWidget window;
    QLineEdit first;
    QLineEdit second;
    QShortcut shortcut{QKeySequence(Qt::CTRL | Qt::Key_K), &window};
    std::vector<KeyMonitors::Event> heard;
    int modifierChanges = 0;
    int activations = 0;
    bool hasOtherLayout = false;
};

} // namespace

TEST_F(QtKeyMonitorsTest, swallowedKeysReachNothingElseOfTheWindow)
{
    Subscription monitor = listen(Disposition::Swallow);
    EXPECT_EQ(hear('a').keyCode, KeyPosition{0});
    EXPECT_EQ(hear(keys::tab).keyCode, KeyPosition{48});
    EXPECT_EQ(hear(keys::enter).keyCode, KeyPosition{36});
    EXPECT_EQ(hear('k', {keys::control}).keyCode, KeyPosition{40});
    EXPECT_TRUE(first.hasFocus());
    EXPECT_EQ(first.text(), QString());
    EXPECT_EQ(activations, 0);

    monitor.end();
    heard.clear();
    display.hands.key('a');
    display.hands.key('k', {keys::control});
    EXPECT_TRUE(eventually([this] { return activations == 1; }));
    EXPECT_EQ(first.text(), QStringLiteral("a"));
    EXPECT_TRUE(heard.empty());
}

TEST_F(QtKeyMonitorsTest, aKeyThatIsLetPassGoesItsWay)
{
    const Subscription monitor = listen(Disposition::Pass);
    EXPECT_EQ(hear('a').charactersIgnoringModifiers, QStringLiteral("a"));
    EXPECT_TRUE(eventually([this] { return first.text() == QStringLiteral("a"); }));
}

TEST_F(QtKeyMonitorsTest, modifiersAreTheKeysThemselvesAndSuperIsCommand)
{
    const Subscription monitor = listen(Disposition::Swallow);
    EXPECT_EQ(hear('a', {keys::control}).modifiers, Modifiers(Modifier::Control));
    EXPECT_EQ(hear('a', {keys::super}).modifiers, Modifiers(Modifier::Command));
    EXPECT_EQ(hear('a', {keys::alt}).modifiers, Modifiers(Modifier::Option));
    EXPECT_EQ(hear('a', {keys::control, keys::shift}).modifiers,
              Modifier::Control | Modifier::Shift);
    EXPECT_GE(modifierChanges, 5) << "each going down told by itself";
    EXPECT_EQ(heard.size(), 1U);
}

TEST_F(QtKeyMonitorsTest, aKeyIsNamedByWhatItTypesWithNoModifierHeld)
{
    const Subscription monitor = listen(Disposition::Swallow);
    const auto digit = hear('1', {keys::control, keys::shift});
    EXPECT_EQ(digit.keyCode, KeyPosition{18});
    EXPECT_EQ(digit.charactersIgnoringModifiers, QStringLiteral("1"));
    EXPECT_EQ(hear('d', {keys::control}).charactersIgnoringModifiers, QStringLiteral("d"));
}

TEST_F(QtKeyMonitorsTest, layoutsNameTheKeyAndItsPositionGivesTheCode)
{
    const Subscription monitor = listen(Disposition::Swallow);
    useLayout({QStringLiteral("-layout"), QStringLiteral("de")});
    constexpr std::uint32_t uDiaeresis = 0xfc;
    const auto umlaut = hear(uDiaeresis, {keys::control});
    EXPECT_EQ(umlaut.keyCode, KeyPosition{33});
    EXPECT_EQ(umlaut.charactersIgnoringModifiers, QStringLiteral("ü"));
    // Left of the 1 stands a dead key, which types nothing by itself.
    EXPECT_EQ(layout.charactersOf(KeyPosition{50}), QStringLiteral("^"));

    useLayout({QStringLiteral("-layout"), QStringLiteral("ru")});
    constexpr std::uint32_t cyrillicVe = 0x6d7;
    const auto letter = hear(cyrillicVe, {keys::control});
    EXPECT_EQ(letter.keyCode, KeyPosition{2});
    EXPECT_EQ(letter.charactersIgnoringModifiers, QStringLiteral("в"));
}

TEST_F(QtKeyMonitorsTest, whatSwitchesLayoutsIsAModifierChange)
{
    const Subscription monitor = listen(Disposition::Swallow);
    struct Way {
        const char *option;
        std::vector<xcb_keycode_t> held;
    };
    const std::vector<Way> ways = {
        {"grp:alt_shift_toggle", {place::alt, place::shift}},
        {"grp:alt_shift_toggle", {place::shift, place::alt}},
        {"grp:ctrl_shift_toggle", {place::control, place::shift}},
        {"grp:ctrl_shift_toggle", {place::shift, place::control}},
        {"grp:ctrl_alt_toggle", {place::control, place::alt}},
        {"grp:win_space_toggle", {place::super, place::space}},
        {"grp:caps_toggle", {place::control, place::capsLock}},
        {"grp:shift_caps_toggle", {place::alt, place::shift, place::capsLock}},
        {"compose:ralt", {place::control, place::rightAlt}},
        {"compose:caps", {place::alt, place::capsLock}},
        {"lv3:caps_switch", {place::control, place::capsLock}},
        {"lv5:ralt_switch_lock", {place::control, place::rightAlt}},
        {"korean:ralt_hangul", {place::control, place::rightAlt}},
    };
    for (const Way &way : ways) {
        // Options add up otherwise.
        useLayout({QStringLiteral("-layout"), QStringLiteral("us,ru"), QStringLiteral("-option"),
                   QString(), QStringLiteral("-option"), QLatin1String(way.option)});
        heard.clear();
        modifierChanges = 0;
        for (const xcb_keycode_t key : way.held)
            display.hands.keyDownAt(key);
        // Not each by itself: the toolkit keeps some of them, such as Compose, to itself.
        EXPECT_TRUE(eventually([&] { return modifierChanges > 0; })) << way.option;
        settle();
        for (const xcb_keycode_t key : way.held)
            display.hands.keyUpAt(key);
        settle();
        EXPECT_TRUE(heard.empty()) << way.option;
    }
}

TEST_F(QtKeyMonitorsTest, theLevelsOfTheNeoLayoutAreModifierChanges)
{
    constexpr std::uint32_t level3 = 0xfe03;
    constexpr std::uint32_t level5 = 0xfe11;
    const Subscription monitor = listen(Disposition::Swallow);
    useLayout({QStringLiteral("-layout"), QStringLiteral("de"), QStringLiteral("-variant"),
               QStringLiteral("neo")});
    for (const std::uint32_t symbol : {level3, level5}) {
        heard.clear();
        modifierChanges = 0;
        display.hands.key(symbol, {keys::control});
        EXPECT_TRUE(eventually([&] { return modifierChanges >= 4 || !heard.empty(); }));
        settle();
        EXPECT_TRUE(heard.empty()) << symbol;
    }
}

TEST_F(QtKeyMonitorsTest, escapeIsToldByItsSymbolAndItsPlaceIsAlwaysAKey)
{
    const Subscription monitor = listen(Disposition::Swallow);
    EXPECT_TRUE(hear(keys::escape).isEscape);
    EXPECT_FALSE(hear('a').isEscape);
    useLayout({QStringLiteral("-layout"), QStringLiteral("us"), QStringLiteral("-option"),
               QStringLiteral("caps:swapescape")});
    const auto tap = [&](xcb_keycode_t key) {
        heard.clear();
        display.hands.keyDownAt(key);
        display.hands.keyUpAt(key);
        const bool came = eventually([this] { return !heard.empty(); });
        settle();
        return came ? heard.front() : KeyMonitors::Event{};
    };
    const auto moved = tap(place::capsLock);
    EXPECT_TRUE(moved.isEscape);
    EXPECT_EQ(moved.keyCode, KeyPosition{57});
    const auto stranger = tap(place::escape);
    EXPECT_FALSE(stranger.isEscape);
    EXPECT_EQ(stranger.keyCode, KeyPosition::Escape);
    // It has locked the capitals.
    tap(place::escape);
}

TEST_F(QtKeyMonitorsTest, aMonitorMayRemoveItselfFromItsHandler)
{
    Subscription monitor;
    monitor = monitors.addLocalMonitor([&](const KeyMonitors::Event &event) {
        heard.push_back(event);
        monitor.end();
        return Disposition::Swallow;
    });
    hear('a');
    display.hands.key('b');
    EXPECT_TRUE(eventually([this] { return first.text() == QStringLiteral("b"); }));
    EXPECT_EQ(heard.size(), 1U);
}

TEST_F(QtKeyMonitorsTest, aKeypadsDigitIsNamedByItsDigit)
{
    EXPECT_EQ(layout.charactersOf(KeyPosition{83}), QStringLiteral("1"));
    EXPECT_EQ(layout.charactersOf(KeyPosition{53}), QString());
    EXPECT_EQ(layout.charactersOf(KeyPosition{9999}), QString());
}

} // namespace corvane::test
