// What can be done with what lies on the shelf: keys, paging, copying, removing.

#include "e2e/desktop_test.h"

#include <QFile>

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

class ShelfUse : public EveryDesktop {
protected:
    /// A shelf that shows `inView` items and holds files named 0.txt, 1.txt and so on.
    void hold(int inView, int total)
    {
        m_inView = inView;
        m_total = total;
        startWithInView(inView);
        for (int i = 0; i < total; ++i)
            m_paths.append(makeFile(u"%1.txt"_s.arg(i), QByteArray::number(i)));
        ASSERT_TRUE(dropFiles(m_paths));
        ASSERT_TRUE(corvane().waitForSize(CorvaneProgram::carousel(inView, total)));
    }

    QPoint cell(int nth)
    {
        const QPoint at = CorvaneProgram::cell(m_inView, m_total, nth);
        return corvane().at(at.x(), at.y());
    }

    /// Which file the focused item is, told by copying it: -1 for none of them.
    int focused()
    {
        // What an earlier copy left there would be taken for this one's.
        m_desktop.clearClipboard();
        hands().key('c', {keys::control});
        QByteArray text;
        eventually([&] {
            text = m_desktop.clipboard(u"UTF8_STRING"_s).value_or(QByteArray());
            return !text.isEmpty();
        });
        return static_cast<int>(m_paths.indexOf(QString::fromUtf8(text)));
    }

    /// Waits until the focused item is that file.
    bool waitForFocus(int expected)
    {
        return eventually([&] { return focused() == expected; }, std::chrono::seconds{5});
    }

    bool waitForTotal(int total)
    {
        m_total = total;
        return corvane().waitForSize(CorvaneProgram::carousel(m_inView, total));
    }

    int m_inView = 3;
    int m_total = 0;
    QStringList m_paths;
};

INSTANTIATE_TEST_SUITE_P(, ShelfUse, twoDesktops(), nameOf);

TEST_P(ShelfUse, aClickFocusesAnItemAndTheArrowKeysMoveOn)
{
    hold(3, 3);
    focusShelf(cell(1));
    EXPECT_TRUE(waitForFocus(1));
    hands().key(keys::left);
    EXPECT_TRUE(waitForFocus(0));
    hands().key(keys::left);
    EXPECT_TRUE(waitForFocus(0)) << "there is nothing before the first";
    hands().key(keys::right);
    hands().key(keys::right);
    EXPECT_TRUE(waitForFocus(2));
    hands().key(keys::right);
    EXPECT_TRUE(waitForFocus(2)) << "nor after the last";
}

TEST_P(ShelfUse, aFocusedItemIsRemovedByDeleteForwardDeleteAndEscape)
{
    hold(3, 4);
    focusShelf(cell(1));
    // The newest item had the focus, so the last three were in view.
    ASSERT_TRUE(waitForFocus(2));
    hands().key(keys::backSpace);
    ASSERT_TRUE(waitForTotal(3));
    EXPECT_TRUE(waitForFocus(3)) << "the one that slid into its place";
    hands().key(keys::forwardDelete);
    ASSERT_TRUE(waitForTotal(2));
    EXPECT_TRUE(waitForFocus(1));
    hands().key(keys::escape);
    ASSERT_TRUE(waitForTotal(1));
    hands().key(keys::escape);
    EXPECT_TRUE(corvane().waitUntilHidden());
    for (const QString &path : m_paths)
        EXPECT_TRUE(QFile::exists(path)) << "a file that was dropped is never deleted";
}

TEST_P(ShelfUse, copyingNeedsControlOrSuperAndMakesADataAddressWithAlt)
{
    hold(3, 2);
    focusShelf(cell(0));
    ASSERT_TRUE(waitForFocus(0));
    EXPECT_TRUE(
        m_desktop.clipboard(u"text/uri-list"_s).value_or(QByteArray()).startsWith("file://"));

    // Whether Alt is held is asked when the copy is made, so it is held until then.
    hands().keyDown(keys::alt);
    hands().key('c', {keys::control});
    EXPECT_EQ(clipboardText("data:text/plain;base64,MA=="), "data:text/plain;base64,MA==");
    hands().keyUp(keys::alt);

    m_desktop.clearClipboard();
    hands().key('c');
    hands().key('c', {keys::alt});
    // What came before has been dealt with once the bar is open.
    hands().key(keys::down);
    Bar bar(m_desktop, corvane(), 3);
    ASSERT_TRUE(bar.waitForKeyboard());
    EXPECT_EQ(server().selectionOwner("CLIPBOARD"), noWindow) << "neither of them copied";
    hands().key(keys::escape);
    ASSERT_TRUE(bar.waitUntilClosed());
    focusShelf(cell(1));
    hands().key('c', {keys::super});
    EXPECT_EQ(clipboardText(m_paths[1].toUtf8()), m_paths[1].toUtf8());
}

TEST_P(ShelfUse, theArrowsPageThroughTheItems)
{
    hold(2, 5);
    const QPoint left = CorvaneProgram::leftArrow(2, 5);
    const QPoint right = CorvaneProgram::rightArrow(2, 5);
    // The last two are in view at first.
    hands().click(corvane().at(left.x(), left.y()));
    focusShelf(cell(0));
    EXPECT_TRUE(waitForFocus(2));
    for (int i = 0; i < 4; ++i)
        hands().click(corvane().at(left.x(), left.y()));
    hands().click(cell(0));
    EXPECT_TRUE(waitForFocus(0));
    hands().click(corvane().at(right.x(), right.y()));
    hands().click(cell(1));
    EXPECT_TRUE(waitForFocus(2));
}

TEST_P(ShelfUse, theWheelPagesThroughTheItems)
{
    hold(2, 5);
    focusShelf(cell(1));
    ASSERT_TRUE(waitForFocus(4));
    hands().moveTo(cell(0));
    hands().turn(Hands::Wheel::Left, 2);
    hands().click(cell(0));
    EXPECT_TRUE(waitForFocus(1)) << "a notch to the left is one item back";
    hands().turn(Hands::Wheel::Right);
    hands().click(cell(0));
    EXPECT_TRUE(waitForFocus(2));
    hands().keyDown(keys::shift);
    hands().turn(Hands::Wheel::Up);
    hands().keyUp(keys::shift);
    hands().click(cell(0));
    EXPECT_TRUE(waitForFocus(1)) << "with Shift the upright wheel does the same";
    hands().turn(Hands::Wheel::Up, 2);
    hands().click(cell(0));
    EXPECT_TRUE(waitForFocus(1)) << "and without it nothing";
}

TEST_P(ShelfUse, theBadgeRemovesTheItemUnderThePointer)
{
    hold(3, 3);
    const QPoint badge = CorvaneProgram::badge(3, 3, 1);
    hands().glideTo(cell(1));
    hands().click(corvane().at(badge.x(), badge.y()));
    ASSERT_TRUE(waitForTotal(2));
    focusShelf(cell(1));
    EXPECT_TRUE(waitForFocus(2)) << "the middle one is gone";
}

TEST_P(ShelfUse, theButtonsOfASingleItemCopyAndRemoveIt)
{
    const QString file = makeFile(u"one.txt"_s, "x");
    start();
    ASSERT_TRUE(dropFiles({file}));
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    // Slots of 22 from the right edge of the area that they serve, which ends 23 before the
    // panel's.
    const double right = corvane().size().width() - 23;
    hands().click(corvane().at(right - 41 + 9, 22));
    EXPECT_EQ(clipboardText(file.toUtf8()), file.toUtf8());
    hands().click(corvane().at(right - 19 + 9, 22));
    EXPECT_TRUE(corvane().waitUntilHidden());
}

TEST_P(ShelfUse, aThreePointMoveIsAClickAndFourPointsAreADrag)
{
    const QString file = makeFile(u"one.txt"_s, "x");
    start();
    ASSERT_TRUE(dropFiles({file}));
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    const QPoint at = corvane().at(38, 22);
    // The shelf's own drag takes the selection; the source that dropped the file is gone.
    ASSERT_TRUE(eventually([&] { return server().selectionOwner("XdndSelection") == noWindow; }));
    hands().glideTo(at);
    hands().press();
    hands().moveTo(at + QPoint(3, 0));
    hands().moveTo(at + QPoint(2, 2));
    m_desktop.pictureAtRest(QRect(0, 0, 1512, 120));
    EXPECT_EQ(server().selectionOwner("XdndSelection"), noWindow);
    hands().moveTo(at + QPoint(4, 0));
    EXPECT_TRUE(eventually([&] { return server().selectionOwner("XdndSelection") != noWindow; }));
    hands().release();
    EXPECT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight))
        << "it was dropped on itself";
}

class InViewCount : public DesktopTest, public testing::WithParamInterface<int> { };
INSTANTIATE_TEST_SUITE_P(, InViewCount, testing::Range(2, 7));

TEST_P(InViewCount, decidesHowManyItemsTheShelfShows)
{
    startWithInView(GetParam());
    QStringList paths;
    for (int i = 0; i < GetParam() + 1; ++i)
        paths.append(makeFile(u"%1.txt"_s.arg(i), "x"));
    ASSERT_TRUE(dropFiles(paths.mid(1)));
    EXPECT_TRUE(corvane().waitForSize(CorvaneProgram::carousel(GetParam(), GetParam())));
    ASSERT_TRUE(dropFiles(paths.mid(0, 1)));
    EXPECT_TRUE(corvane().waitForSize(CorvaneProgram::carousel(GetParam(), GetParam() + 1)))
        << "one more than fit, and the arrows take their room";
}

class Settings : public DesktopTest { };

TEST_F(Settings, countsOutOfRangeAreRaisedToOneAndLoweredToSix)
{
    QStringList paths;
    for (int i = 0; i < 7; ++i)
        paths.append(makeFile(u"%1.txt"_s.arg(i), "x"));
    startWithInView(-3);
    ASSERT_TRUE(dropFiles(paths));
    EXPECT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    m_corvane.reset();
    startWithInView(9);
    ASSERT_TRUE(dropFiles(paths));
    EXPECT_TRUE(corvane().waitForSize(CorvaneProgram::carousel(6, 7)));
}

TEST_F(Settings, aFileFullOfGarbageIsReadAsDefaults)
{
    QByteArray garbage;
    for (int i = 0; i < 4096; ++i)
        garbage.append(static_cast<char>(i * 167 + i / 7));
    start({{}, "settings.inViewCount=@Invalid(\n[\n=\n" + garbage, {}});
    ASSERT_TRUE(dropFiles({makeFile(u"one.txt"_s, "x")}));
    EXPECT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
}

TEST_F(Settings, theShelfStaysClosedDuringDragsWhereItIsToldTo)
{
    start({{}, "settings.autoShowOnDrag=false\n", {}});
    MapLog log(m_desktop.environment().value(u"DISPLAY"_s).toLatin1());
    XdndSource source(m_desktop, {{"text/plain", "x"}});
    source.pickUp();
    // Opened by hand it takes the drop all the same; and that is the first time that it is shown.
    ASSERT_EQ(corvane().startAgain(), 0);
    ASSERT_TRUE(corvane().waitForSize(CorvaneProgram::empty));
    EXPECT_EQ(log.panelsShown(corvane().program().pid()), 1);
    const auto status
        = source.hover(corvane().panel().value_or(WindowFacts{}).id, corvane().body().center());
    ASSERT_TRUE(status && status->accepts);
    source.drop();
    EXPECT_TRUE(source.waitForFinish());
    EXPECT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
}

} // namespace
} // namespace corvane::e2e
