// Drags between the program and others in a Wayland session, under sway: large, slow, and such as
// do not end well.

#include "e2e/wayland_session.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QImage>

#include <sys/stat.h>

#include <optional>

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

class SwayDrags : public WaylandSessionTest {
protected:
    SwayDrags()
        : WaylandSessionTest(sessionOf(WindowManager::Sway))
    {
    }

    void dropFrom(const GtkPeer &source)
    {
        ASSERT_EQ(source.problem(), QString());
        hands().beginDrag(source.source(), edge());
        dropOnShelf();
    }
};

TEST_F(SwayDrags, aLargeTextComesAndGoesByteByByte)
{
    constexpr int lines = 60000;
    const QString line = u"Zeile mit \u00e4 und \u4f60\n"_s;
    GtkPeer source(
        m_desktop,
        {.text = line, .habits = u"text = ''.join(str(i) + text for i in range(%1))"_s.arg(lines)},
        leftPlace());
    GtkPeer target(m_desktop, {}, rightPlace());
    ASSERT_EQ(target.problem(), QString());
    start();
    dropFrom(source);
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    dragOut(target);
    QByteArray expected;
    for (int i = 0; i < lines; ++i)
        expected += QByteArray::number(i) + line.toUtf8();
    EXPECT_TRUE(target.droppedText() == expected);
    EXPECT_TRUE(corvane().waitUntilHidden());
}

TEST_F(SwayDrags, severalFilesAreTakenFromOneDrag)
{
    const QStringList files{makeFile(u"a b.txt"_s, "a"), makeFile(u"\u00e4#%.txt"_s, "b"),
                            makeFolder(u"folder"_s)};
    GtkPeer source(m_desktop, {.files = files}, leftPlace());
    startWithInView(3);
    dropFrom(source);
    EXPECT_EQ(source.endOfDrag(), "done");
    EXPECT_TRUE(corvane().waitForHeight(CorvaneProgram::carouselHeight));
}

// The toolkit alone would give it up after a second, and stand still until then.
TEST_F(SwayDrags, aSourceThatTakesItsTimeIsWaitedForWhileEverythingGoesOn)
{
    GtkPeer target(m_desktop, {}, rightPlace());
    ASSERT_EQ(target.problem(), QString());
    const QString sign = makeFolder(u"signs"_s) + u"/go"_s;
    GtkPeer source(m_desktop,
                   {.text = u"late"_s,
                    .habits = u"import os, time\n"
                              "def wait(*arguments):\n"
                              "    tell('asked yes')\n"
                              "    while not os.path.exists('%1'): time.sleep(0.01)\n"
                              "source.connect('drag-data-get', wait)"_s.arg(sign)},
                   leftPlace());
    start();
    dropFrom(source);
    ASSERT_TRUE(source.hasSaid("asked"));
    // Answered by the same thread.
    ASSERT_TRUE(corvane().activateAction(u"preferences"_s));
    makeFile(u"signs/go"_s, {});
    EXPECT_EQ(source.endOfDrag(), "done");
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    dragOut(target);
    EXPECT_EQ(target.droppedText(), "late");
}

TEST_F(SwayDrags, aTargetThatHangsAndEndsLeavesTheItem)
{
    start();
    keep(makeFile(u"report.txt"_s, "report"));
    std::optional<GtkPeer> target;
    target.emplace(m_desktop,
                   GtkPeer::Offer{.habits = u"import time\n"
                                            "target.drag_dest_set(Gtk.DestDefaults.MOTION, "
                                            "[], "
                                            "Gdk.DragAction.COPY)\n"
                                            "target.drag_dest_add_uri_targets()\n"
                                            "target.connect('drag-drop', lambda *a: "
                                            "(tell('dropped yes'), time.sleep(600)))"_s},
                   rightPlace());
    ASSERT_EQ(target->problem(), QString());
    dragOut(*target);
    ASSERT_TRUE(target->hasSaid("dropped"));
    // It may still take it.
    EXPECT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    target.reset();
    GtkPeer next(m_desktop, {}, rightPlace());
    ASSERT_EQ(next.problem(), QString());
    dragOut(next);
    EXPECT_NE(next.droppedAddresses(), "");
    EXPECT_TRUE(corvane().waitUntilHidden());
}

TEST_F(SwayDrags, aTargetThatFetchesNothingHasNothing)
{
    const QString file = makeFile(u"report.txt"_s, "report");
    start();
    keep(file);
    GtkPeer hasty(m_desktop,
                  {.habits
                   = u"target.drag_dest_set(Gtk.DestDefaults.MOTION, [], "
                     "Gdk.DragAction.COPY)\n"
                     "target.drag_dest_add_uri_targets()\n"
                     "target.connect('drag-drop', lambda w, c, x, y, t: "
                     "(Gtk.drag_finish(c, True, False, t), tell('dropped yes')) and True)"_s},
                  rightPlace());
    ASSERT_EQ(hasty.problem(), QString());
    dragOut(hasty);
    ASSERT_TRUE(hasty.hasSaid("dropped"));
    GtkPeer target(m_desktop, {}, leftPlace());
    ASSERT_EQ(target.problem(), QString());
    dragOut(target);
    EXPECT_EQ(target.droppedAddresses().trimmed(), uriList({file}).trimmed());
}

TEST_F(SwayDrags, whatIsDroppedWhereItCameFromStays)
{
    const QString file = makeFile(u"report.txt"_s, "report");
    start();
    keep(file);
    hands().beginDrag(corvane().at(38, 22), corvane().at(150, 30));
    hands().glideTo(corvane().at(150, 30));
    hands().release();
    GtkPeer target(m_desktop, {}, rightPlace());
    ASSERT_EQ(target.problem(), QString());
    dragOut(target);
    EXPECT_EQ(target.droppedAddresses().trimmed(), uriList({file}).trimmed());
    EXPECT_TRUE(corvane().waitUntilHidden());
}

TEST_F(SwayDrags, shiftHeldFromThePressOnKeepsTheItem)
{
    start();
    keep(makeFile(u"report.txt"_s, "report"));
    GtkPeer target(m_desktop, {}, rightPlace());
    ASSERT_EQ(target.problem(), QString());
    hands().keyDown(keys::shift);
    dragOut(target);
    EXPECT_NE(target.droppedAddresses(), "");
    hands().keyUp(keys::shift);
    GtkPeer next(m_desktop, {}, leftPlace());
    ASSERT_EQ(next.problem(), QString());
    dragOut(next);
    EXPECT_NE(next.droppedAddresses(), "");
    EXPECT_TRUE(corvane().waitUntilHidden());
}

TEST_F(SwayDrags, aPictureThatIsBeingMadeIsGivenWhenItIsThere)
{
    QImage page(300, 400, QImage::Format_RGB32);
    page.fill(qRgb(235, 232, 223));
    const QString tiff = makeFile(u"asleep/page.tiff"_s, {});
    ASSERT_TRUE(page.save(tiff, "tiff"));
    const QString pipe = makeFolder(u"pipes"_s) + u"/waking"_s;
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    CorvaneProgram::Start how;
    how.environment = m_desktop.environment();
    how.environment.insert(u"LD_PRELOAD"_s,
                           QCoreApplication::applicationDirPath() + u"/corvane_hanging_disk.so"_s);
    how.environment.insert(u"CORVANE_SLEEPING_FOLDER"_s, QFileInfo(tiff).path());
    how.environment.insert(u"CORVANE_WAKING_PIPE"_s, pipe);
    start(how);
    keep(tiff);
    GtkPeer target(m_desktop, {}, rightPlace());
    ASSERT_EQ(target.problem(), QString());
    dragOut(target);
    const QString made = corvane().spool() + u"/page.png"_s;
    EXPECT_FALSE(QFile::exists(made));
    // For reading as well, so that this waits for nobody.
    QFile waking(pipe);
    ASSERT_TRUE(waking.open(QFile::ReadWrite | QFile::Unbuffered));
    EXPECT_EQ(target.droppedAddresses().trimmed(), uriList({made}).trimmed());
    EXPECT_EQ(QImage(made, "png").convertToFormat(page.format()), page);
}

} // namespace
} // namespace corvane::e2e
