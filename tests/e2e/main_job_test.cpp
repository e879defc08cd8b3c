// What the program is for: something is dragged out of a program, dropped on the shelf, kept there,
// and dragged into another program. This is what X11 alone shows of it, and what takes its
// programs; every_desktop_test has the rest.

#include "e2e/desktop/text_editor.h"
#include "e2e/desktop_test.h"

#include <QFile>
#include <QImage>

#include <gmock/gmock.h>

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

class MainJob : public EveryDesktop {
protected:
    /// Ends a drag that is over the target.
    void dropOn(XdndTarget &target)
    {
        hands().aim(target.frame().center());
        target.pump();
        hands().release();
    }

    void dragFromFileManager(const FileManager &files)
    {
        hands().beginDrag(files.firstFile(), QPoint(756, 0));
        dropOnShelf();
    }

    /// With one item on a shelf that shows one: its thumbnail.
    QPoint onlyItem() { return corvane().at(38, 22); }
    /// That file is what lies there, seen by copying it.
    void expectItem(const QString &file)
    {
        m_desktop.clearClipboard();
        focusShelf(onlyItem());
        hands().key('c', {keys::control});
        EXPECT_EQ(clipboardText(file.toUtf8()), file.toUtf8());
    }

    void dragOutTo(QPoint place)
    {
        hands().beginDrag(onlyItem(), place);
        hands().glideTo(place);
        hands().aim(place);
    }

    QRect leftHalf() const { return {60, 300, 560, 400}; }
    QRect rightHalf() const { return {760, 300, 560, 400}; }
};

INSTANTIATE_TEST_SUITE_P(, MainJob, everyX11Desktop(), nameOf);

TEST_P(MainJob, aFileIsKeptAndGoesOnIntoAnotherFolderByteForByte)
{
    QByteArray contents("\0\1\2 report", 10);
    makeFile(u"from/report.txt"_s, contents);
    const QString to = makeFolder(u"to"_s);
    FileManager source(m_desktop, makeFolder(u"from"_s), leftHalf());
    ASSERT_EQ(source.problem(), QString());
    FileManager target(m_desktop, to, rightHalf());
    ASSERT_EQ(target.problem(), QString());
    start();

    dragFromFileManager(source);
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));

    dropOutOn(onlyItem(), target.emptyPlace());
    ASSERT_TRUE(target.chooseCopy());
    EXPECT_TRUE(eventually([&] { return bytesOf(to + u"/report.txt"_s) == contents; }));
    EXPECT_TRUE(corvane().waitUntilHidden()) << "what has been dragged out leaves the shelf";
    EXPECT_TRUE(QFile::exists(makeFolder(u"from"_s) + u"/report.txt"_s))
        << "and is copied, not moved";
}

TEST_P(MainJob, threeFilesAreKeptInTheirOrder)
{
    for (const auto &name : {u"from/a.txt"_s, u"from/b.txt"_s, u"from/c.txt"_s})
        makeFile(name, "x");
    const QString folder = makeFolder(u"from"_s);
    FileManager source(m_desktop, folder, leftHalf());
    ASSERT_EQ(source.problem(), QString());
    startWithInView(3);

    source.selectAll();
    dragFromFileManager(source);
    ASSERT_TRUE(corvane().waitForSize(CorvaneProgram::carousel(3, 3)));

    for (int i = 0; i < 3; ++i) {
        const QPoint cell = CorvaneProgram::cell(3, 3, i);
        focusShelf(corvane().at(cell.x(), cell.y()));
        hands().key('c', {keys::control});
        const QByteArray path = (folder + u"/%1.txt"_s.arg(QChar(u'a' + i))).toUtf8();
        EXPECT_EQ(clipboardText(path), path);
    }
}

TEST_P(MainJob, aFolderIsKept)
{
    const QString folder = makeFolder(u"from/pictures"_s);
    FileManager source(m_desktop, makeFolder(u"from"_s), leftHalf());
    ASSERT_EQ(source.problem(), QString());
    start();

    dragFromFileManager(source);
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    focusShelf(onlyItem());
    hands().key('c', {keys::control});
    EXPECT_EQ(clipboardText(folder.toUtf8()), folder.toUtf8());
}

TEST_P(MainJob, aTiffPictureBecomesAPngThatEndsWithTheProgram)
{
    QImage picture(37, 23, QImage::Format_RGB32);
    picture.fill(Qt::darkCyan);
    const QString folder = makeFolder(u"from"_s);
    ASSERT_TRUE(picture.save(folder + u"/scan.tiff"_s, "tiff"));
    FileManager source(m_desktop, folder, leftHalf());
    ASSERT_EQ(source.problem(), QString());
    start();

    dragFromFileManager(source);
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    ASSERT_TRUE(eventually([&] { return corvane().spooled() == QStringList{u"scan.png"_s}; }));
    const QImage kept(corvane().spool() + u"/scan.png"_s, "png");
    EXPECT_EQ(kept.convertToFormat(QImage::Format_RGB32), picture);

    corvane().program().signal(SIGTERM);
    EXPECT_EQ(corvane().program().waitForEnd(), 0);
    EXPECT_FALSE(QFile::exists(corvane().spool()));
}

TEST_P(MainJob, textComesFromOneEditorAndGoesIntoAnother)
{
    TextEditor source(m_desktop, "keep this", leftHalf());
    ASSERT_EQ(source.problem(), QString());
    TextEditor target(m_desktop, "", rightHalf());
    ASSERT_EQ(target.problem(), QString());
    start();

    source.selectAll();
    hands().beginDrag(source.firstWord(), QPoint(756, 0));
    dropOnShelf();
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));

    dropOutOn(onlyItem(), target.middle());
    EXPECT_TRUE(corvane().waitUntilHidden());
    EXPECT_EQ(target.text("keep this"), "keep this");
}

TEST_P(MainJob, whatIsDraggedOutIsOfferedForCopyingAndLinkingOnly)
{
    const QString file = makeFile(u"one file.txt"_s, "x");
    XdndTarget target(m_desktop, QRect(900, 400, 200, 200), true, "text/uri-list");
    start();
    ASSERT_TRUE(dropFiles({file}));
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));

    dragOutTo(target.frame().center());
    ASSERT_TRUE(target.pumpUntil([&] { return target.isHovered(); }));
    EXPECT_THAT(target.offeredActions(), testing::Not(testing::Contains("XdndActionMove")));
    EXPECT_THAT(target.offeredActions(), testing::Contains("XdndActionCopy"));
    dropOn(target);
    ASSERT_TRUE(target.pumpUntil([&] { return target.hasDrop(); }));
    EXPECT_EQ(target.data().trimmed(), uriList({file}).trimmed());
    EXPECT_TRUE(corvane().waitUntilHidden());
}

TEST_P(MainJob, escapeDuringADragOutKeepsTheItem)
{
    XdndTarget target(m_desktop, QRect(900, 400, 200, 200), true, "text/uri-list");
    const QString file = makeFile(u"one.txt"_s, "x");
    start();
    ASSERT_TRUE(dropFiles({file}));
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    const QSize before = corvane().size();

    dragOutTo(target.frame().center());
    ASSERT_TRUE(target.pumpUntil([&] { return target.isHovered(); }));
    hands().key(keys::escape);
    hands().aim(target.frame().center() + QPoint(20, 20));
    hands().release();

    EXPECT_TRUE(corvane().waitForSize(before));
    expectItem(file);
    target.pump();
    EXPECT_FALSE(target.wasDroppedOn());
}

TEST_P(MainJob, aTargetThatRefusesLeavesTheItemOnTheShelf)
{
    XdndTarget target(m_desktop, QRect(900, 400, 200, 200), false, "text/uri-list");
    const QString file = makeFile(u"one.txt"_s, "x");
    start();
    ASSERT_TRUE(dropFiles({file}));
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    const QSize before = corvane().size();

    dragOutTo(target.frame().center());
    ASSERT_TRUE(target.pumpUntil([&] { return target.isHovered(); }));
    dropOn(target);
    EXPECT_TRUE(corvane().waitForSize(before));
    expectItem(file);
    target.pump();
    EXPECT_FALSE(target.wasDroppedOn());

    // Nor does the bare desktop take anything.
    dragOutTo(QPoint(700, 800));
    hands().release();
    EXPECT_TRUE(corvane().waitForSize(before));
    expectItem(file);
}

TEST_P(MainJob, clicksBesideTheBodyReachTheWindowBelow)
{
    XdndPeer below(m_desktop, QRect(300, 0, 900, 200));
    start();
    ASSERT_EQ(corvane().startAgain(), 0);
    ASSERT_TRUE(corvane().waitForSize(CorvaneProgram::empty));
    const QRect body = corvane().body();
    ASSERT_EQ(body.size(), CorvaneProgram::empty);

    hands().click(QPoint(body.left() - 3, body.center().y()));
    hands().click(QPoint(body.right() + 4, body.center().y()));
    hands().click(QPoint(body.center().x(), body.bottom() + 3));
    EXPECT_TRUE(below.pumpUntil([&] { return below.clicks() == 3; }));
    hands().click(body.center());
    // The next click that arrives below is the one beside the body, so the one before did not.
    hands().click(QPoint(body.left() - 3, body.center().y()));
    EXPECT_TRUE(below.pumpUntil([&] { return below.clicks() >= 4; }));
    EXPECT_EQ(below.clicks(), 4);
}

TEST_P(MainJob, aShelfThatHasClosedLetsEveryClickThrough)
{
    XdndPeer below(m_desktop, QRect(300, 0, 900, 200));
    start();
    ASSERT_EQ(corvane().startAgain(), 0);
    ASSERT_TRUE(corvane().waitForSize(CorvaneProgram::empty));
    const QPoint middle = corvane().body().center();
    ASSERT_EQ(corvane().startAgain(), 0);
    // While it slides away, too: its body is nowhere any more.
    hands().click(middle);
    EXPECT_TRUE(below.pumpUntil([&] { return below.clicks() == 1; }));
    ASSERT_TRUE(corvane().waitUntilHidden());
    hands().click(middle);
    EXPECT_TRUE(below.pumpUntil([&] { return below.clicks() == 2; }));
}

TEST_P(MainJob, selectingTextAndMovingAWindowNeverOpenTheShelf)
{
    TextEditor editor(m_desktop, "a line of text that is long enough to be selected", leftHalf());
    ASSERT_EQ(editor.problem(), QString());
    start();
    MapLog log(m_desktop.environment().value(u"DISPLAY"_s).toLatin1());

    const auto dragAcross = [this](QPoint from, QPoint to) {
        hands().beginDrag(from, to);
        hands().glideTo(to);
        hands().aim(to);
        hands().release();
    };
    dragAcross(editor.firstWord(), editor.firstWord() + QPoint(250, 0));
    dragAcross(editor.titleBar(), editor.titleBar() + QPoint(150, 60));
    dragAcross(QPoint(1300, 800), QPoint(1400, 900));

    // A real drag opens it, and that is the first time that it is shown.
    XdndSource source(m_desktop, {{"text/plain", "x"}});
    source.pickUp();
    ASSERT_TRUE(corvane().waitUntilShown());
    EXPECT_EQ(log.panelsShown(corvane().program().pid()), 1);
    source.letGo();
    EXPECT_TRUE(corvane().waitUntilHidden());
}

TEST_P(MainJob, theShelfOpensWithoutTakingTheKeyboardAndGivesItBackAfterwards)
{
    TextEditor editor(m_desktop, "text", leftHalf());
    ASSERT_EQ(editor.problem(), QString());
    hands().click(editor.middle());
    const xcb_window_t active = server().activeWindow();
    ASSERT_NE(active, noWindow);
    start();

    ASSERT_TRUE(dropFiles({makeFile(u"one.txt"_s, "x")}));
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    EXPECT_EQ(server().activeWindow(), active);

    const xcb_window_t panel = corvane().panel().value_or(WindowFacts{}).id;
    focusShelf(onlyItem());
    hands().key(keys::forwardDelete);
    ASSERT_TRUE(corvane().waitUntilHidden());
    EXPECT_TRUE(eventually(
        [&] { return server().activeWindow() == active && server().focusedWindow() != panel; }));
    hands().key('z');
    EXPECT_TRUE(eventually([&] { return editor.text("textz").contains('z'); }));
}

} // namespace
} // namespace corvane::e2e
