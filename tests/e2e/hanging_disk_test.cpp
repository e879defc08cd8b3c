// Disks that do not answer: the shelf goes on, and its end waits for nobody.

#include "e2e/desktop_test.h"

#include <QCoreApplication>
#include <QFile>

#include <csignal>

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

class HangingDisk : public DesktopTest {
protected:
    /// Starts the program where whoever touches what lies below `folder` waits for good.
    void startWithHanging(const QString &folder)
    {
        const QString mounts
            = makeFile(u"mounts"_s,
                       "22 1 0:21 / / rw - ext4 /dev/vda rw\n36 35 0:98 / " + folder.toUtf8()
                           + " rw - fuse.sshfs me@host:/home rw\n");
        startWith({{u"CORVANE_MOUNTS"_s, mounts}, {u"CORVANE_HANGING_FOLDER"_s, folder}});
    }
    /// The same where only who opens a file waits.
    void startWithSleeping(const QString &folder)
    {
        startWith({{u"CORVANE_SLEEPING_FOLDER"_s, folder}});
    }
    /// Drops a file and gives the shelf the keyboard.
    void hold(const QString &file)
    {
        ASSERT_TRUE(dropFiles({file}));
        ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
        focusShelf(corvane().at(56, 22));
    }
    bool waitForPreview(const QByteArray &title)
    {
        return eventually([&] {
            const auto window = corvane().window();
            return window && server().property(window->id, "_NET_WM_NAME") == title
                && server().focusedWindow() == window->id;
        });
    }
    void expectAnEnd()
    {
        corvane().program().signal(SIGTERM);
        EXPECT_EQ(corvane().program().waitForEnd(), 0);
        EXPECT_FALSE(QFile::exists(corvane().spool()));
    }

private:
    void startWith(const QList<std::pair<QString, QString>> &variables)
    {
        CorvaneProgram::Start how;
        how.environment = m_desktop.environment();
        how.environment.insert(u"LD_PRELOAD"_s,
                               QCoreApplication::applicationDirPath()
                                   + u"/corvane_hanging_disk.so"_s);
        for (const auto &[name, value] : variables)
            how.environment.insert(name, value);
        start(how);
    }
};

TEST_F(HangingDisk, aServerThatIsGoneKeepsNeitherThePreviewNorTheEndWaiting)
{
    const QString file = makeFile(u"net/letter.txt"_s, "dear reader");
    startWithHanging(makeFolder(u"net"_s));
    hold(file);
    // More often than there are threads for previews.
    for (int i = 0; i < 4; ++i) {
        hands().key(keys::space);
        ASSERT_TRUE(waitForPreview("letter.txt"));
        hands().key(keys::escape);
        ASSERT_TRUE(eventually([&] { return !corvane().window(); }));
    }
    expectAnEnd();
}

TEST_F(HangingDisk, whatAServerThatIsGoneHoldsIsCopiedAndDraggedOutAllTheSame)
{
    const QString file = makeFile(u"net/letter.txt"_s, "dear reader");
    startWithHanging(makeFolder(u"net"_s));
    hold(file);
    hands().key('c', {keys::control});
    EXPECT_EQ(clipboardText(file.toUtf8()), file.toUtf8());
    // Nobody waits for its contents either.
    hands().key('c', {keys::control, keys::alt});

    XdndTarget target(m_desktop, QRect(900, 400, 200, 200), true, "text/uri-list");
    const QPoint middle = target.frame().center();
    hands().beginDrag(corvane().at(38, 22), middle);
    hands().glideTo(middle);
    ASSERT_TRUE(target.pumpUntil([&] { return target.isHovered(); }));
    hands().aim(middle);
    target.pump();
    hands().release();
    ASSERT_TRUE(target.pumpUntil([&] { return target.hasDrop(); }));
    EXPECT_EQ(target.data(), uriList({file}));
    EXPECT_TRUE(corvane().waitUntilHidden()) << "it has left";
    expectAnEnd();
}

TEST_F(HangingDisk, whatLiesOnAnotherDiskIsShownMeanwhile)
{
    const QString file = makeFile(u"net/letter.txt"_s, "dear reader");
    const QString near = makeFile(u"near.txt"_s, QByteArray("line\n").repeated(200));
    startWithHanging(makeFolder(u"net"_s));
    hold(file);
    for (int i = 0; i < 2; ++i) {
        hands().key(keys::space);
        ASSERT_TRUE(waitForPreview("letter.txt"));
        hands().key(keys::escape);
        ASSERT_TRUE(eventually([&] { return !corvane().window(); }));
    }
    const auto waiting = [&] { return corvane().window().value_or(WindowFacts{}).frame.size(); };
    hands().key(keys::space);
    ASSERT_TRUE(waitForPreview("letter.txt"));
    const QSize nothingToShow = waiting();
    hands().key(keys::escape);
    ASSERT_TRUE(eventually([&] { return !corvane().window(); }));
    ASSERT_TRUE(dropFiles({near}));
    focusShelf(corvane().at(56, 22));
    hands().key(keys::space);
    ASSERT_TRUE(waitForPreview("near.txt"));
    EXPECT_TRUE(eventually([&] { return waiting().height() > nothingToShow.height(); }))
        << "with its text";
    expectAnEnd();
}

TEST_F(HangingDisk, thumbnailsAndPreviewsThatDoNotComeBackDoNotHoldTheEnd)
{
    const QString folder = makeFolder(u"asleep"_s);
    const QStringList files = {makeFile(u"asleep/a.png"_s, "x"), makeFile(u"asleep/b.png"_s, "x"),
                               makeFile(u"asleep/c.txt"_s, "x")};
    startWithSleeping(folder);
    for (const QString &file : files)
        hold(file);
    hands().key(keys::space);
    ASSERT_TRUE(waitForPreview("c.txt"));
    expectAnEnd();
}

} // namespace
} // namespace corvane::e2e
