// Where the keyboard is in Wayland sessions when the shelf is opened by hand, and what is pasted.

#include "e2e/wayland_session.h"

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

class WaylandKeyboard : public WaylandSession {
protected:
    /// Puts a text on the clipboard when a key is typed into it: only whoever has the keyboard may.
    static QString copiesWhenTyped()
    {
        return u"window.connect('key-press-event', lambda w, e: "
               "Gtk.Clipboard.get(Gdk.SELECTION_CLIPBOARD).set_text('pasted', -1) or False)"_s;
    }
    bool hearsKeys(GtkPeer &peer, char key)
    {
        return eventually([&] {
            hands().key(static_cast<uint32_t>(key));
            return peer.keys().contains(QByteArray(1, key));
        });
    }
    /// As the hot key does, which is another one in each of these sessions.
    void openByHand()
    {
        EXPECT_EQ(corvane().startAgain(), 0);
        ASSERT_TRUE(corvane().waitUntilShown());
    }
    /// Compositors take a moment to move the keyboard.
    bool escapeCloses()
    {
        return eventually([this] {
            hands().key(keys::escape);
            return !corvane().isShown();
        });
    }
};

class LayerKeyboard : public WaylandKeyboard { };
class KWinKeyboard : public WaylandKeyboard { };

INSTANTIATE_TEST_SUITE_P(, LayerKeyboard,
                         testing::Values(sessionOf(WindowManager::Sway),
                                         sessionOf(WindowManager::KWin)),
                         nameOf);
INSTANTIATE_TEST_SUITE_P(, KWinKeyboard, testing::Values(sessionOf(WindowManager::KWin)), nameOf);
INSTANTIATE_TEST_SUITE_P(, WaylandKeyboard,
                         testing::Values(sessionOf(WindowManager::Sway),
                                         sessionOf(WindowManager::KWin),
                                         sessionOf(WindowManager::Mutter)),
                         nameOf);

TEST_P(WaylandKeyboard, isWithAShelfThatWasOpenedByHandUntilTheUserGoesOnElsewhere)
{
    GtkPeer typing(m_desktop, {}, rightPlace());
    ASSERT_EQ(typing.problem(), QString());
    start();
    hands().click(typing.target());
    ASSERT_TRUE(hearsKeys(typing, 'k'));
    ASSERT_NO_FATAL_FAILURE(openByHand());
    EXPECT_TRUE(escapeCloses());
    EXPECT_TRUE(hearsKeys(typing, 'l')) << "after Escape";
    ASSERT_NO_FATAL_FAILURE(openByHand());
    hands().glideTo(typing.target() + QPoint(10, 10));
    hands().click(typing.target());
    EXPECT_TRUE(hearsKeys(typing, 'm')) << "after a click elsewhere";
    EXPECT_TRUE(corvane().isShown());
}

TEST_P(LayerKeyboard, pastesWhatAnotherProgramHasCopied)
{
    GtkPeer copying(m_desktop, {.habits = copiesWhenTyped()}, rightPlace());
    ASSERT_EQ(copying.problem(), QString());
    start();
    hands().click(copying.target());
    ASSERT_TRUE(hearsKeys(copying, 'k'));
    ASSERT_NO_FATAL_FAILURE(openByHand());
    EXPECT_TRUE(eventually([this] {
        hands().key('v', {keys::control});
        const auto panel = corvane().panel();
        return panel && panel->frame.height() == CorvaneProgram::singleHeight;
    }));
}

/// KWin has the keyboard with whatever something is dragged over, and gives X11's programs what is
/// dropped on them only while it is with one of them.
TEST_P(KWinKeyboard, staysWithAProgramOfX11ThatSomethingIsDroppedOn)
{
    const auto tellsWhenADropTakesItsKeys
        = u"target.connect('drag-drop', lambda *a: state.update(dropped=True) or False)\n"
          "window.connect('focus-out-event', lambda w, e: "
          "'dropped' in state and tell('taken') or False)"_s;
    GtkPeer target(m_desktop, {.habits = tellsWhenADropTakesItsKeys, .isForX11 = true},
                   rightPlace());
    ASSERT_EQ(target.problem(), QString());
    const QString file = makeFile(u"report.txt"_s, "report");
    start();
    keep(file);
    dragOut(target);
    EXPECT_EQ(target.droppedAddresses().trimmed(), uriList({file}).trimmed());
    EXPECT_TRUE(corvane().waitUntilHidden());
    EXPECT_TRUE(hearsKeys(target, 'k'));
    EXPECT_FALSE(target.hasSaidNow("taken")) << target.output();
}

} // namespace
} // namespace corvane::e2e
