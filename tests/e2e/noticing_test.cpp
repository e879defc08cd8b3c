// What is taken for a drag, and what is none.

#include "e2e/desktop/text_editor.h"
#include "e2e/desktop_test.h"

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

class Noticing : public DesktopTest {
protected:
    void SetUp() override
    {
        DesktopTest::SetUp();
        start();
        ASSERT_EQ(m_editor.problem(), QString());
    }
    int panelsShown() { return m_log.panelsShown(corvane().program().pid()); }
    /// Takes the drag selection, as a drag does that begins; nothing is pressed for it.
    void takeSelection()
    {
        auto *const connection = m_source.connection();
        const xcb_atom_t selection = m_source.atom("XdndSelection");
        const xcb_window_t window = xcb_generate_id(connection);
        xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, m_source.root(), -1, -1, 1, 1,
                          0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
        xcb_set_selection_owner(connection, window, selection, XCB_CURRENT_TIME);
        xcb_flush(connection);
        ASSERT_TRUE(eventually([&] { return server().selectionOwner("XdndSelection") == window; }));
    }
    /// Selects text with the left button, far enough for a drag.
    void selectText()
    {
        hands().beginDrag(m_editor.middle(), m_editor.middle() - QPoint(80, 0));
        hands().glideTo(m_editor.middle() - QPoint(120, 10));
        hands().release();
    }
    /// That nothing came is seen by what comes next: a true drag shows the shelf, for the first
    /// time.
    void expectNoneUpToATrueDrag()
    {
        EXPECT_EQ(panelsShown(), 0);
        XdndSource source(m_desktop, {{"text/plain", "x"}});
        source.pickUp();
        EXPECT_TRUE(corvane().waitUntilShown());
        EXPECT_EQ(panelsShown(), 1);
        source.letGo();
        EXPECT_TRUE(corvane().waitUntilHidden());
    }

    MapLog m_log{m_desktop.environment().value(u"DISPLAY"_s).toLatin1()};
    XServer m_source{m_desktop.environment().value(u"DISPLAY"_s).toLatin1()};
    XdndPeer m_elsewhere{m_desktop, QRect(900, 600, 200, 200)};
    TextEditor m_editor{m_desktop, "some words to be selected", QRect(100, 400, 500, 300)};
};

TEST_F(Noticing, aSelectionOfTextAfterADragWithTheRightButtonIsNone)
{
    hands().moveTo(m_elsewhere.frame().center());
    hands().press(3);
    hands().moveBy({20, 20});
    takeSelection();
    hands().moveBy({20, 20});
    hands().release(3);
    selectText();
    expectNoneUpToATrueDrag();
}

TEST_F(Noticing, aSelectionOfTextAfterADragThatBeganTooLateIsNone)
{
    hands().moveTo(m_elsewhere.frame().center());
    hands().press();
    hands().moveBy({20, 20});
    hands().release();
    takeSelection();
    selectText();
    expectNoneUpToATrueDrag();
}

} // namespace
} // namespace corvane::e2e
