// ./run, in a tree where everything is built: it starts the program in the session that it finds.

#include "e2e/desktop_test.h"

#include <QFile>

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

class RunScriptTest : public DesktopTest {
protected:
    using DesktopTest::DesktopTest;

    void SetUp() override
    {
        DesktopTest::SetUp();
        ASSERT_TRUE(QFile::copy(QStringLiteral(CORVANE_SOURCE "/run"), tree(u"run"_s)));
        // Installing and building are other people's work.
        standIn(u"tools/setup-packages"_s, "exit 0");
        standIn(u"tools/virtual-desktop"_s, "echo \"virtual desktop: $*\"");
        standIn(u"bin/cmake"_s, "exit 0");
        makeFolder(u"tree/build/release/bin"_s);
        ASSERT_TRUE(QFile::link(CorvaneProgram::path(), tree(u"build/release/bin/corvane"_s)));
    }

    QString tree(const QString &name) { return makeFolder(u"tree"_s) + u'/' + name; }
    void standIn(const QString &name, const QByteArray &command)
    {
        const QString file = makeFile(u"tree/"_s + name, "#!/bin/sh\n" + command + '\n');
        ASSERT_TRUE(QFile::setPermissions(file, QFile::ReadOwner | QFile::ExeOwner));
    }
    QProcessEnvironment environment()
    {
        QProcessEnvironment environment = m_desktop.environment();
        environment.insert(u"PATH"_s, tree(u"bin"_s) + u':' + environment.value(u"PATH"_s));
        // What the tests' desktops want of other programs.
        environment.remove(u"QT_QPA_PLATFORM"_s);
        return environment;
    }
    CorvaneProgram::Start byTheScript()
    {
        CorvaneProgram::Start how;
        how.environment = environment();
        how.program = tree(u"run"_s);
        return how;
    }
    /// Which of Qt's ways to a display the program uses.
    QByteArray platformInUse()
    {
        QFile maps(u"/proc/%1/maps"_s.arg(corvane().program().pid()));
        const QByteArray all = maps.open(QFile::ReadOnly) ? maps.readAll() : QByteArray();
        return QByteArray(all.contains("libqwayland") ? "wayland" : "")
            + (all.contains("libqxcb") ? "xcb" : "");
    }
};

class RunScript : public RunScriptTest, public testing::WithParamInterface<DesktopKind> {
protected:
    RunScript()
        : RunScriptTest(GetParam())
    {
    }
    bool hasLayers() const
    {
        return GetParam().windowManager == WindowManager::Sway
            || GetParam().windowManager == WindowManager::KWin;
    }
};

INSTANTIATE_TEST_SUITE_P(, RunScript, everyDesktop(), nameOf);
INSTANTIATE_TEST_SUITE_P(WithoutX11, RunScript,
                         testing::Values(DesktopKind{.windowManager = WindowManager::Sway,
                                                     .compositor = Compositor::None,
                                                     .nested = {.hasXWayland = false}}),
                         nameOf);

TEST_P(RunScript, startsTheProgramAsOneOfTheSessionItIsIn)
{
    start(byTheScript());
    EXPECT_EQ(platformInUse(), hasLayers() ? "wayland" : "xcb");
    EXPECT_EQ(corvane().startAgain(), 0);
    EXPECT_TRUE(corvane().waitUntilShown());
}

TEST_F(RunScriptTest, playsTheDemoWhereThereIsNoDisplay)
{
    QProcessEnvironment bare = environment();
    bare.remove(u"DISPLAY"_s);
    const QByteArray said = outputOf(tree(u"run"_s), {}, bare).value_or(QByteArray());
    const QByteArray program = tree(u"build/release/bin/corvane"_s).toUtf8();
    const QByteArray expected = "virtual desktop: run tools/demo " + program + " build/demo\n";
    EXPECT_TRUE(said.contains(expected)) << said.constData();
}

} // namespace
} // namespace corvane::e2e
