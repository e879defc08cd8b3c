// The program in a Wayland session without panels of its screens' edges, under mutter: what holds
// there alone.

#include "e2e/desktop/nested_mutter.h"
#include "e2e/wayland_session.h"

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

class Mutter : public WaylandSessionTest {
protected:
    Mutter()
        : WaylandSessionTest(sessionOf(WindowManager::Mutter))
    {
    }

    NestedCompositor &compositor() { return *m_desktop.nested(); }
    bool isMenuOpen() { return corvane().popup().has_value(); }
    /// The keyboard may have to be given to it twice.
    bool hasMenuTheKeyboard()
    {
        const auto menu = corvane().popup();
        return menu && compositor().panelServer()->focusedWindow() == menu->id;
    }
    /// Whether keys that are typed now reach that window.
    bool hearsKeys(GtkPeer &peer, char key)
    {
        return eventually([&] {
            hands().key(static_cast<uint32_t>(key));
            return peer.keys().contains(QByteArray(1, key));
        });
    }
};

TEST_F(Mutter, programsOfX11GiveAndTakeAsWell)
{
    const QString text = u"Grüße, 你好\nzweite Zeile"_s;
    GtkPeer peer(m_desktop, {.text = text, .isForX11 = true}, leftPlace());
    ASSERT_EQ(peer.problem(), QString());
    start();
    hands().beginDrag(peer.source(), edge());
    dropOnShelf();
    EXPECT_EQ(peer.endOfDrag(), "done");
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    dragOut(peer);
    EXPECT_EQ(peer.droppedText(), text.toUtf8());
    EXPECT_TRUE(corvane().waitUntilHidden());
}

TEST_F(Mutter, whatIsLetGoWhereNobodyTakesItGivesTheKeyboardBack)
{
    GtkPeer typing(m_desktop, {}, rightPlace());
    ASSERT_EQ(typing.problem(), QString());
    start();
    keep(makeFile(u"report.txt"_s, "report"));
    hands().click(typing.target());
    ASSERT_TRUE(hearsKeys(typing, 'k'));
    hands().beginDrag(corvane().at(38, 22), belowEdge());
    hands().glideTo(belowEdge());
    hands().release();
    // Of a button that goes up over the wallpaper newer versions tell their X server only when the
    // pointer comes over one of its windows.
    hands().glideTo(corvane().at(38, 22));
    hands().glideTo(belowEdge());
    EXPECT_TRUE(hearsKeys(typing, 'l'));
    EXPECT_TRUE(corvane().isShown());
}

TEST_F(Mutter, theKeyThatRemovesTheLastItemGivesTheKeyboardBack)
{
    GtkPeer typing(m_desktop, {}, rightPlace());
    ASSERT_EQ(typing.problem(), QString());
    start();
    keep(makeFile(u"report.txt"_s, "report"));
    hands().click(typing.target());
    ASSERT_TRUE(hearsKeys(typing, 'k'));
    hands().click(corvane().at(38, 22));
    const auto shelf = corvane().panel().value_or(WindowFacts{}).id;
    ASSERT_TRUE(eventually([&] { return compositor().panelServer()->activeWindow() == shelf; }));
    hands().key(keys::backSpace);
    ASSERT_TRUE(corvane().waitUntilHidden());
    EXPECT_TRUE(hearsKeys(typing, 'l'));
    EXPECT_FALSE(typing.keys().contains("BackSpace"));
}

TEST_F(Mutter, aPointerKeptAtTheEdgeShowsAHiddenShelfUntilItIsOverAnotherWindow)
{
    // See `NestedMutter` for why it is one of X11's.
    GtkPeer elsewhere(m_desktop, {.isForX11 = true}, rightPlace());
    ASSERT_EQ(elsewhere.problem(), QString());
    start();
    keep(makeFile(u"report.txt"_s, "report"));
    hands().glideTo(elsewhere.target());
    EXPECT_EQ(corvane().startAgain(), 0);
    ASSERT_TRUE(corvane().waitUntilHidden());
    hands().glideTo(edge());
    ASSERT_TRUE(corvane().waitUntilShown());
    hands().glideTo(elsewhere.target());
    EXPECT_TRUE(corvane().waitUntilHidden());
}

TEST_F(Mutter, theBarHasTheKeyboardUntilItCloses)
{
    GtkPeer typing(m_desktop, {}, rightPlace());
    ASSERT_EQ(typing.problem(), QString());
    start();
    keep(makeFile(u"report.txt"_s, "report"));
    keep(makeFile(u"plan.txt"_s, "plan"));
    hands().click(typing.target());
    ASSERT_TRUE(hearsKeys(typing, 'k'));
    ASSERT_TRUE(corvane().activateAction(u"view-all"_s));
    const auto isOpen = [this] { return corvane().popup(Bar::height).has_value(); };
    ASSERT_TRUE(eventually(isOpen));
    ASSERT_TRUE(eventually([&] {
        hands().key(keys::escape);
        return !isOpen();
    }));
    EXPECT_TRUE(hearsKeys(typing, 'l'));
}

TEST_F(Mutter, thePreferencesComeToTheFront)
{
    GtkPeer typing(m_desktop, {}, leftPlace());
    ASSERT_EQ(typing.problem(), QString());
    start();
    hands().click(typing.target());
    ASSERT_TRUE(corvane().activateAction(u"preferences"_s));
    ASSERT_TRUE(eventually([this] {
        const auto window = corvane().window();
        return window && compositor().panelServer()->activeWindow() == window->id;
    }));
}

TEST_F(Mutter, theMenuOfThePanelsIconIsForKeysAndGivesThemBack)
{
    NotifierPanel panel(m_desktop);
    GtkPeer typing(m_desktop, {}, rightPlace());
    ASSERT_EQ(typing.problem(), QString());
    const auto item = startInPanel(panel);
    ASSERT_TRUE(item);
    hands().click(typing.target());
    ASSERT_TRUE(hearsKeys(typing, 'k'));
    item->click();
    const auto isOpen = [this] { return isMenuOpen(); };
    ASSERT_TRUE(eventually(isOpen));
    EXPECT_TRUE(eventually([&] {
        hands().key(keys::escape);
        return !isOpen();
    }));
    EXPECT_TRUE(hearsKeys(typing, 'l'));
    const int before = typing.losses();
    item->click();
    ASSERT_TRUE(eventually(isOpen));
    // The X server's focus is there before mutter's.
    ASSERT_TRUE(eventually([&] { return hasMenuTheKeyboard() && typing.losses() > before; }));
    hands().key(keys::down);
    hands().key(keys::enter);
    EXPECT_TRUE(corvane().waitUntilShown());
    EXPECT_FALSE(isOpen());
}

TEST_F(Mutter, aClickElsewhereClosesTheMenuOfThePanelsIconAndTakesTheKeys)
{
    NotifierPanel panel(m_desktop);
    GtkPeer typing(m_desktop, {}, rightPlace());
    ASSERT_EQ(typing.problem(), QString());
    const auto item = startInPanel(panel);
    ASSERT_TRUE(item);
    item->click();
    ASSERT_TRUE(eventually([this] { return isMenuOpen(); }));
    ASSERT_TRUE(eventually([this] { return hasMenuTheKeyboard(); }));
    hands().click(typing.target());
    EXPECT_TRUE(eventually([this] { return !isMenuOpen(); }));
    EXPECT_TRUE(hearsKeys(typing, 'k'));
}

TEST(MutterThatEnds, takesTheProgramAlong)
{
    XDesktop desktop(sessionOf(WindowManager::Mutter));
    ASSERT_EQ(desktop.problem(), QString());
    CorvaneProgram corvane(desktop);
    ASSERT_TRUE(corvane.waitUntilReady());
    desktop.nested()->program().signal(SIGKILL);
    EXPECT_TRUE(corvane.program().waitForEnd());
}

} // namespace
} // namespace corvane::e2e
