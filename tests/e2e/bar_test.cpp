// The bar used by hand: paged, its buttons pressed, its tiles dragged. What a click has hit is told
// by what is copied afterwards.

#include "e2e/desktop_test.h"

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

class BarUse : public DesktopTest {
protected:
    static constexpr int inView = 3;

    /// An open bar that has so many files, all of them ticked as what arrives is.
    void openWith(int count)
    {
        for (int i = 0; i < count; ++i)
            m_paths << makeFile(u"%1.txt"_s.arg(i), "x");
        startWithInView(inView);
        m_bar = std::make_unique<Bar>(m_desktop, corvane(), inView);
        ASSERT_TRUE(dropFiles(m_paths));
        ASSERT_TRUE(corvane().waitForSize(CorvaneProgram::carousel(inView, count)));
        ASSERT_TRUE(m_bar->open(count));
    }
    int count() const { return static_cast<int>(m_paths.size()); }
    QPoint tile(int nth) { return m_bar->tile(nth, count()); }
    QStringList at(std::initializer_list<int> places) const
    {
        QStringList paths;
        for (const int place : places)
            paths << m_paths[place];
        return paths;
    }
    QStringList withoutPlace(int place) const
    {
        QStringList paths = m_paths;
        paths.removeAt(place);
        return paths;
    }
    /// The one ticked file.
    QByteArray tickedOne(const QByteArray &expected)
    {
        m_desktop.clearClipboard();
        hands().key('c', {keys::control});
        return clipboardText(expected);
    }
    /// Which file that tile of the page stands for, where nothing is ticked.
    void expectTile(int nth, int place)
    {
        SCOPED_TRACE(place);
        const QByteArray path = m_paths[place].toUtf8();
        hands().click(tile(nth));
        EXPECT_EQ(tickedOne(path), path);
        hands().click(tile(nth));
    }
    void dropOn(XdndTarget &target, QPoint from)
    {
        hands().beginDrag(from, target.frame().center());
        hands().glideTo(target.frame().center());
        ASSERT_TRUE(target.pumpUntil([&] { return target.isHovered(); }));
        hands().aim(target.frame().center());
        target.pump();
        hands().release();
        ASSERT_TRUE(target.pumpUntil([&] { return target.hasDrop(); }));
    }

    QStringList m_paths;
    std::unique_ptr<Bar> m_bar;
    static constexpr QRect targetFrame{900, 600, 200, 200};
};

TEST_F(BarUse, itsArrowsPageByOneItemAndStopAtEitherEnd)
{
    openWith(14);
    const int last = m_bar->tilesOnAPage() - 1;
    ASSERT_EQ(last, 11);
    hands().click(m_bar->selectAllBox());
    hands().click(m_bar->back());
    expectTile(0, 0);
    expectTile(last, last);
    hands().click(m_bar->forward());
    expectTile(0, 1);
    for (int i = 0; i < 4; ++i)
        hands().click(m_bar->forward());
    expectTile(0, 2);
    expectTile(last, count() - 1);
    hands().click(m_bar->back());
    expectTile(last, count() - 2);
}

TEST_F(BarUse, aWheelPagesItSidewaysOnly)
{
    openWith(14);
    hands().click(m_bar->selectAllBox());
    hands().moveTo(tile(0));
    hands().turn(Hands::Wheel::Right, 2);
    expectTile(0, 2);
    hands().turn(Hands::Wheel::Left);
    expectTile(0, 1);
    hands().turn(Hands::Wheel::Up);
    hands().turn(Hands::Wheel::Down, 2);
    expectTile(0, 1);
    hands().keyDown(keys::shift);
    hands().turn(Hands::Wheel::Down);
    hands().keyUp(keys::shift);
    expectTile(0, 2);
    hands().turn(Hands::Wheel::Right, 3);
    expectTile(0, 2);
}

TEST_F(BarUse, eachOfItsButtonsDoesWhatItShows)
{
    openWith(5);
    hands().click(m_bar->selectAllBox());
    EXPECT_EQ(m_bar->ticked(5), QStringList()) << "all of them were ticked";
    hands().click(m_bar->trash());
    hands().click(m_bar->selectAllLabel());
    EXPECT_EQ(m_bar->ticked(5), m_paths) << "the label is as good as the box; no item is gone";

    hands().click(m_bar->selectAllBox());
    hands().click(tile(1));
    hands().click(tile(3));
    m_desktop.clearClipboard();
    hands().click(m_bar->copyButton());
    const QByteArray both = uriList(at({1, 3})).trimmed();
    EXPECT_TRUE(eventually([&] {
        return m_desktop.clipboard(u"text/uri-list"_s).value_or(QByteArray()).trimmed() == both;
    }));
    hands().click(m_bar->trash());
    EXPECT_TRUE(holdsExactly(inView, at({0, 2, 4}))) << "the ticked ones are gone";
}

TEST_F(BarUse, anUntickedTileIsDraggedAloneAndTheOthersStayTicked)
{
    openWith(5);
    XdndTarget target(m_desktop, targetFrame, true, "text/uri-list");
    hands().click(tile(2));
    dropOn(target, tile(2));
    EXPECT_EQ(target.data(), uriList(at({2})));
    ASSERT_TRUE(corvane().waitForSize(CorvaneProgram::carousel(inView, 4)));
    EXPECT_EQ(m_bar->ticked(4), withoutPlace(2));
    EXPECT_TRUE(holdsExactly(inView, withoutPlace(2)));
}

TEST_F(BarUse, aTickedSetIsDraggedWholeAlsoFromAnotherPage)
{
    openWith(14);
    XdndTarget target(m_desktop, targetFrame, true, "text/uri-list");
    hands().click(m_bar->selectAllBox());
    hands().click(tile(1));
    hands().click(tile(0));
    for (int i = 0; i < 2; ++i)
        hands().click(m_bar->forward());
    const int last = m_bar->tilesOnAPage() - 1;
    hands().click(tile(last));
    m_desktop.pictureAtRest(m_bar->frame());
    dropOn(target, tile(last));
    EXPECT_EQ(target.data(), uriList(at({0, 1, 13}))) << "in the shelf's order";
    EXPECT_TRUE(holdsExactly(inView, m_paths.mid(2, 11)));
}

} // namespace
} // namespace corvane::e2e
