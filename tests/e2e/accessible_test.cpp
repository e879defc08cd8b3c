// The shelf, its bar and the windows as screen readers have them, and used through those alone.

#include "e2e/desktop/rival.h"
#include "e2e/desktop/screen_reader.h"
#include "e2e/desktop_test.h"

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

class Accessible : public DesktopTest {
protected:
    static constexpr int inView = 3;

    void SetUp() override
    {
        DesktopTest::SetUp();
        ASSERT_TRUE(m_reader.isReady());
    }
    void startToBeRead(bool hasSeenWelcome = true)
    {
        m_reader.listen();
        CorvaneProgram::Start how{inView, {}, m_desktop.environment(), hasSeenWelcome};
        ScreenReader::addTo(how.environment);
        start(how);
    }
    /// Starts with as many files on the shelf: a.txt, b.txt and so on.
    void hold(int count)
    {
        for (int i = 0; i < count; ++i)
            m_paths << makeFile(u"%1.txt"_s.arg(QChar(u'a' + i)), "x");
        startToBeRead();
        ASSERT_TRUE(dropFiles(m_paths));
        ASSERT_TRUE(corvane().waitForSize(CorvaneProgram::carousel(inView, count)));
    }
    std::optional<ScreenReader::Element> find(const QString &role, const QString &name)
    {
        for (const ScreenReader::Element &element : m_reader.elements(corvane().program().pid())) {
            if (element.role == role && element.name == name)
                return element;
        }
        return std::nullopt;
    }
    /// Waits until there is such an element, and returns it; an empty one if there is none.
    ScreenReader::Element await(const QString &role, const QString &name)
    {
        std::optional<ScreenReader::Element> found;
        eventually([&] {
            found = find(role, name);
            return found.has_value();
        });
        return found.value_or(ScreenReader::Element{});
    }
    /// Waits until there is such an element in that state.
    bool isSoon(ScreenReader::State state, const QString &role, const QString &name)
    {
        return eventually([&] {
            const auto found = find(role, name);
            return found && found->is(state);
        });
    }
    bool perform(const QString &role, const QString &name, const QString &action = u"Press"_s)
    {
        return m_reader.perform(await(role, name), action);
    }

    QStringList m_paths;
    ScreenReader m_reader{m_desktop};
};

TEST_F(Accessible, theShelfIsAListOfItemsThatAreUsedByTheirActions)
{
    hold(4);
    const auto last = await(u"list item"_s, u"d.txt"_s);
    EXPECT_TRUE(last.description.startsWith(u"File, "_s)) << last.description.toStdString();
    EXPECT_TRUE(last.description.endsWith(u", 4 of 4"_s)) << last.description.toStdString();
    EXPECT_TRUE(last.is(ScreenReader::State::Selected)) << "what came last is focused";
    EXPECT_TRUE(corvane().body().contains(last.frame.center()));
    EXPECT_EQ(await(u"list"_s, u"Items on the shelf: 4"_s).role, u"list"_s);
    EXPECT_EQ(await(u"frame"_s, u"Shelf"_s).role, u"frame"_s);
    EXPECT_FALSE(await(u"push button"_s, u"Later items"_s).is(ScreenReader::State::Sensitive));

    ASSERT_TRUE(perform(u"push button"_s, u"Earlier items"_s));
    ASSERT_TRUE(perform(u"list item"_s, u"a.txt"_s));
    EXPECT_TRUE(isSoon(ScreenReader::State::Focused, u"list item"_s, u"a.txt"_s))
        << "the press gives the shelf the keyboard, too";
    ASSERT_TRUE(perform(u"list item"_s, u"b.txt"_s, u"Copy"_s));
    EXPECT_EQ(clipboardText(m_paths[1].toUtf8()), m_paths[1].toUtf8());
    ASSERT_TRUE(perform(u"list item"_s, u"b.txt"_s, u"Remove"_s));
    EXPECT_TRUE(corvane().waitForSize(CorvaneProgram::carousel(inView, 3)));
    ASSERT_TRUE(perform(u"list item"_s, u"c.txt"_s, u"Move out"_s));
    EXPECT_TRUE(corvane().waitForSize(CorvaneProgram::carousel(inView, 2)));
    EXPECT_EQ(clipboardText(m_paths[2].toUtf8()), m_paths[2].toUtf8());
}

TEST_F(Accessible, theBarsTilesAreTickedAndRemoved)
{
    hold(3);
    ASSERT_TRUE(perform(u"push button"_s, u"All items"_s));
    const auto all = await(u"check box"_s, u"Select all"_s);
    EXPECT_TRUE(all.is(ScreenReader::State::Checked)) << "what was dropped is selected";
    EXPECT_EQ(all.description, u"3 of 3 selected"_s);
    ASSERT_TRUE(m_reader.perform(all, u"Press"_s));
    Bar bar(m_desktop, corvane(), inView);
    ASSERT_TRUE(bar.waitForKeyboard());
    EXPECT_TRUE(eventually([this] {
        const auto box = find(u"check box"_s, u"Select all"_s);
        return box && box->description == u"0 of 3 selected"_s;
    }));
    // The shelf's item has the same name; the bar's is the one that can be ticked.
    EXPECT_FALSE(await(u"check box"_s, u"b.txt"_s).is(ScreenReader::State::Checked));
    ASSERT_TRUE(perform(u"check box"_s, u"b.txt"_s));
    EXPECT_TRUE(isSoon(ScreenReader::State::Checked, u"check box"_s, u"b.txt"_s));
    EXPECT_TRUE(
        isSoon(ScreenReader::State::Sensitive, u"push button"_s, u"Remove the selected items"_s));
    ASSERT_TRUE(perform(u"push button"_s, u"Remove the selected items"_s));
    EXPECT_TRUE(corvane().waitForSize(CorvaneProgram::carousel(inView, 2)));
    EXPECT_TRUE(eventually(
        [this] { return !find(u"list item"_s, u"b.txt"_s) && !find(u"check box"_s, u"b.txt"_s); }));
}

TEST_F(Accessible, theFocusFollowsTheKeyboardThroughShelfAndBar)
{
    using State = ScreenReader::State;
    hold(3);
    ASSERT_TRUE(perform(u"list item"_s, u"b.txt"_s));
    ASSERT_TRUE(isSoon(State::Focused, u"list item"_s, u"b.txt"_s));
    hands().key(keys::tab);
    ASSERT_TRUE(isSoon(State::Focused, u"list item"_s, u"c.txt"_s));
    hands().key(keys::tab);
    ASSERT_TRUE(isSoon(State::Focused, u"push button"_s, u"All items"_s));
    hands().key(keys::enter);
    ASSERT_TRUE(Bar(m_desktop, corvane(), inView).waitForKeyboard());
    hands().key(keys::tab);
    EXPECT_TRUE(isSoon(State::Focused, u"check box"_s, u"Select all"_s));
    hands().key(keys::escape);
    EXPECT_TRUE(isSoon(State::Focused, u"list item"_s, u"c.txt"_s))
        << "the shelf had the keyboard before the bar";
}

TEST_F(Accessible, theGuidesStepsAreSaidAsOneTurnsToThem)
{
    startToBeRead(false);
    ASSERT_TRUE(isSoon(ScreenReader::State::Focused, u"push button"_s, u"Next"_s));
    for (const QString &step : {u"Step 2 of 3: "_s, u"Step 3 of 3: "_s}) {
        hands().key(keys::enter);
        EXPECT_TRUE(eventually([&] {
            const QStringList heard = m_reader.heard();
            return !heard.isEmpty() && heard.last().startsWith(step);
        })) << m_reader.heard().join(u'|').toStdString();
    }
    EXPECT_EQ(m_reader.heard().size(), 2);
}

TEST_F(Accessible, theEmptyShelfSaysWhatItIsAndThatItIsHiddenAgain)
{
    startToBeRead();
    EXPECT_EQ(corvane().startAgain(), 0);
    EXPECT_TRUE(
        isSoon(ScreenReader::State::Focused, u"label"_s,
               u"The shelf is empty. Ctrl+V puts what is on the clipboard here. Drop to hold"_s));
    EXPECT_EQ(corvane().startAgain(), 0);
    EXPECT_TRUE(m_reader.hears(u"The shelf is hidden"_s));
}

TEST_F(Accessible, whatIsRemovedAndHowManyAreSelectedIsSaid)
{
    hold(3);
    ASSERT_TRUE(perform(u"list item"_s, u"b.txt"_s));
    ASSERT_TRUE(isSoon(ScreenReader::State::Focused, u"list item"_s, u"b.txt"_s));
    hands().key(keys::forwardDelete);
    EXPECT_TRUE(m_reader.hears(u"b.txt was removed; 2 items are left"_s));
    ASSERT_TRUE(perform(u"push button"_s, u"All items"_s));
    ASSERT_TRUE(Bar(m_desktop, corvane(), inView).waitForKeyboard());
    hands().key('a', {keys::control});
    EXPECT_TRUE(m_reader.hears(u"0 of 2 selected"_s));
    hands().key('a', {keys::control});
    EXPECT_TRUE(m_reader.hears(u"2 of 2 selected"_s));
}

TEST_F(Accessible, aPreviewSaysWhatItShowsAndATextIsReadByArrows)
{
    startToBeRead();
    ASSERT_TRUE(dropFiles({makeFile(u"a.txt"_s, "one\ntwo\nthree\n")}));
    ASSERT_TRUE(perform(u"list item"_s, u"a.txt"_s));
    ASSERT_TRUE(isSoon(ScreenReader::State::Focused, u"list item"_s, u"a.txt"_s));
    hands().key(keys::space);
    ASSERT_TRUE(isSoon(ScreenReader::State::Focused, u"text"_s, u"Text"_s));
    const auto text = await(u"text"_s, u"Text"_s);
    EXPECT_TRUE(text.description.endsWith(u", 14 bytes"_s)) << text.description.toStdString();
    EXPECT_EQ(m_reader.caret(text), 0);
    hands().key(keys::down);
    EXPECT_TRUE(eventually([&] { return m_reader.caret(text) == 4; }));
}

TEST_F(Accessible, aShortcutIsSaidAsItIsRecordedAndRefused)
{
    Rival rival(m_desktop);
    constexpr xcb_keycode_t positionOfK = 45;
    ASSERT_TRUE(rival.grab(positionOfK));
    startToBeRead();
    ASSERT_TRUE(corvane().activateAction(u"preferences"_s));
    ASSERT_TRUE(perform(u"push button"_s, u"Show or hide the shelf: Super+Shift+D"_s));
    ASSERT_TRUE(m_reader.hears(u"Type a shortcut…"_s));
    hands().key('k', {keys::super, keys::shift});
    EXPECT_TRUE(m_reader.hears(u"Another app already uses that combination."_s));
    EXPECT_EQ(m_reader.heard(),
              (QStringList{u"Type a shortcut…"_s, u"Super+Shift+K"_s,
                           u"Another app already uses that combination."_s}));
}

TEST_F(Accessible, thePreferencesAreADialogWhoseTabsShowTheirPanes)
{
    startToBeRead();
    ASSERT_TRUE(corvane().activateAction(u"preferences"_s));
    EXPECT_EQ(await(u"dialog"_s, u"Corvane"_s).role, u"dialog"_s);
    ASSERT_TRUE(perform(u"radio button"_s, u"About"_s, u"Toggle"_s));
    EXPECT_TRUE(isSoon(ScreenReader::State::Checked, u"radio button"_s, u"About"_s));
    EXPECT_TRUE(eventually([this] { return !find(u"radio button"_s, u"3"_s); }))
        << "the other pane is still shown";
}

} // namespace
} // namespace corvane::e2e
