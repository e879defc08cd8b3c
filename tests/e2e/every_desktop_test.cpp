// The main job, told once for every kind of desktop, X11's and Wayland's. What a session is not
// able to do it says in its preferences; exactly that is expected of it here.

#include "e2e/desktop/screen_reader.h"
#include "e2e/wayland_session.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QUrl>

#include <gmock/gmock.h>

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

const auto clicksAreUnnoticed
    = u"A click in another program does not close the bar with all items, because your desktop "
      "keeps that to itself. Press Escape to close it."_s;
const auto keysAreChosenElsewhere
    = u"Shortcuts cannot be recorded here, because your desktop keeps that to itself. Choose them "
      "in your desktop's settings."_s;
const auto shiftIsUnnoticed = u"Shift is not noticed once a drag has begun, because your desktop "
                              u"keeps that to itself. Hold "
                              "it before you begin to drag, and the item stays."_s;

/// What the preferences say of limits in each kind of session.
QStringList limitsOf(WindowManager windowManager)
{
    switch (windowManager) {
    case WindowManager::Openbox:
    case WindowManager::Xfwm4:
        return {};
    case WindowManager::KWin:
        return {clicksAreUnnoticed, shiftIsUnnoticed};
    case WindowManager::Sway:
        return {clicksAreUnnoticed, shiftIsUnnoticed, keysAreChosenElsewhere};
    case WindowManager::Mutter:
        return {clicksAreUnnoticed, keysAreChosenElsewhere};
    }
    return {};
}

class OnEveryDesktop : public WaylandSession {
protected:
    bool isLimit(const QString &limit) const
    {
        return limitsOf(GetParam().windowManager).contains(limit);
    }

    /// Waits until a shelf that shows three holds so many.
    bool waitForItems(int total)
    {
        // In a picture its ends are not where they are in its window.
        constexpr int ends = 16;
        const QSize expected = CorvaneProgram::carousel(3, total);
        return corvane().waitForHeight(expected.height()) && eventually([&] {
                   return std::abs(corvane().size().width() - expected.width()) <= ends;
               });
    }
    /// Where its first item is then.
    QPoint firstOf(int total)
    {
        const QPoint cell = CorvaneProgram::cell(3, total, 0);
        return {(server().size().width() - CorvaneProgram::carousel(3, total).width()) / 2
                    + cell.x(),
                cell.y()};
    }
    /// Drags what is at that place over the target, and holds it there.
    void holdOutOver(GtkPeer &target, QPoint from)
    {
        hands().glideTo(from);
        m_desktop.pictureAtRest(corvane().body());
        hands().beginDrag(from, target.target());
        hands().glideTo(target.target());
        ASSERT_TRUE(wiggleUntil([&] { return target.isTargetReady(); })) << target.output();
    }
    /// Mutter 48 has its programs believe so after any drag that Shift was held in, until another
    /// drag has ended.
    bool isShiftStuck(GtkPeer &typing)
    {
        hands().click(typing.target());
        EXPECT_TRUE(eventually([&] {
            hands().key('k');
            return typing.keys().contains("k") || typing.keys().contains("K");
        }));
        return typing.keys().contains("K");
    }
    void pressHotKey() { hands().key('d', {keys::super, keys::shift}); }
    /// What is on the shelf goes to that program now, and is this.
    void expectItGives(GtkPeer &target, const QString &file)
    {
        dragOut(target);
        EXPECT_EQ(target.droppedAddresses().trimmed(), uriList({file}).trimmed());
        EXPECT_TRUE(corvane().waitUntilHidden());
    }
    /// A place that the bar covers, and nothing else: the pointer is in the pictures, too.
    static QRect behindTheBar() { return {660, 90, 60, 60}; }
    static QPoint onTheBar() { return {756, 70}; }
};

INSTANTIATE_TEST_SUITE_P(, OnEveryDesktop, everyDesktop(), nameOf);

TEST_P(OnEveryDesktop, aFileIsKeptAndGoesOnIntoAnotherProgram)
{
    const QString file = makeFile(u"report.txt"_s, "report");
    GtkPeer source(m_desktop, {.files = {file}}, leftPlace());
    ASSERT_EQ(source.problem(), QString());
    GtkPeer target(m_desktop, {}, rightPlace());
    ASSERT_EQ(target.problem(), QString());
    start();

    hands().beginDrag(source.source(), edge());
    dropWhereTheShelfOpens(source);
    EXPECT_EQ(source.endOfDrag(), "done");
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    expectItGives(target, file);
}

TEST_P(OnEveryDesktop, severalFilesOfOneDragAreKeptTheFirstOneFirst)
{
    const QStringList files{makeFile(u"a b.txt"_s, "a"), makeFile(u"ä#%.txt"_s, "b"),
                            makeFolder(u"folder"_s)};
    GtkPeer source(m_desktop, {.files = files}, leftPlace());
    ASSERT_EQ(source.problem(), QString());
    GtkPeer target(m_desktop, {}, rightPlace());
    ASSERT_EQ(target.problem(), QString());
    startWithInView(3);

    hands().beginDrag(source.source(), edge());
    dropWhereTheShelfOpens(source);
    EXPECT_EQ(source.endOfDrag(), "done");
    ASSERT_TRUE(waitForItems(3));
    holdOutOver(target, firstOf(3));
    hands().release();
    EXPECT_EQ(target.droppedAddresses().trimmed(), uriList({files.first()}).trimmed());
    EXPECT_TRUE(waitForItems(2));
}

TEST_P(OnEveryDesktop, aTextComesBackLetterForLetter)
{
    const QString text = u"Grüße, 你好\nzweite Zeile"_s;
    GtkPeer source(m_desktop, {.text = text}, leftPlace());
    ASSERT_EQ(source.problem(), QString());
    GtkPeer target(m_desktop, {}, rightPlace());
    ASSERT_EQ(target.problem(), QString());
    start();

    hands().beginDrag(source.source(), edge());
    dropWhereTheShelfOpens(source);
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    dragOut(target);
    EXPECT_EQ(target.droppedText(), text.toUtf8());
    EXPECT_TRUE(corvane().waitUntilHidden());
}

TEST_P(OnEveryDesktop, aDragThatIsRefusedElsewhereLeavesTheItemOnTheShelf)
{
    const QString file = makeFile(u"report.txt"_s, "report");
    GtkPeer target(m_desktop, {}, rightPlace());
    ASSERT_EQ(target.problem(), QString());
    start();
    keep(file);
    hands().beginDrag(corvane().at(38, 22), belowEdge());
    hands().glideTo(belowEdge());
    hands().release();
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    expectItGives(target, file);
}

TEST_P(OnEveryDesktop, shiftPressedDuringADragOutKeepsTheItemUnlessTheSessionSaysOtherwise)
{
    const QString file = makeFile(u"report.txt"_s, "report");
    GtkPeer first(m_desktop, {}, leftPlace());
    ASSERT_EQ(first.problem(), QString());
    GtkPeer second(m_desktop, {}, rightPlace());
    ASSERT_EQ(second.problem(), QString());
    start();
    keep(file);
    holdOutOver(first, corvane().at(38, 22));
    hands().keyDown(keys::shift);
    hands().release();
    EXPECT_EQ(first.droppedAddresses().trimmed(), uriList({file}).trimmed());
    if (isLimit(shiftIsUnnoticed)) {
        EXPECT_TRUE(corvane().waitUntilHidden());
        hands().keyUp(keys::shift);
        return;
    }
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    hands().keyUp(keys::shift);
    expectItGives(second, file);
}

TEST_P(OnEveryDesktop, shiftHeldFromThePressOnKeepsTheItem)
{
    const QString file = makeFile(u"report.txt"_s, "report");
    GtkPeer first(m_desktop, {}, leftPlace());
    ASSERT_EQ(first.problem(), QString());
    GtkPeer second(m_desktop, {}, rightPlace());
    ASSERT_EQ(second.problem(), QString());
    start();
    keep(file);
    hands().keyDown(keys::shift);
    dragOut(first);
    EXPECT_EQ(first.droppedAddresses().trimmed(), uriList({file}).trimmed());
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    hands().keyUp(keys::shift);
    // Then the next drag is one with Shift to everybody, and the last one.
    if (GetParam().windowManager == WindowManager::Mutter && isShiftStuck(second)) {
        dragOut(second);
        EXPECT_EQ(second.droppedAddresses().trimmed(), uriList({file}).trimmed());
        ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    }
    expectItGives(second, file);
}

TEST_P(OnEveryDesktop, aDragThatEndsElsewhereClosesTheShelfAgain)
{
    GtkPeer source(m_desktop, {.text = u"text"_s}, leftPlace());
    ASSERT_EQ(source.problem(), QString());
    GtkPeer target(m_desktop, {}, rightPlace());
    ASSERT_EQ(target.problem(), QString());
    start();
    hands().beginDrag(source.source(), target.target());
    EXPECT_TRUE(wiggleUntil([&] { return corvane().isShown(); }));
    hands().glideTo(target.target());
    ASSERT_TRUE(wiggleUntil([&] { return target.isTargetReady(); })) << target.output();
    hands().release();
    EXPECT_EQ(target.droppedText(), "text");
    EXPECT_TRUE(corvane().waitUntilHidden());
}

TEST_P(OnEveryDesktop, itsKeyOpensTheShelfAndWhereItHasNoneTheCommandDoes)
{
    start();
    pressHotKey();
    if (isLimit(keysAreChosenElsewhere)) {
        // What the user's own key runs. Had ours been heard this would close the shelf.
        EXPECT_EQ(corvane().startAgain(), 0);
        EXPECT_TRUE(corvane().waitUntilShown());
        EXPECT_EQ(corvane().startAgain(), 0);
    } else {
        EXPECT_TRUE(corvane().waitUntilShown());
        pressHotKey();
    }
    EXPECT_TRUE(corvane().waitUntilHidden());
}

TEST_P(OnEveryDesktop, aClickInAnotherProgramClosesTheBarUnlessTheSessionSaysOtherwise)
{
    GtkPeer elsewhere(m_desktop, {}, rightPlace());
    ASSERT_EQ(elsewhere.problem(), QString());
    start();
    keep(makeFile(u"report.txt"_s, "report"));
    keep(makeFile(u"plan.txt"_s, "plan"));
    const QImage bare = m_desktop.pictureAtRest(behindTheBar());
    const auto isOpen = [&] { return server().picture(behindTheBar()) != bare; };
    ASSERT_TRUE(corvane().activateAction(u"view-all"_s));
    ASSERT_TRUE(eventually(isOpen));
    const QImage open = m_desktop.pictureAtRest(behindTheBar());
    hands().click(elsewhere.source());
    ASSERT_TRUE(eventually([&] { return elsewhere.presses() == 1; }));
    if (isLimit(clicksAreUnnoticed)) {
        EXPECT_EQ(m_desktop.pictureAtRest(behindTheBar()), open);
        hands().click(onTheBar());
        EXPECT_TRUE(eventually([&] {
            hands().key(keys::escape);
            return !isOpen();
        }));
    } else {
        EXPECT_TRUE(eventually([&] { return !isOpen(); }));
    }
}

TEST_P(OnEveryDesktop, anOpenBarGoesWithTheShelfAndComesBackToItsPlace)
{
    start();
    keep(makeFile(u"report.txt"_s, "report"));
    keep(makeFile(u"plan.txt"_s, "plan"));
    const QImage bare = m_desktop.pictureAtRest(behindTheBar());
    ASSERT_TRUE(corvane().activateAction(u"view-all"_s));
    ASSERT_TRUE(eventually([&] { return server().picture(behindTheBar()) != bare; }));
    const QImage open = m_desktop.pictureAtRest(behindTheBar());
    EXPECT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight)) << "the bar is not below it";
    EXPECT_EQ(corvane().startAgain(), 0);
    ASSERT_TRUE(eventually([&] { return server().picture(behindTheBar()) != open; }));
    ASSERT_TRUE(corvane().waitUntilHidden());
    EXPECT_EQ(corvane().startAgain(), 0);
    EXPECT_TRUE(eventually([&] { return server().picture(behindTheBar()) == open; }));
}

// By more than a panel gets of room when it is shown.
TEST_P(OnEveryDesktop, aShelfThatGrowsFarStaysInTheMiddle)
{
    startWithInView(6);
    const auto put = [this](const QStringList &files) {
        Program asking(CorvaneProgram::path(), files, m_desktop.environment());
        EXPECT_EQ(asking.waitForEnd(), 0);
    };
    put({makeFile(u"first.txt"_s, "1")});
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::carouselHeight));
    QStringList more;
    for (const QString &name : {u"b"_s, u"c"_s, u"d"_s, u"e"_s, u"f"_s})
        more << makeFile(name, "x");
    put(more);
    constexpr int ends = 16;
    EXPECT_TRUE(eventually([&] {
        const QRect body = corvane().body();
        return body.width() > CorvaneProgram::carousel(6, 6).width() - ends
            && std::abs(body.center().x() - edge().x()) <= 2;
    }));
}

TEST_P(OnEveryDesktop, thePreferencesSayWhatTheSessionIsNotAbleToDoAndNothingElse)
{
    ScreenReader reader(m_desktop);
    ASSERT_TRUE(reader.isReady());
    CorvaneProgram::Start how;
    how.environment = m_desktop.environment();
    ScreenReader::addTo(how.environment);
    start(how);
    ASSERT_TRUE(corvane().activateAction(u"preferences"_s));
    QStringList said;
    const auto limits = [&] {
        said.clear();
        bool isThere = false;
        for (const auto &element : reader.elements(corvane().program().pid())) {
            isThere = isThere || element.name.startsWith(u"Items in view"_s);
            if (element.name.contains(u", because "_s))
                said << element.name;
        }
        return isThere;
    };
    ASSERT_TRUE(eventually(limits));
    EXPECT_THAT(said, testing::UnorderedElementsAreArray(limitsOf(GetParam().windowManager)));
}

TEST_P(OnEveryDesktop, clicksBesideTheShelfReachWhatLiesBelow)
{
    GtkPeer below(m_desktop, {.text = u"text"_s}, {0, 0, 1512, 300});
    ASSERT_EQ(below.problem(), QString());
    start();
    // The window covers the wallpaper, so that the shelf cannot be told from it: it is asked to
    // show itself, and the picture changes.
    const QRect middle(600, 0, 312, 60);
    const QImage before = m_desktop.pictureAtRest(middle);
    EXPECT_EQ(corvane().startAgain(), 0);
    ASSERT_TRUE(eventually([&] { return server().picture(middle) != before; }));
    hands().click({500, 20});
    EXPECT_TRUE(eventually([&] {
        // The shelf was given the keyboard. Sway keeps it there whatever is clicked, and a click
        // that comes right with the pointer only gives it back.
        if (GetParam().windowManager == WindowManager::Sway)
            hands().click({500, 20});
        return below.presses() >= 1;
    }));
}

TEST_P(OnEveryDesktop, aCutTitleIsReadBelowItsCellAndIsInNobodysWay)
{
    start();
    keep(makeFile(QString(200, u'n') + u".txt"_s, "report"));
    const QPoint cell = corvane().at(38, 22);
    GtkPeer below(m_desktop, {}, {656, 64, 400, 200});
    ASSERT_EQ(below.problem(), QString());
    const QRect tip(730, 94, 52, 20);
    hands().moveTo(besideTheShelf());
    const QImage bare = m_desktop.pictureAtRest(tip);
    hands().glideTo(cell);
    ASSERT_TRUE(eventually([&] { return server().picture(tip) != bare; }));
    m_desktop.pictureAtRest(tip);

    // It goes with the pointer, which clicks before that is noticed.
    hands().click(tip.center());
    EXPECT_TRUE(eventually([&] { return below.presses() == 1; }));
    hands().moveTo(besideTheShelf());
    EXPECT_TRUE(eventually([&] { return server().picture(tip) == bare; }));
}

TEST_P(OnEveryDesktop, aCutTitleOfTheBarIsReadBelowItUntilThePointerLeaves)
{
    start();
    keep(makeFile(QString(200, u'n') + u".txt"_s, "report"));
    keep(makeFile(QString(200, u'm') + u".txt"_s, "plan"));
    const QImage closed = m_desktop.pictureAtRest(behindTheBar());
    ASSERT_TRUE(corvane().activateAction(u"view-all"_s));
    ASSERT_TRUE(eventually([&] { return server().picture(behindTheBar()) != closed; }));
    const QRect tip(700, 200, 22, 20);
    hands().moveTo(besideTheShelf() + QPoint(0, 300));
    const QImage bare = m_desktop.pictureAtRest(tip);
    hands().glideTo({711, 100});
    ASSERT_TRUE(eventually([&] { return server().picture(tip) != bare; }));
    hands().glideTo(besideTheShelf() + QPoint(0, 300));
    EXPECT_TRUE(eventually([&] { return server().picture(tip) == bare; }));
}

// Some compositors would have the bar above it, and some below.
TEST_P(OnEveryDesktop, aCutTitleOfTheShelfIsReadBesideItWhileTheBarIsOpen)
{
    start();
    keep(makeFile(QString(80, u'i') + u".txt"_s, "report"));
    keep(makeFile(QString(80, u'l') + u".txt"_s, "plan"));
    const QPoint cell = corvane().at(100, 22);
    const QRect tip(corvane().body().left() - 60, 14, 30, 20);
    const QImage closed = m_desktop.pictureAtRest(behindTheBar());
    ASSERT_TRUE(corvane().activateAction(u"view-all"_s));
    ASSERT_TRUE(eventually([&] { return server().picture(behindTheBar()) != closed; }));
    const QImage bare = m_desktop.pictureAtRest(tip);
    hands().glideTo(cell);
    EXPECT_TRUE(eventually([&] { return server().picture(tip) != bare; }));
    hands().glideTo(besideTheShelf() + QPoint(0, 300));
    EXPECT_TRUE(eventually([&] { return server().picture(tip) == bare; }));
}

TEST_P(OnEveryDesktop, keysGoToTheShelfAfterAClickOnIt)
{
    start();
    keep(makeFile(u"report.txt"_s, "report"));
    hands().click(corvane().at(38, 22));
    // Compositors take a moment to move the keyboard after a click.
    EXPECT_TRUE(eventually([this] {
        hands().key(keys::backSpace);
        return !corvane().isShown();
    }));
}

TEST_P(OnEveryDesktop, afterADropTheKeyboardIsWhereItWasBefore)
{
    GtkPeer typing(m_desktop, {}, rightPlace());
    ASSERT_EQ(typing.problem(), QString());
    GtkPeer source(m_desktop, {.files = {makeFile(u"report.txt"_s, "report")}}, leftPlace());
    ASSERT_EQ(source.problem(), QString());
    start();
    hands().beginDrag(source.source(), edge());
    dropWhereTheShelfOpens(source);
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    // To the program that it was dragged out of, which the press has given the keyboard.
    ASSERT_TRUE(eventually([&] {
        hands().key('k');
        return source.keys().contains("k");
    })) << "keys are typed somewhere else";
    hands().click(typing.target());
    ASSERT_TRUE(eventually([&] {
        hands().key('l');
        return typing.keys().contains("l");
    }));
}

/// What is on the shelf when the program ends. On X11 kept_items_test tells of it.
class KeptUnderWayland : public OnEveryDesktop {
protected:
    void SetUp() override
    {
        OnEveryDesktop::SetUp();
        QDir(data()).removeRecursively();
    }
    void TearDown() override
    {
        OnEveryDesktop::TearDown();
        QDir(data()).removeRecursively();
    }

    QString data() const
    {
        return m_desktop.environment().value(u"XDG_DATA_HOME"_s) + u"/corvane"_s;
    }
    void drop(const DragPeer::Offer &offer)
    {
        GtkPeer source(m_desktop, offer, leftPlace());
        ASSERT_EQ(source.problem(), QString());
        hands().beginDrag(source.source(), edge());
        dropWhereTheShelfOpens(source);
        EXPECT_EQ(source.endOfDrag(), "done");
    }
    /// A picture that is no file, and a text.
    void dropPictureAndText()
    {
        const QString habits = u"source.drag_source_set(Gdk.ModifierType.BUTTON1_MASK, "
                               "[Gtk.TargetEntry.new('image/png', 0, 0)], Gdk.DragAction.COPY)\n"
                               "source.connect('drag-data-get', lambda w, c, data, i, t: "
                               "data.set(data.get_target(), 8, bytes.fromhex('%1')))"_s;
        drop({.habits = habits.arg(QString::fromLatin1(m_picture.toHex()))});
        ASSERT_TRUE(waitForItems(1));
        ASSERT_TRUE(eventually([&] { return corvane().spooled() == QStringList{u"Image.png"_s}; }));
        drop({.text = m_text});
        ASSERT_TRUE(waitForItems(2));
    }
    void quit()
    {
        Program quit(CorvaneProgram::path(), {u"--quit"_s}, m_desktop.environment());
        EXPECT_EQ(quit.waitForEnd(), 0);
        EXPECT_EQ(corvane().program().waitForEnd(), 0);
    }
    void quitAndStart()
    {
        ASSERT_NO_FATAL_FAILURE(quit());
        CorvaneProgram::Start how;
        how.keepsSettings = true;
        start(how);
    }

    const QByteArray m_picture = [] {
        QImage image(16, 16, QImage::Format_RGB32);
        image.fill(Qt::red);
        QBuffer buffer;
        image.save(&buffer, "png");
        return buffer.data();
    }();
    const QString m_text = u"Gr\u00fc\u00dfe\nzweite Zeile"_s;
};

INSTANTIATE_TEST_SUITE_P(, KeptUnderWayland,
                         testing::Values(sessionOf(WindowManager::Sway),
                                         sessionOf(WindowManager::KWin)),
                         nameOf);

TEST_P(KeptUnderWayland, whatIsOnTheShelfAloneIsThereAtTheNextStartInItsOrder)
{
    GtkPeer first(m_desktop, {}, rightPlace());
    ASSERT_EQ(first.problem(), QString());
    start({3, "settings.keepItems=true\n", {}});
    ASSERT_NO_FATAL_FAILURE(dropPictureAndText());
    ASSERT_NO_FATAL_FAILURE(quitAndStart());
    ASSERT_TRUE(waitForItems(2));
    ASSERT_TRUE(eventually([&] { return corvane().spooled() == QStringList{u"Image.png"_s}; }));

    holdOutOver(first, firstOf(2));
    hands().release();
    const QUrl picture = QUrl::fromEncoded(first.droppedAddresses().trimmed());
    QFile file(picture.toLocalFile());
    ASSERT_TRUE(file.open(QFile::ReadOnly)) << picture.toEncoded().constData();
    EXPECT_EQ(file.readAll(), m_picture);
    ASSERT_TRUE(waitForItems(1));

    GtkPeer second(m_desktop, {}, leftPlace());
    ASSERT_EQ(second.problem(), QString());
    holdOutOver(second, firstOf(1));
    hands().release();
    EXPECT_EQ(second.droppedText(), m_text.toUtf8());
    EXPECT_TRUE(corvane().waitUntilHidden());
    quit();
    EXPECT_FALSE(QFile::exists(data() + u"/kept"_s));
}

TEST_P(KeptUnderWayland, nothingIsKeptUnlessThatIsWanted)
{
    startWithInView(3);
    ASSERT_NO_FATAL_FAILURE(dropPictureAndText());
    ASSERT_NO_FATAL_FAILURE(quitAndStart());
    EXPECT_FALSE(QFile::exists(data()));
    EXPECT_FALSE(corvane().isShown());
    EXPECT_EQ(corvane().spooled(), QStringList());
}

} // namespace
} // namespace corvane::e2e
