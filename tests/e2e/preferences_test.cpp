// The preferences' shortcuts and switches, by pointer and keyboard, read as a screen reader does.

#include "e2e/desktop/rival.h"
#include "e2e/desktop/screen_reader.h"
#include "e2e/desktop/text_editor.h"
#include "e2e/desktop_test.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <csignal>

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

constexpr QSize preferencesSize{480, 560};
constexpr QSize guideSize{520, 560};
const auto shelf = u"Show or hide the shelf"_s;
const auto everything = u"Show or hide all items"_s;
const auto prompt = u": Type a shortcut…"_s;
const auto taken = u"Another app already uses that combination."_s;
const auto typesACharacter
    = u"That combination types a character. Record one with Super, Alt or Ctrl."_s;
const auto unset = u"Unset by default. The Down key on the shelf does the same thing."_s;
const auto usual = u"Needs Super, Alt or Ctrl. If you clear it, the icon in the panel remains."_s;
/// Of the keys that carry the d, the j and the k, whatever the layout.
constexpr xcb_keycode_t positionOfD = 40;
constexpr xcb_keycode_t positionOfJ = 44;
constexpr xcb_keycode_t positionOfK = 45;

/// Another keyboard layout, until the end of the test.
class KeyboardSetup {
public:
    KeyboardSetup(const XDesktop &desktop, const QStringList &arguments)
        : m_environment(desktop.environment())
    {
        EXPECT_TRUE(outputOf(u"setxkbmap"_s, arguments, m_environment));
    }
    ~KeyboardSetup()
    {
        outputOf(u"setxkbmap"_s, {u"-layout"_s, u"us"_s, u"-option"_s, QString()}, m_environment);
    }
    KeyboardSetup(const KeyboardSetup &) = delete;
    KeyboardSetup &operator=(const KeyboardSetup &) = delete;

private:
    QProcessEnvironment m_environment;
};

class Preferences : public EveryDesktop {
protected:
    void SetUp() override
    {
        EveryDesktop::SetUp();
        ASSERT_TRUE(m_reader.isReady());
    }
    void startWithPreferences(CorvaneProgram::Start how = {})
    {
        if (how.environment.isEmpty())
            how.environment = m_desktop.environment();
        ScreenReader::addTo(how.environment);
        start(how);
        openPreferences();
    }
    /// As the desktop's menu for the program does.
    void openPreferences()
    {
        ASSERT_TRUE(corvane().activateAction(u"preferences"_s));
        ASSERT_TRUE(eventually([this] {
            const auto found = window();
            return found && server().activeWindow() == found->id;
        }));
        m_desktop.pictureAtRest(window().value_or(WindowFacts{}).frame);
    }
    std::optional<WindowFacts> window(QSize size = preferencesSize)
    {
        return corvane().window(size);
    }
    std::optional<ScreenReader::Element> control(const QString &name,
                                                 const QString &description = {})
    {
        return m_reader.control(corvane().program().pid(), name, description);
    }
    /// Clicks into a control's middle, having brought it into sight.
    testing::AssertionResult click(const QString &name, const QString &description = {})
    {
        const QRect sight = window().value_or(WindowFacts{}).frame.adjusted(0, 60, 0, -30);
        const bool isInSight = eventually([&] {
            const auto found = control(name, description);
            if (found && sight.contains(found->frame.center()))
                return true;
            hands().moveTo(sight.center());
            hands().turn(Hands::Wheel::Down);
            m_desktop.pictureAtRest(sight);
            return false;
        });
        if (!isInSight)
            return testing::AssertionFailure() << "there is no " << qPrintable(name);
        hands().click(control(name, description)->frame.center());
        return testing::AssertionSuccess();
    }
    bool waitFor(const QString &name, const QString &description = {})
    {
        return eventually([&] { return control(name, description).has_value(); });
    }
    void press(uint32_t letter) { hands().key(letter, {keys::super, keys::shift}); }
    /// The combination opens the shelf and closes it again.
    void expectItToggles(uint32_t letter)
    {
        press(letter);
        EXPECT_TRUE(corvane().waitUntilShown());
        press(letter);
        EXPECT_TRUE(corvane().waitUntilHidden());
    }
    QString loginItem() const
    {
        return m_desktop.environment().value(u"XDG_CONFIG_HOME"_s)
            + u"/autostart/corvane.desktop"_s;
    }

    ScreenReader m_reader{m_desktop};
};
INSTANTIATE_TEST_SUITE_P(, Preferences, twoDesktops(), nameOf);

TEST_P(Preferences, aRecordedCombinationTakesThePlaceOfTheOldOne)
{
    startWithPreferences();
    ASSERT_TRUE(waitFor(shelf + u": Super+Shift+D"_s));
    ASSERT_TRUE(click(shelf));
    ASSERT_TRUE(waitFor(shelf + prompt));
    press('j');
    EXPECT_TRUE(waitFor(shelf + u": Super+Shift+J"_s, usual));
    EXPECT_TRUE(eventually([&] { return corvane().settings().contains("keyCode\\\":38"); }))
        << corvane().settings().constData();
    // Were the old one alive as well, both together would change nothing.
    press('d');
    expectItToggles('j');
    EXPECT_TRUE(Rival(m_desktop).grab(positionOfK));
    EXPECT_FALSE(Rival(m_desktop).grab(positionOfJ));
}

TEST_P(Preferences, escapeAndASecondClickEndRecordingWithoutAChange)
{
    startWithPreferences();
    ASSERT_TRUE(click(shelf));
    ASSERT_TRUE(waitFor(shelf + prompt));
    hands().key(keys::escape);
    EXPECT_TRUE(waitFor(shelf + u": Super+Shift+D"_s));
    EXPECT_TRUE(window()) << "Escape was for the field";
    ASSERT_TRUE(click(shelf));
    ASSERT_TRUE(waitFor(shelf + prompt));
    ASSERT_TRUE(click(shelf));
    EXPECT_TRUE(waitFor(shelf + u": Super+Shift+D"_s));
    expectItToggles('d');
}

TEST_P(Preferences, whileRecordingThePresentCombinationIsRecordedAndOpensNothing)
{
    startWithPreferences();
    MapLog log(m_desktop.environment().value(u"DISPLAY"_s).toLatin1());
    ASSERT_TRUE(click(shelf));
    ASSERT_TRUE(waitFor(shelf + prompt));
    // No shortcut; it goes on waiting.
    hands().key('a', {keys::shift});
    EXPECT_TRUE(waitFor(shelf + prompt));
    press('d');
    EXPECT_TRUE(waitFor(shelf + u": Super+Shift+D"_s));
    EXPECT_EQ(log.panelsShown(corvane().program().pid()), 0);
    expectItToggles('d');
}

TEST_P(Preferences, aClearedShortcutDoesNothingAndStaysCleared)
{
    startWithPreferences();
    ASSERT_TRUE(click(shelf + u": Clear the shortcut"_s));
    EXPECT_TRUE(waitFor(shelf + u": Record Shortcut"_s, usual));
    press('d');
    EXPECT_EQ(corvane().startAgain(), 0);
    EXPECT_TRUE(corvane().waitForSize(CorvaneProgram::empty)) << "the key would have opened it";
    corvane().program().signal(SIGTERM);
    ASSERT_EQ(corvane().program().waitForEnd(), 0);

    CorvaneProgram::Start again;
    again.keepsSettings = true;
    startWithPreferences(again);
    EXPECT_TRUE(waitFor(shelf + u": Record Shortcut"_s));
}

TEST_P(Preferences, aCombinationOfAnotherProgramIsSaidAndAFreeOneTakesThatBack)
{
    Rival rival(m_desktop);
    ASSERT_TRUE(rival.grab(positionOfK));
    startWithPreferences();
    const qint64 pid = corvane().program().pid();
    EXPECT_FALSE(m_reader.says(pid, taken));
    ASSERT_TRUE(click(shelf));
    ASSERT_TRUE(waitFor(shelf + prompt));
    press('k');
    ASSERT_TRUE(waitFor(shelf + u": Super+Shift+K"_s, taken));
    EXPECT_TRUE(m_reader.says(pid, taken));
    press('d');
    EXPECT_EQ(corvane().startAgain(), 0);
    EXPECT_TRUE(corvane().waitForSize(CorvaneProgram::empty)) << "the old one is dead, too";
    EXPECT_EQ(corvane().startAgain(), 0);
    EXPECT_TRUE(corvane().waitUntilHidden());

    ASSERT_TRUE(click(shelf));
    ASSERT_TRUE(waitFor(shelf + prompt));
    press('j');
    EXPECT_TRUE(waitFor(shelf + u": Super+Shift+J"_s, usual));
    EXPECT_FALSE(m_reader.says(pid, taken));
    expectItToggles('j');
}

TEST_P(Preferences, theCombinationOfTheOtherShortcutIsSaidToBeTaken)
{
    startWithPreferences();
    ASSERT_TRUE(click(everything));
    ASSERT_TRUE(waitFor(everything + prompt));
    press('d');
    EXPECT_TRUE(waitFor(everything + u": Super+Shift+D"_s, taken));
    expectItToggles('d');
}

TEST_P(Preferences, ofTwoEqualCombinationsTheOtherOneWorksWhenOneIsCleared)
{
    startWithPreferences();
    ASSERT_TRUE(click(everything));
    ASSERT_TRUE(waitFor(everything + prompt));
    press('d');
    ASSERT_TRUE(waitFor(everything + u": Super+Shift+D"_s, taken));
    ASSERT_TRUE(click(shelf + u": Clear the shortcut"_s));
    EXPECT_TRUE(waitFor(everything + u": Super+Shift+D"_s, unset));
    EXPECT_FALSE(Rival(m_desktop).grab(positionOfD));
}

TEST_P(Preferences, aCombinationThatWasTakenAtLaunchIsSaidUntilItIsFree)
{
    {
        Rival rival(m_desktop);
        ASSERT_TRUE(rival.grab(positionOfD));
        startWithPreferences();
        EXPECT_TRUE(waitFor(shelf + u": Super+Shift+D"_s, taken));
        hands().key(keys::escape);
        ASSERT_TRUE(eventually([this] { return !window(); }));
    }
    openPreferences();
    EXPECT_TRUE(waitFor(shelf + u": Super+Shift+D"_s, usual));
    expectItToggles('d');
}

TEST_P(Preferences, switchingTheLayoutIsNotRecorded)
{
    const KeyboardSetup setup(m_desktop,
                              {u"-layout"_s, u"us,ru"_s, u"-option"_s, u"grp:alt_shift_toggle"_s});
    startWithPreferences();
    ASSERT_TRUE(click(shelf));
    ASSERT_TRUE(waitFor(shelf + prompt));
    for (int i = 0; i < 2; ++i)
        hands().key(keys::shift, {keys::alt});
    hands().key('a', {keys::shift});
    EXPECT_TRUE(waitFor(shelf + prompt));
    press('j');
    EXPECT_TRUE(waitFor(shelf + u": Super+Shift+J"_s, usual));
}

TEST_P(Preferences, escapeOnAnotherKeyEndsRecordingAndNothingElse)
{
    constexpr xcb_keycode_t placeOfCapsLock = 66;
    const KeyboardSetup setup(m_desktop, {u"-option"_s, u"caps:swapescape"_s});
    startWithPreferences();
    ASSERT_TRUE(click(shelf));
    ASSERT_TRUE(waitFor(shelf + prompt));
    hands().keyDownAt(placeOfCapsLock);
    hands().keyUpAt(placeOfCapsLock);
    EXPECT_TRUE(waitFor(shelf + u": Super+Shift+D"_s));
    EXPECT_TRUE(window()) << "Escape was for the field";
}

TEST_P(Preferences, aStoredKeyThatTypesIsNotTakenFromOtherPrograms)
{
    TextEditor editor(m_desktop, "text", QRect(40, 500, 300, 300));
    ASSERT_EQ(editor.problem(), QString());
    CorvaneProgram::Start how;
    how.settings = R"x(settings.shortcut="@ByteArray({\"keyCode\":0,\"modifiers\":512,)x"
                   R"x(\"character\":\"A\"})")x"
                   "\n";
    startWithPreferences(how);
    EXPECT_TRUE(waitFor(shelf + u": Shift+A"_s, typesACharacter));
    hands().key(keys::escape);
    ASSERT_TRUE(eventually([this] { return !window(); }));
    editor.selectAll();
    hands().key('a', {keys::shift});
    EXPECT_EQ(editor.text("A").trimmed(), "A");
    EXPECT_FALSE(corvane().isShown());
}

TEST_P(Preferences, keysThatComeTogetherWithEscapeReachNothing)
{
    startWithPreferences();
    // All of them are there before the first is looked at.
    corvane().program().signal(SIGSTOP);
    hands().key(keys::escape);
    for (int i = 0; i < 5; ++i)
        hands().key(keys::tab, {keys::control});
    hands().key(keys::space);
    corvane().program().signal(SIGCONT);
    ASSERT_TRUE(eventually([this] { return !window(); }));
    EXPECT_EQ(corvane().startAgain(), 0);
    EXPECT_TRUE(corvane().waitForSize(CorvaneProgram::empty));
    openPreferences();
    corvane().program().signal(SIGTERM);
    EXPECT_EQ(corvane().program().waitForEnd(), 0);
}

TEST_P(Preferences, launchAtLoginThatAnotherProgramSwitchedOffIsOffAndCanBeSwitchedOn)
{
    QDir().mkpath(QFileInfo(loginItem()).path());
    QFile entry(loginItem());
    ASSERT_TRUE(entry.open(QFile::WriteOnly));
    entry.write("[Desktop Entry]\nType=Application\nName=Corvane\nExec=true\n"
                "X-GNOME-Autostart-enabled=false\n");
    entry.close();
    CorvaneProgram::Start how;
    how.environment = m_desktop.environment();
    // As started from a terminal that is an AppImage itself.
    how.environment.insert(u"APPIMAGE"_s, u"/home/somebody/Terminal.AppImage"_s);
    how.environment.insert(u"APPDIR"_s, u"/tmp/.mount_Terminal"_s);
    startWithPreferences(how);
    ASSERT_TRUE(click(u"Launch at login"_s));
    const auto isWritten = [&] {
        const bool isOpen = entry.isOpen() || entry.open(QFile::ReadOnly);
        const QByteArray text = isOpen ? entry.readAll() : QByteArray();
        entry.close();
        return text.contains("X-GNOME-Autostart-enabled=true")
            && text.contains(CorvaneProgram::path().toUtf8());
    };
    EXPECT_TRUE(eventually(isWritten));
    QFile::remove(loginItem());
}

TEST_P(Preferences, aClickIntoAnotherWindowEndsRecordingAndGivesTheKeyboardBack)
{
    TextEditor editor(m_desktop, "text", QRect(40, 500, 300, 300));
    ASSERT_EQ(editor.problem(), QString());
    startWithPreferences();
    ASSERT_TRUE(click(shelf));
    ASSERT_TRUE(waitFor(shelf + prompt));
    // Beside where the next click goes: two on one place would select a word.
    hands().click(editor.firstWord());
    EXPECT_TRUE(waitFor(shelf + u": Super+Shift+D"_s));
    editor.selectAll();
    hands().key('x');
    EXPECT_EQ(editor.text("x").trimmed(), "x");
}

TEST_P(Preferences, launchAtLoginIsSwitchedOnAndOff)
{
    startWithPreferences();
    ASSERT_FALSE(QFile::exists(loginItem()));
    ASSERT_TRUE(click(u"Launch at login"_s));
    ASSERT_TRUE(eventually([&] { return QFile::exists(loginItem()); }));
    QFile entry(loginItem());
    ASSERT_TRUE(entry.open(QFile::ReadOnly));
    EXPECT_TRUE(entry.readAll().contains(CorvaneProgram::path().toUtf8()));
    ASSERT_TRUE(click(u"Launch at login"_s));
    EXPECT_TRUE(eventually([&] { return !QFile::exists(loginItem()); }));
}

TEST_P(Preferences, everyControlSaysWhatItIs)
{
    startWithPreferences();
    const QStringList controls{u"check box"_s, u"push button"_s, u"radio button"_s};
    int count = 0;
    for (const auto &element : m_reader.elements(corvane().program().pid())) {
        if (!controls.contains(element.role))
            continue;
        ++count;
        EXPECT_FALSE(element.name.isEmpty()) << element.role.toStdString();
        EXPECT_FALSE(element.description.isEmpty()) << element.name.toStdString();
    }
    constexpr int fewest = 15;
    EXPECT_GE(count, fewest);
}

TEST_P(Preferences, areReadInTheLanguageOfTheSession)
{
    CorvaneProgram::Start how;
    how.environment = m_desktop.environment();
    how.environment.insert(u"LC_ALL"_s, u"de_AT.UTF-8"_s);
    startWithPreferences(how);
    EXPECT_TRUE(waitFor(u"Ablage anzeigen oder verbergen: Super+Umschalt+D"_s));
}

TEST_P(Preferences, controlQInItsWindowsQuitsNothing)
{
    startWithPreferences();
    hands().key('q', {keys::control});
    EXPECT_EQ(corvane().startAgain(), 0);
    EXPECT_TRUE(corvane().waitForSize(CorvaneProgram::empty));
    EXPECT_TRUE(window());
}

TEST_P(Preferences, aStoredShortcutOfImpossibleValuesIsSaidOnceAndShownHarmlessly)
{
    CorvaneProgram::Start how;
    // As the settings' file quotes it.
    how.settings = R"x(settings.shortcut="@ByteArray({\"keyCode\":4294967295,)x"
                   R"x(\"modifiers\":4294967295,\"character\":\"\\u202e\\u0000<b>)x"
        + QByteArray(5000, 'W') + R"x(\"})")x" + '\n';
    startWithPreferences(how);
    EXPECT_EQ(corvane().program().output().count("already claimed"), 1)
        << corvane().program().output().constData();
    ASSERT_TRUE(waitFor(shelf + u": Super+Ctrl+Alt+Shift"_s));
    const auto field = control(shelf);
    EXPECT_FALSE(field->name.contains(QChar(0x202e)));
    EXPECT_TRUE(window().value_or(WindowFacts{}).frame.contains(field->frame));
    // It can be put right.
    ASSERT_TRUE(click(shelf));
    ASSERT_TRUE(waitFor(shelf + prompt));
    press('j');
    EXPECT_TRUE(waitFor(shelf + u": Super+Shift+J"_s, usual));
    expectItToggles('j');
}

TEST_P(Preferences, withoutAPlaceForSettingsTheSessionGoesOnAndSaysSoOnce)
{
    CorvaneProgram::Start how;
    how.environment = m_desktop.environment();
    how.environment.insert(u"XDG_CONFIG_HOME"_s, makeFile(u"no folder"_s, "x"));
    ScreenReader::addTo(how.environment);
    start(how);
    // It cannot be remembered that the guide has been read.
    ASSERT_TRUE(eventually([this] {
        const auto guide = window(guideSize);
        return guide && server().activeWindow() == guide->id;
    }));
    hands().key(keys::escape);
    ASSERT_TRUE(eventually([this] { return !window(guideSize); }));
    openPreferences();
    EXPECT_EQ(corvane().program().output().count("cannot be written"), 1)
        << corvane().program().output().constData();
    EXPECT_TRUE(m_reader.says(corvane().program().pid(),
                              u"Your settings folder cannot be written to. Changes work until "
                              "Corvane quits, and are not kept."_s));
    ASSERT_TRUE(click(shelf));
    ASSERT_TRUE(waitFor(shelf + prompt));
    press('j');
    EXPECT_TRUE(waitFor(shelf + u": Super+Shift+J"_s));
    expectItToggles('j');
    EXPECT_EQ(corvane().program().output().count("cannot be written"), 1);
}

} // namespace
} // namespace corvane::e2e
