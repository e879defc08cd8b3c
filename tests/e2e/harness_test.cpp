// The desktop itself and the programs on it, without the program under test: where these fail, the
// others cannot be believed.

#include "e2e/desktop/text_editor.h"
#include "e2e/desktop_test.h"

#include <QFile>

#include <csignal>

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

using VirtualDesktop = EveryDesktop;
INSTANTIATE_TEST_SUITE_P(, VirtualDesktop, everyX11Desktop(), nameOf);

TEST_P(VirtualDesktop, carriesAFileFromOneFileManagerWindowToAnother)
{
    makeFile(u"from/report.txt"_s, "carried\n");
    const QString to = makeFolder(u"to"_s);
    FileManager left(m_desktop, makeFolder(u"from"_s), QRect(60, 300, 560, 400));
    ASSERT_EQ(left.problem(), QString());
    FileManager right(m_desktop, to, QRect(760, 300, 560, 400));
    ASSERT_EQ(right.problem(), QString());

    hands().beginDrag(left.firstFile(), right.emptyPlace());
    hands().glideTo(right.emptyPlace());
    hands().aim(right.emptyPlace());
    hands().release();
    ASSERT_TRUE(right.chooseCopy());

    EXPECT_TRUE(eventually([&] { return bytesOf(to + u"/report.txt"_s) == "carried\n"; }));
}

TEST_P(VirtualDesktop, carriesTextIntoAnEditor)
{
    TextEditor editor(m_desktop, "some text", QRect(760, 300, 560, 400));
    ASSERT_EQ(editor.problem(), QString());
    EXPECT_EQ(editor.text("some text"), "some text");

    TextEditor other(m_desktop, "", QRect(60, 300, 560, 400));
    ASSERT_EQ(other.problem(), QString());
    editor.selectAll();
    hands().beginDrag(editor.firstWord(), other.middle());
    hands().glideTo(other.middle());
    hands().aim(other.middle());
    hands().release();

    EXPECT_EQ(other.text("some text"), "some text");
}

/// What tools/virtual-desktop starts.
std::unique_ptr<Program> desktopWith(const QString &script, const QStringList &options = {})
{
    return std::make_unique<Program>(QCoreApplication::applicationDirPath()
                                         + u"/corvane_virtual_desktop"_s,
                                     QStringList{u"--no-compositor"_s, u"--size"_s, u"800x600"_s}
                                         + options + QStringList{u"sh"_s, u"-c"_s, script},
                                     QProcessEnvironment::systemEnvironment());
}

/// The display and the home folder, as the script says them; two empty texts while it does not.
QStringList saidBy(Program &desktop)
{
    const QStringList lines = QString::fromUtf8(desktop.output()).split(u'\n');
    const QStringList said = lines.filter(u"desktop "_s).value(0).split(u' ');
    return {said.value(1), said.value(2)};
}

const QString tell = u"echo desktop $DISPLAY $HOME; "_s;

TEST(VirtualDesktopStarter, runsACommandAndEndsTheDesktopWithIt)
{
    const auto desktop = desktopWith(tell + u"xdpyinfo | grep -q ' 800x600 ' && exit 7"_s);
    EXPECT_EQ(desktop->waitForEnd(patience), 7);
    const QStringList said = saidBy(*desktop);
    ASSERT_FALSE(said.at(1).isEmpty());
    EXPECT_FALSE(QFile::exists(said.at(1)));
    EXPECT_FALSE(XServer(said.at(0).toLatin1()).isConnected());
}

TEST(VirtualDesktopStarter, aSignalEndsTheCommandAndThenTheDesktop)
{
    const auto desktop = desktopWith(tell + u"exec sleep 1000"_s);
    ASSERT_TRUE(eventually([&] { return !saidBy(*desktop).at(1).isEmpty(); }));
    const QStringList said = saidBy(*desktop);
    EXPECT_TRUE(XServer(said.at(0).toLatin1()).isConnected());
    desktop->signal(SIGTERM);
    EXPECT_EQ(desktop->waitForEnd(patience), 128 + SIGTERM);
    EXPECT_FALSE(QFile::exists(said.at(1)));
    EXPECT_FALSE(XServer(said.at(0).toLatin1()).isConnected());
}

TEST(VirtualDesktopStarter, aPictureInAWaylandSessionIsOneOfItsScreen)
{
    const auto desktop = desktopWith(
        u"cd \"$TMPDIR\" && \"%1/../tools/virtual-desktop\" shoot picture.png && convert "
        u"picture.png "
        "-crop 1x1+400+300 -depth 8 rgb:- | od -A n -t x1"_s.arg(QStringLiteral(CORVANE_TEST_DATA)),
        {u"--window-manager"_s, u"sway"_s});
    EXPECT_EQ(desktop->waitForEnd(patience), 0);
    // The wallpaper.
    EXPECT_TRUE(desktop->output().contains("33 66 99")) << desktop->output().toStdString();
}

} // namespace
} // namespace corvane::e2e
