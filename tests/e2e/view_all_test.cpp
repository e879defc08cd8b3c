// The bar that shows every item: opened from the shelf, ticked, dragged from as one, closed.

#include "e2e/desktop/text_editor.h"
#include "e2e/desktop_test.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QUrl>

#include <gmock/gmock.h>

#include <functional>

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

class ViewAll : public EveryDesktop {
protected:
    static constexpr int inView = 3;

    QStringList makeFiles(int count)
    {
        QStringList paths;
        for (int i = 0; i < count; ++i)
            paths << makeFile(u"from/%1.txt"_s.arg(QChar(u'a' + i)), "x");
        return paths;
    }
    /// A shelf that holds that many files, all of them ticked as what arrives is.
    QStringList startWithFiles(int count)
    {
        QStringList paths = makeFiles(count);
        startWithInView(inView);
        EXPECT_TRUE(dropFiles(paths));
        EXPECT_TRUE(holds(count));
        return paths;
    }
    static QByteArray png()
    {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        QImage picture(20, 20, QImage::Format_RGB32);
        picture.fill(Qt::darkCyan);
        EXPECT_TRUE(picture.save(&buffer, "png"));
        return bytes;
    }
    bool holds(int count) { return corvane().waitForSize(CorvaneProgram::carousel(inView, count)); }

    testing::AssertionResult holdsExactly(const QStringList &paths)
    {
        return EveryDesktop::holdsExactly(inView, paths);
    }

    Bar theBar() { return {m_desktop, corvane(), inView}; }
    std::optional<WindowFacts> bar() { return theBar().window(); }
    bool waitUntilClosed() { return theBar().waitUntilClosed(); }
    bool hasKeyboard() { return theBar().waitForKeyboard(); }
    /// The window manager may be behind the server and name a window that has it no longer, and
    /// some programs give it on to a window inside their own.
    bool hasKeyboardAgain(xcb_window_t active)
    {
        constexpr xcb_window_t programsBits = ~0x1fffffU;
        return eventually([=, this] {
            return server().activeWindow() == active
                && (server().focusedWindow() & programsBits) == (active & programsBits);
        });
    }
    QPoint button(int items) { return theBar().button(items); }
    QPoint firstCell(int items)
    {
        const QPoint cell = CorvaneProgram::cell(inView, items, 0);
        return corvane().at(cell.x(), cell.y());
    }
    testing::AssertionResult openFromButton(int items)
    {
        if (theBar().open(items))
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << "the bar is not opened, or has no keyboard";
    }

    QRect barFrame() { return theBar().frame(); }
    QPoint tile(int nth, int items) { return theBar().tile(nth, items); }
    void clickInBar(QPoint point)
    {
        hands().click(point);
        // Away from it: what follows is told by the picture alone.
        m_desktop.pictureAtRest(barFrame());
    }
    void tickOnly(std::initializer_list<int> tiles, int items)
    {
        clickInBar(theBar().selectAllBox());
        for (const int nth : tiles)
            clickInBar(tile(nth, items));
    }
    void dragTo(QPoint from, QPoint place)
    {
        hands().beginDrag(from, place);
        hands().glideTo(place);
        hands().aim(place);
    }
    void dropOn(XdndTarget &target, QPoint from)
    {
        dragTo(from, target.frame().center());
        ASSERT_TRUE(target.pumpUntil([&] { return target.isHovered(); }));
        hands().aim(target.frame().center());
        target.pump();
        hands().release();
    }

    QRect leftHalf() const { return {60, 400, 560, 400}; }
    QRect rightHalf() const { return {760, 400, 560, 400}; }
};

/// What depends on no window manager.
class ViewAllItems : public ViewAll { };

INSTANTIATE_TEST_SUITE_P(, ViewAll, twoDesktops(), nameOf);
INSTANTIATE_TEST_SUITE_P(, ViewAllItems, testing::Values(DesktopKind{}), nameOf);

TEST_P(ViewAll, whatIsTickedGoesIntoAnotherFolderInOneDrag)
{
    const QStringList all = makeFiles(10);
    const QString to = makeFolder(u"to"_s);
    FileManager source(m_desktop, makeFolder(u"from"_s), leftHalf());
    ASSERT_EQ(source.problem(), QString());
    FileManager target(m_desktop, to, rightHalf());
    ASSERT_EQ(target.problem(), QString());
    startWithInView(inView);
    source.selectAll();
    hands().beginDrag(source.firstFile(), QPoint(756, 0));
    dropOnShelf();
    ASSERT_TRUE(holds(10));

    ASSERT_TRUE(openFromButton(10));
    tickOnly({1, 4, 8}, 10);
    dropOutOn(tile(4, 10), target.emptyPlace());
    ASSERT_TRUE(target.chooseCopy());
    const QStringList expected{u"b.txt"_s, u"e.txt"_s, u"i.txt"_s};
    EXPECT_TRUE(eventually([&] { return QDir(to).entryList(QDir::Files) == expected; }));
    EXPECT_TRUE(holdsExactly({all[0], all[2], all[3], all[5], all[6], all[7], all[9]}))
        << "they have left the shelf";
    EXPECT_EQ(QDir(makeFolder(u"from"_s)).entryList(QDir::Files).size(), 10) << "as copies";
}

TEST_P(ViewAll, withShiftTheyStayAndCanBeDraggedAgain)
{
    const QStringList paths = startWithFiles(4);
    XdndTarget first(m_desktop, QRect(300, 500, 200, 200), true, "text/uri-list");
    XdndTarget second(m_desktop, QRect(900, 500, 200, 200), true, "text/uri-list");
    ASSERT_TRUE(openFromButton(4));
    tickOnly({0, 3}, 4);
    hands().keyDown(keys::shift);
    dropOn(first, tile(3, 4));
    ASSERT_TRUE(first.pumpUntil([&] { return first.hasDrop(); }));
    EXPECT_EQ(first.data(), uriList({paths[0], paths[3]})) << "in the shelf's order";
    hands().keyUp(keys::shift);
    EXPECT_EQ(theBar().ticked(4), (QStringList{paths[0], paths[3]})) << "nothing of it has left";

    dropOn(second, tile(0, 4));
    ASSERT_TRUE(second.pumpUntil([&] { return second.hasDrop(); }));
    EXPECT_EQ(second.data(), uriList({paths[0], paths[3]}));
    EXPECT_TRUE(holdsExactly({paths[1], paths[2]}));
}

TEST_P(ViewAll, theDownArrowOpensItAndEscapeGivesTheKeyboardBackToTheShelf)
{
    TextEditor editor(m_desktop, "text", leftHalf());
    ASSERT_EQ(editor.problem(), QString());
    hands().click(editor.middle());
    const xcb_window_t active = server().activeWindow();
    ASSERT_NE(active, noWindow);
    const QStringList paths = startWithFiles(3);
    focusShelf(firstCell(3));
    hands().key(keys::down);
    ASSERT_TRUE(hasKeyboard());
    hands().key(keys::escape);
    ASSERT_TRUE(waitUntilClosed());
    ASSERT_TRUE(eventually([&] {
        const auto panel = corvane().panel();
        return panel && server().focusedWindow() == panel->id;
    })) << "the bar took it from the shelf";
    hands().click(editor.middle());
    ASSERT_TRUE(hasKeyboardAgain(active));
    hands().key('z');
    EXPECT_TRUE(editor.text("textz").contains('z'));
    EXPECT_TRUE(holdsExactly(paths)) << "Escape closed the bar and removed nothing";
}

TEST_P(ViewAll, openedFromElsewhereItHasTheKeyboardAndGivesItBack)
{
    TextEditor editor(m_desktop, "text", leftHalf());
    ASSERT_EQ(editor.problem(), QString());
    hands().click(editor.middle());
    const xcb_window_t active = server().activeWindow();
    startWithFiles(3);
    ASSERT_TRUE(openFromButton(3));
    // The shelf goes and comes, and the bar with it. All that the user does last is done in another
    // program.
    const auto byHotKey = [this] { hands().key('d', {keys::super, keys::shift}); };
    // As a finger does, which lasts longer than the bar takes to come.
    const auto byHeldHotKey = [this] {
        const bool isShown = bar().has_value();
        hands().keyDown(keys::super);
        hands().keyDown(keys::shift);
        hands().keyDown('d');
        EXPECT_TRUE(isShown ? waitUntilClosed() : hasKeyboard());
        hands().keyUp('d');
        hands().keyUp(keys::shift);
        hands().keyUp(keys::super);
    };
    const auto byAnotherStart = [this] { EXPECT_EQ(corvane().startAgain(), 0); };
    for (const std::function<void()> &toggle : std::initializer_list<std::function<void()>>{
             byHotKey, byHeldHotKey, byAnotherStart, byHeldHotKey}) {
        toggle();
        ASSERT_TRUE(waitUntilClosed());
        ASSERT_TRUE(hasKeyboardAgain(active));
        ASSERT_TRUE(corvane().waitUntilHidden());
        hands().click(editor.middle());
        toggle();
        ASSERT_TRUE(hasKeyboard());
    }
    hands().key(keys::escape);
    ASSERT_TRUE(waitUntilClosed());
    ASSERT_TRUE(hasKeyboardAgain(active));
    hands().key('z');
    EXPECT_TRUE(editor.text("textz").contains('z'));
}

TEST_P(ViewAll, aClickElsewhereClosesItButNotTheWheelNorOneOnTheShelf)
{
    XdndPeer other(m_desktop, QRect(600, 600, 300, 200));
    startWithFiles(4);
    ASSERT_TRUE(openFromButton(4));
    hands().moveTo(other.frame().center());
    for (const auto wheel :
         {Hands::Wheel::Up, Hands::Wheel::Down, Hands::Wheel::Left, Hands::Wheel::Right})
        hands().turn(wheel);
    hands().glideTo(firstCell(4));
    const QImage before = m_desktop.pictureAtRest(corvane().body());
    hands().click(firstCell(4));
    // What follows is heard after what came before.
    ASSERT_TRUE(eventually([&] { return server().picture(corvane().body()) != before; }));
    ASSERT_TRUE(hasKeyboard()) << "and keeps it";
    // The second press of the button closes it: were it closed by the press itself as a click
    // elsewhere, the button would open it again.
    hands().click(button(4));
    EXPECT_TRUE(waitUntilClosed());
    ASSERT_TRUE(openFromButton(4));
    hands().click(other.frame().center());
    EXPECT_TRUE(waitUntilClosed());
    EXPECT_TRUE(other.pumpUntil([&] { return other.clicks() > 0; })) << "which has the click";
    ASSERT_TRUE(openFromButton(4));
    hands().click(other.frame().center(), 3);
    EXPECT_TRUE(waitUntilClosed());
}

TEST_P(ViewAll, aClickIntoAnotherWindowLeavesTheKeyboardThere)
{
    TextEditor before(m_desktop, "before", leftHalf());
    ASSERT_EQ(before.problem(), QString());
    TextEditor clicked(m_desktop, "clicked", rightHalf());
    ASSERT_EQ(clicked.problem(), QString());
    hands().click(before.middle());
    startWithFiles(3);
    const xcb_window_t active = server().activeWindow();
    ASSERT_TRUE(openFromButton(3));
    hands().click(clicked.middle());
    ASSERT_TRUE(waitUntilClosed());
    EXPECT_TRUE(eventually([&] { return server().activeWindow() != active; }));
    hands().key('z');
    EXPECT_TRUE(eventually([&] { return clicked.text("clickedz").contains('z'); }));
    EXPECT_NE(server().activeWindow(), active);
}

TEST_P(ViewAllItems, everythingIsSelectedCopiedAndPastedInTheFileManager)
{
    const QString to = makeFolder(u"to"_s);
    FileManager target(m_desktop, to, rightHalf());
    ASSERT_EQ(target.problem(), QString());
    startWithFiles(3);
    ASSERT_TRUE(openFromButton(3));
    clickInBar(tile(1, 3));
    hands().key('a', {keys::control});
    hands().key('c', {keys::control});
    m_desktop.pictureAtRest(barFrame());
    hands().click(target.emptyPlace());
    ASSERT_TRUE(waitUntilClosed());
    hands().key('v', {keys::control});
    const QStringList expected{u"a.txt"_s, u"b.txt"_s, u"c.txt"_s};
    EXPECT_TRUE(eventually([&] { return QDir(to).entryList(QDir::Files) == expected; }));
    EXPECT_TRUE(corvane().isShown());
}

TEST_P(ViewAllItems, deleteRemovesWhatIsTickedAndItsSpooledFiles)
{
    startWithInView(inView);
    ASSERT_TRUE(dropOffers({{"image/png", png()}}));
    ASSERT_TRUE(dropFiles(makeFiles(2)));
    ASSERT_TRUE(holds(3));
    ASSERT_TRUE(eventually([&] { return corvane().spooled().size() == 1; }));

    ASSERT_TRUE(openFromButton(3));
    clickInBar(tile(2, 3));
    hands().key(keys::forwardDelete);
    EXPECT_TRUE(waitUntilClosed()) << "one item needs no bar";
    EXPECT_TRUE(eventually([&] { return corvane().spooled().isEmpty(); }));
    EXPECT_TRUE(QFile::exists(makeFolder(u"from"_s) + u"/a.txt"_s)) << "the user's own stay";
    EXPECT_TRUE(corvane().isShown());
}

TEST_P(ViewAllItems, severalPicturesWithoutFilesAreCopiedAsFilesThatCanBePastedOnceTheyAreGone)
{
    startWithInView(inView);
    QFile inTheWay(corvane().spool());
    ASSERT_TRUE(inTheWay.open(QFile::WriteOnly));
    for (int i = 0; i < 2; ++i)
        ASSERT_TRUE(dropOffers({{"image/png", png()}}));
    ASSERT_TRUE(holds(2));
    ASSERT_TRUE(inTheWay.remove());

    ASSERT_TRUE(openFromButton(2));
    hands().key('c', {keys::control});
    QList<QByteArray> copied;
    ASSERT_TRUE(eventually([&] {
        copied
            = m_desktop.clipboard(u"text/uri-list"_s).value_or(QByteArray()).trimmed().split('\n');
        return copied.size() == 2;
    }));
    hands().key(keys::forwardDelete);
    ASSERT_TRUE(corvane().waitUntilHidden());
    for (const QByteArray &address : copied) {
        QFile file(QUrl(QString::fromUtf8(address.trimmed())).toLocalFile());
        ASSERT_TRUE(file.open(QFile::ReadOnly)) << "what is on the clipboard can be pasted";
        EXPECT_EQ(file.readAll(), png());
    }
    EXPECT_EQ(corvane().spooled().size(), 2);
}

TEST_P(ViewAllItems, aTargetThatRefusesLeavesEverythingAndOneThatTakesTextGetsEveryPath)
{
    const QStringList paths = startWithFiles(4);
    XdndTarget refusing(m_desktop, QRect(300, 500, 200, 200), false, "text/uri-list");
    XdndTarget reading(m_desktop, QRect(900, 500, 200, 200), true, "text/plain;charset=utf-8");
    ASSERT_TRUE(openFromButton(4));
    dropOn(refusing, tile(0, 4));
    EXPECT_TRUE(holdsExactly(paths));
    refusing.pump();
    EXPECT_FALSE(refusing.wasDroppedOn());
    dropOn(reading, tile(0, 4));
    ASSERT_TRUE(reading.pumpUntil([&] { return reading.hasDrop(); }));
    EXPECT_EQ(QString::fromUtf8(reading.data()), paths.join(u'\n'));
    EXPECT_TRUE(corvane().waitUntilHidden());
}

TEST_P(ViewAllItems, itsOwnDragIsNotDroppedOnItself)
{
    const QStringList paths = startWithFiles(4);
    ASSERT_TRUE(openFromButton(4));
    dragTo(tile(0, 4), tile(3, 4));
    hands().release();
    EXPECT_TRUE(holdsExactly(paths));
    ASSERT_TRUE(bar());
    dragTo(tile(0, 4), firstCell(4));
    hands().release();
    EXPECT_TRUE(holdsExactly(paths));
    EXPECT_TRUE(bar());
}

} // namespace
} // namespace corvane::e2e
