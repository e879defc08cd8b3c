// Where keys go, and what a hand that holds one of them, or clicks by habit, does to the shelf.

#include "e2e/desktop/text_editor.h"
#include "e2e/desktop_test.h"

#include <QCoreApplication>
#include <QFile>

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

class Keyboard : public EveryDesktop {
protected:
    static constexpr int inView = 3;
    /// Of a key that is held down.
    static constexpr int repetitions = 10;

    void SetUp() override
    {
        EveryDesktop::SetUp();
        m_editor = std::make_unique<TextEditor>(m_desktop, "text", QRect(60, 300, 560, 400));
        ASSERT_EQ(m_editor->problem(), QString());
        hands().click(m_editor->middle());
        ASSERT_TRUE(eventually([this] { return server().activeWindow() != noWindow; }));
        m_active = server().activeWindow();
    }
    void TearDown() override
    {
        for (const uint32_t key : {keys::escape, keys::backSpace, keys::super, uint32_t{'d'}})
            hands().keyUp(key);
        m_editor.reset();
        EveryDesktop::TearDown();
    }

    void hold(int count)
    {
        for (int i = 0; i < count; ++i)
            m_paths << makeFile(u"%1.txt"_s.arg(QChar(u'a' + i)), "x");
        startWithInView(inView);
        ASSERT_TRUE(dropFiles(m_paths));
        ASSERT_TRUE(holds(count));
    }
    testing::AssertionResult holdsExactly(const QStringList &paths)
    {
        return EveryDesktop::holdsExactly(inView, paths);
    }
    bool holds(int count) { return corvane().waitForSize(CorvaneProgram::carousel(inView, count)); }
    QPoint cell(int nth, int items)
    {
        const QPoint at = CorvaneProgram::cell(inView, items, nth);
        return corvane().at(at.x(), at.y());
    }
    xcb_window_t shelf() { return corvane().panel().value_or(WindowFacts{}).id; }
    Bar theBar() { return {m_desktop, corvane(), inView}; }
    std::optional<WindowFacts> bar() { return theBar().window(); }
    QByteArray display() const { return m_desktop.environment().value(u"DISPLAY"_s).toLatin1(); }

    /// Some programs give the keyboard on to a window inside their own.
    bool editorHasKeyboard()
    {
        constexpr xcb_window_t programsBits = ~0x1fffffU;
        return eventually([this] {
            return (server().focusedWindow() & programsBits) == (m_active & programsBits);
        });
    }
    testing::AssertionResult typesIntoEditor()
    {
        hands().key(keys::backSpace);
        hands().key('z');
        if (!m_editor->text("texz").contains('z'))
            return testing::AssertionFailure() << "what is typed does not reach the editor";
        return testing::AssertionSuccess();
    }
    void dragTo(XdndTarget &target, int items)
    {
        const QPoint place = target.frame().center();
        hands().beginDrag(cell(0, items), place);
        hands().glideTo(place);
        hands().aim(place);
        ASSERT_TRUE(target.pumpUntil([&] { return target.isHovered(); }));
    }
    void pressHotKey() { hands().key('d', {keys::super, keys::shift}); }
    void openBar(int items)
    {
        hands().click(theBar().button(items));
        ASSERT_TRUE(barHasKeyboard());
    }
    bool barHasKeyboard() { return theBar().waitForKeyboard(); }

    std::unique_ptr<TextEditor> m_editor;
    QStringList m_paths;
    xcb_window_t m_active = noWindow;
};

INSTANTIATE_TEST_SUITE_P(, Keyboard, twoDesktops(), nameOf);

TEST_P(Keyboard, isWithTheProgramAgainAfterADragOutAlsoWhileItsTargetIsBusy)
{
    XdndTarget target(m_desktop, QRect(900, 400, 200, 200), true, "text/uri-list");
    hold(3);
    dragTo(target, 3);
    hands().aim(target.frame().center());
    target.pump();
    hands().release();
    EXPECT_TRUE(editorHasKeyboard()) << "the target has not even looked at the drop";
    ASSERT_TRUE(target.pumpUntil([&] { return target.hasDrop(); }));
    ASSERT_TRUE(holds(2));
    EXPECT_TRUE(typesIntoEditor());
    EXPECT_TRUE(holdsExactly(m_paths.mid(1))) << "BackSpace was the editor's";
}

TEST_P(Keyboard, isWithTheProgramAgainAfterADragOutThatAnotherButtonEnded)
{
    XdndTarget target(m_desktop, QRect(900, 400, 200, 200), true, "text/uri-list");
    hold(3);
    dragTo(target, 3);
    hands().aim(target.frame().center());
    target.pump();
    hands().press(3);
    hands().release(3);
    ASSERT_TRUE(target.pumpUntil([&] { return target.hasDrop(); }));
    hands().release();
    ASSERT_TRUE(holds(2));
    EXPECT_TRUE(editorHasKeyboard());
    EXPECT_TRUE(typesIntoEditor());
    EXPECT_TRUE(holds(2)) << "BackSpace was the editor's";
}

TEST_P(Keyboard, isWithTheProgramAgainAfterADragOutThatWasRefused)
{
    XdndTarget target(m_desktop, QRect(900, 400, 200, 200), false, "text/uri-list");
    hold(3);
    dragTo(target, 3);
    hands().aim(target.frame().center());
    target.pump();
    hands().release();
    EXPECT_TRUE(editorHasKeyboard());
    EXPECT_TRUE(typesIntoEditor());
    EXPECT_TRUE(holdsExactly(m_paths));
}

TEST_P(Keyboard, isWithTheProgramAgainAfterTilesWereDraggedOutOfTheBar)
{
    XdndTarget target(m_desktop, QRect(900, 500, 200, 200), true, "text/uri-list");
    hold(4);
    openBar(4);
    // One that is not ticked travels alone; the others stay ticked.
    const QPoint tile = theBar().tile(0, 4);
    hands().click(tile);
    m_desktop.pictureAtRest(theBar().frame());
    hands().beginDrag(tile, target.frame().center());
    hands().glideTo(target.frame().center());
    hands().aim(target.frame().center());
    ASSERT_TRUE(target.pumpUntil([&] { return target.isHovered(); }));
    hands().aim(target.frame().center());
    target.pump();
    hands().release();
    ASSERT_TRUE(target.pumpUntil([&] { return target.hasDrop(); }));
    ASSERT_TRUE(holds(3));
    EXPECT_TRUE(editorHasKeyboard());
    EXPECT_TRUE(bar());
    hands().key(keys::backSpace);
    hands().key('z');
    EXPECT_TRUE(m_editor->text("texz").contains('z'));
    EXPECT_TRUE(holdsExactly(m_paths.mid(1))) << "BackSpace was the editor's";
}

TEST_P(Keyboard, heldEscapeEndsADragOutAndRemovesNothing)
{
    XdndTarget target(m_desktop, QRect(900, 400, 200, 200), true, "text/uri-list");
    hold(3);
    dragTo(target, 3);
    KeyLog log(display(), shelf());
    hands().keyDown(keys::escape);
    EXPECT_TRUE(eventually([&] { return log.presses() >= repetitions; }))
        << "while it is held it is nobody else's";
    hands().release();
    hands().keyUp(keys::escape);
    EXPECT_TRUE(editorHasKeyboard());
    EXPECT_TRUE(typesIntoEditor());
    EXPECT_TRUE(holdsExactly(m_paths));
    target.pump();
    EXPECT_FALSE(target.wasDroppedOn());
}

TEST_P(Keyboard, aHeldKeyRemovesOneItem)
{
    hold(4);
    focusShelf(cell(1, 4));
    // The last three were in view: the third has the focus, and then what slides into its place.
    for (int left = 3; const uint32_t key : {keys::backSpace, keys::escape}) {
        KeyLog log(display(), shelf());
        hands().keyDown(key);
        EXPECT_TRUE(eventually([&] { return log.presses() >= repetitions; }));
        hands().keyUp(key);
        ASSERT_TRUE(holds(left--));
    }
    EXPECT_TRUE(holdsExactly({m_paths[0], m_paths[1]}));
}

TEST_P(Keyboard, aKeyThatIsHeldSinceBeforeTheShelfHadTheKeyboardRemovesNothing)
{
    hold(3);
    hands().keyDown(keys::backSpace);
    KeyLog log(display(), shelf());
    focusShelf(cell(0, 3));
    EXPECT_TRUE(eventually([&] { return log.presses() >= repetitions; }));
    hands().keyUp(keys::backSpace);
    EXPECT_TRUE(holdsExactly(m_paths));
}

TEST_P(Keyboard, aHeldHotKeyTogglesTheShelfOnce)
{
    start();
    MapLog log(display());
    hands().keyDown(keys::super);
    hands().keyDown(keys::shift);
    hands().keyDown('d');
    ASSERT_TRUE(corvane().waitUntilShown());
    // Until another key would have been repeated many times.
    EXPECT_FALSE(eventually([this] { return !corvane().isShown(); }, std::chrono::seconds{1}));
    hands().keyUp('d');
    hands().keyUp(keys::shift);
    hands().keyUp(keys::super);
    EXPECT_EQ(log.panelsShown(corvane().program().pid()), 1);
}

TEST_P(Keyboard, isTheProgramsFromTheMomentInWhichTheShelfBeginsToClose)
{
    hold(3);
    focusShelf(cell(0, 3));
    const xcb_window_t panel = shelf();
    pressHotKey();
    // Its body is nowhere any more, but it is on screen until it has slid away.
    ASSERT_TRUE(eventually([&] { return server().inputShape(panel).isEmpty(); }));
    hands().key(keys::forwardDelete);
    EXPECT_TRUE(editorHasKeyboard());
    ASSERT_TRUE(corvane().waitUntilHidden());
    EXPECT_TRUE(typesIntoEditor());
    pressHotKey();
    EXPECT_TRUE(holdsExactly(m_paths));
}

TEST_P(Keyboard, escapeClosesTheBarWhateverWasPressedOnTheShelfMeanwhile)
{
    hold(5);
    const auto arrow = [this](QPoint at) { return corvane().at(at.x(), at.y()); };
    for (const QPoint place :
         {cell(0, 5), cell(2, 5), cell(2, 5), arrow(CorvaneProgram::rightArrow(inView, 5)),
          arrow(CorvaneProgram::leftArrow(inView, 5))}) {
        openBar(5);
        hands().click(place);
        ASSERT_TRUE(eventually([this] { return server().focusedWindow() != shelf(); }));
        ASSERT_TRUE(barHasKeyboard());
        hands().key(keys::escape);
        EXPECT_TRUE(eventually([this] { return !bar(); }));
    }
    EXPECT_TRUE(holdsExactly(m_paths));
}

TEST_P(Keyboard, anEscapeThatIsHeldAfterItClosedTheBarIsNotTheProgramsBehind)
{
    hold(3);
    KeyLog log(display(), server().focusedWindow());
    openBar(3);
    hands().keyDown(keys::escape);
    ASSERT_TRUE(eventually([this] { return !bar(); }));
    ASSERT_TRUE(editorHasKeyboard());
    // Many repeats long.
    EXPECT_FALSE(eventually([&] { return log.presses() > 0; }, std::chrono::milliseconds{1200}));
    hands().keyUp(keys::escape);
    EXPECT_TRUE(typesIntoEditor()) << "which Escape would have closed";
    EXPECT_TRUE(holdsExactly(m_paths));
}

TEST_P(Keyboard, isLeftWithTheProgramByABarThatADragBroughtBack)
{
    hold(3);
    openBar(3);
    pressHotKey();
    ASSERT_TRUE(corvane().waitUntilHidden());
    hands().click(m_editor->middle());
    ASSERT_TRUE(editorHasKeyboard());
    XdndSource source(m_desktop, {{"text/plain", "x"}});
    source.pickUp();
    ASSERT_TRUE(eventually([this] { return bar().has_value(); }));
    source.letGo();
    // The drag is over for the shelf when it is as large again as what it holds.
    ASSERT_TRUE(holds(3));
    EXPECT_TRUE(editorHasKeyboard());
    EXPECT_TRUE(typesIntoEditor());
}

TEST_P(Keyboard, isLeftWithTheProgramWhenTheEdgeBringsTheShelf)
{
    hold(3);
    openBar(3);
    pressHotKey();
    ASSERT_TRUE(corvane().waitUntilHidden());
    pressHotKey();
    ASSERT_TRUE(barHasKeyboard()) << "the user asked for it";
    pressHotKey();
    ASSERT_TRUE(corvane().waitUntilHidden());
    hands().click(m_editor->middle());
    ASSERT_TRUE(editorHasKeyboard());
    hands().glideTo(QPoint(server().size().width() / 2, 60));
    for (int i = 0; i < 4; ++i)
        hands().moveBy(QPoint(0, -30));
    ASSERT_TRUE(corvane().waitUntilShown());
    ASSERT_TRUE(holds(3));
    EXPECT_FALSE(bar()) << "nobody asked for that";
    ASSERT_TRUE(editorHasKeyboard());
    hands().key(keys::backSpace);
    hands().key('z');
    EXPECT_TRUE(m_editor->text("texz").contains('z'));
    EXPECT_TRUE(holds(3)) << "BackSpace was the editor's";
}

TEST_P(Keyboard, copiesWhatIsSeenAfterPaging)
{
    startWithInView(1);
    const QStringList paths{makeFile(u"a.txt"_s, "x"), makeFile(u"b.txt"_s, "x"),
                            makeFile(u"c.txt"_s, "x")};
    ASSERT_TRUE(dropFiles(paths));
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    focusShelf(corvane().body().center());
    hands().turn(Hands::Wheel::Left);
    hands().key('c', {keys::control});
    EXPECT_EQ(clipboardText(paths[1].toUtf8()), paths[1].toUtf8());
    hands().turn(Hands::Wheel::Left);
    hands().key(keys::forwardDelete);
    m_desktop.clearClipboard();
    hands().key('c', {keys::control});
    EXPECT_EQ(clipboardText(paths[1].toUtf8()), paths[1].toUtf8()) << "the first one is gone";
    hands().key(keys::right);
    hands().key('c', {keys::control});
    EXPECT_EQ(clipboardText(paths[2].toUtf8()), paths[2].toUtf8()) << "and no other";
}

TEST_P(Keyboard, aClickOnTheWayWhereTheShelfComesIsForWhatLiesThere)
{
    XdndPeer below(m_desktop, QRect(300, 0, 900, 200));
    // The program's time stands still from the moment in which the shelf comes: however slow the
    // machine is, the click is in time.
    const QString timeStops = makeFolder(u"clock"_s) + u"/stops"_s;
    CorvaneProgram::Start how;
    how.environment = m_desktop.environment();
    how.environment.insert(u"LD_PRELOAD"_s,
                           QCoreApplication::applicationDirPath() + u"/corvane_stopped_clock.so"_s);
    how.environment.insert(u"CORVANE_CLOCK_STOPS"_s, timeStops);
    start(how);
    ASSERT_TRUE(dropFiles({makeFile(u"one.txt"_s, "x")}));
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    ASSERT_EQ(corvane().startAgain(), 0);
    ASSERT_TRUE(corvane().waitUntilHidden());
    makeFile(u"clock/stops"_s, {});
    const int middle = server().size().width() / 2;
    hands().glideTo(QPoint(middle, 60));
    for (int i = 0; i < 4; ++i)
        hands().moveBy(QPoint(0, -30));
    ASSERT_TRUE(corvane().waitUntilShown());
    hands().press();
    hands().release();
    EXPECT_TRUE(below.pumpUntil([&] { return below.clicks() == 1; }));
    ASSERT_TRUE(QFile::remove(timeStops));
    EXPECT_TRUE(corvane().waitUntilHidden()) << "and the shelf is out of the way";
}

} // namespace
} // namespace corvane::e2e
