// The shelf and its bar with nothing but keys, and where the keyboard is before and after.

#include "e2e/desktop/text_editor.h"
#include "e2e/desktop_test.h"

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

class KeyboardAlone : public EveryDesktop {
protected:
    static constexpr int inView = 3;

    void SetUp() override
    {
        EveryDesktop::SetUp();
        m_editor = std::make_unique<TextEditor>(m_desktop, "text", QRect(60, 300, 560, 400));
        ASSERT_EQ(m_editor->problem(), QString());
        hands().click(m_editor->middle());
        ASSERT_TRUE(eventually([this] { return server().activeWindow() != noWindow; }));
        startWithInView(inView);
    }
    void TearDown() override
    {
        m_owner.reset();
        m_editor.reset();
        EveryDesktop::TearDown();
    }

    void pressHotKey() { hands().key('d', {keys::super, keys::shift}); }
    bool shelfHasKeyboard()
    {
        return eventually([this] {
            const auto panel = corvane().panel();
            return panel && server().focusedWindow() == panel->id;
        });
    }
    /// The shelf is closed and then opened by its hot key.
    void takeInHand()
    {
        pressHotKey();
        ASSERT_TRUE(corvane().waitUntilHidden());
        pressHotKey();
        ASSERT_TRUE(shelfHasKeyboard());
    }
    testing::AssertionResult typesIntoEditor()
    {
        const bool hasIt = eventually([this] {
            const auto panel = corvane().panel();
            return !panel || server().focusedWindow() != panel->id;
        });
        if (!hasIt)
            return testing::AssertionFailure() << "the shelf keeps the keyboard";
        hands().key(keys::backSpace);
        hands().key('z');
        if (!m_editor->text("texz").contains('z'))
            return testing::AssertionFailure() << "what is typed does not reach the editor";
        return testing::AssertionSuccess();
    }
    /// Another program has that on the clipboard.
    void copyElsewhere(const QString &type, const QByteArray &contents)
    {
        m_desktop.clearClipboard();
        m_owner = std::make_unique<Program>(u"xclip"_s,
                                            QStringList{u"-quiet"_s, u"-selection"_s,
                                                        u"clipboard"_s, u"-target"_s, type,
                                                        makeFile(u"clipboard"_s, contents)},
                                            m_desktop.environment());
        ASSERT_TRUE(
            eventually([this] { return server().selectionOwner("CLIPBOARD") != noWindow; }));
    }
    testing::AssertionResult copiedFromShelf(const QByteArray &expected)
    {
        m_desktop.clearClipboard();
        hands().key('c', {keys::control});
        const QByteArray text = clipboardText(expected);
        if (text != expected)
            return testing::AssertionFailure() << "copied: " << text.toStdString();
        return testing::AssertionSuccess();
    }

    std::unique_ptr<TextEditor> m_editor;
    std::unique_ptr<Program> m_owner;
};

INSTANTIATE_TEST_SUITE_P(, KeyboardAlone, twoDesktops(), nameOf);

TEST_P(KeyboardAlone, theHotKeyGivesItToTheShelfAndBack)
{
    pressHotKey();
    ASSERT_TRUE(shelfHasKeyboard());
    pressHotKey();
    ASSERT_TRUE(corvane().waitUntilHidden());
    EXPECT_TRUE(typesIntoEditor());
}

TEST_P(KeyboardAlone, escapeOnTheEmptyShelfClosesItAndGivesItBack)
{
    pressHotKey();
    ASSERT_TRUE(shelfHasKeyboard());
    hands().key(keys::escape);
    ASSERT_TRUE(corvane().waitUntilHidden());
    EXPECT_TRUE(typesIntoEditor()) << "which Escape would have closed";
}

TEST_P(KeyboardAlone, aClickElsewhereTakesItFromTheShelfWhichStaysOpen)
{
    pressHotKey();
    ASSERT_TRUE(shelfHasKeyboard());
    hands().click({1000, 800});
    EXPECT_TRUE(eventually([this] {
        const auto panel = corvane().panel();
        return panel && server().focusedWindow() != panel->id;
    })) << "nothing takes the keyboard there";
    hands().click(m_editor->middle());
    EXPECT_TRUE(typesIntoEditor());
    EXPECT_TRUE(corvane().isShown());
}

TEST_P(KeyboardAlone, aHotKeyInTheMiddleOfADragLeavesItWhereItIs)
{
    XdndSource source(m_desktop, {{"text/plain", "x"}});
    source.pickUp();
    ASSERT_TRUE(corvane().waitForSize(CorvaneProgram::empty));
    pressHotKey();
    ASSERT_TRUE(corvane().waitUntilHidden());
    pressHotKey();
    ASSERT_TRUE(corvane().waitUntilShown());
    EXPECT_NE(server().focusedWindow(), corvane().panel().value_or(WindowFacts{}).id);
    source.letGo();
    ASSERT_TRUE(corvane().waitUntilHidden());
    EXPECT_TRUE(typesIntoEditor());
}

TEST_P(KeyboardAlone, whatIsOnTheClipboardIsPastedAsADropWouldBe)
{
    const QString path = makeFile(u"one.txt"_s, "x");
    ASSERT_NO_FATAL_FAILURE(copyElsewhere(u"text/uri-list"_s, uriList({path})));
    pressHotKey();
    ASSERT_TRUE(shelfHasKeyboard());
    hands().key('v', {keys::control});
    ASSERT_TRUE(corvane().waitForSize(CorvaneProgram::carousel(inView, 1)));
    EXPECT_TRUE(copiedFromShelf(path.toUtf8()));
    ASSERT_NO_FATAL_FAILURE(copyElsewhere(u"UTF8_STRING"_s, "Grüße"));
    hands().key('v', {keys::control});
    ASSERT_TRUE(corvane().waitForSize(CorvaneProgram::carousel(inView, 2)));
    EXPECT_TRUE(copiedFromShelf("Grüße"));
    hands().key('v', {keys::control});
    EXPECT_TRUE(corvane().waitForSize(CorvaneProgram::carousel(inView, 3)))
        << "what was copied from the shelf itself";
}

TEST_P(KeyboardAlone, tabOpensTheBarAndItsKeysTickAndRemove)
{
    const QStringList paths{makeFile(u"a.txt"_s, "x"), makeFile(u"b.txt"_s, "x"),
                            makeFile(u"c.txt"_s, "x")};
    ASSERT_TRUE(dropFiles(paths));
    ASSERT_TRUE(corvane().waitForSize(CorvaneProgram::carousel(inView, 3)));
    ASSERT_NO_FATAL_FAILURE(takeInHand());
    // From the last item, which is focused, to the button for all items.
    hands().key(keys::tab);
    hands().key(keys::enter);
    Bar bar(m_desktop, corvane(), inView);
    ASSERT_TRUE(bar.waitForKeyboard());
    hands().key(keys::right);
    hands().key(keys::space);
    EXPECT_TRUE(copiedFromShelf((paths[0] + u'\n' + paths[2]).toUtf8()));
    hands().key(keys::forwardDelete);
    EXPECT_TRUE(corvane().waitForSize(CorvaneProgram::carousel(inView, 1)));
    EXPECT_TRUE(shelfHasKeyboard()) << "with one item the bar closes";
    EXPECT_TRUE(copiedFromShelf(paths[1].toUtf8()));
    hands().key(keys::escape);
    ASSERT_TRUE(corvane().waitUntilHidden());
    EXPECT_TRUE(typesIntoEditor());
}

} // namespace
} // namespace corvane::e2e
