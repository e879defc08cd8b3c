// What a long day leaves of the program in a Wayland session.

#include "e2e/wayland_session.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <iostream>

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

class LongDay : public WaylandSession {
protected:
    /// Drags that end on another program, and a look at the shelf after each.
    void dragElsewhere(GtkPeer &source, GtkPeer &target, int times)
    {
        for (int i = 0; i < times && !HasFailure(); ++i) {
            hands().beginDrag(source.source(), target.target());
            // Some begin with a move that comes later.
            ASSERT_TRUE(wiggleUntil([&] { return corvane().isShown(); })) << i;
            hands().moveTo(target.target());
            ASSERT_TRUE(wiggleUntil([&] { return target.isTargetReady(); })) << target.output();
            hands().release();
            // A pointer over the shelf with nothing dragged: the drag is over.
            hands().moveTo(edge() + QPoint(0, 8));
            hands().moveBy({0, 2});
            ASSERT_TRUE(corvane().waitUntilHidden()) << i;
        }
    }

    /// What a program can have too much of; `memory` in kilobytes, what is its own.
    struct Belongings {
        qsizetype files = 0;
        int memory = 0;
        qsizetype windows = 0;
    };
    Belongings belongings()
    {
        const QString process = u"/proc/%1/"_s.arg(corvane().program().pid());
        QFile status(process + u"status"_s);
        const QByteArray all = status.open(QFile::ReadOnly) ? status.readAll() : QByteArray();
        const qsizetype at = all.indexOf("RssAnon:") + 8;
        const Belongings now{.files
                             = QDir(process + u"fd"_s).entryList(QDir::Files | QDir::System).size(),
                             .memory = all.mid(at, all.indexOf("kB", at) - at).trimmed().toInt(),
                             .windows = windows()};
        std::cout << now.files << " files, " << now.memory << " kB, " << now.windows
                  << " windows\n";
        return now;
    }

    /// Of the program, on the X server where its panels are, if they are on one.
    qsizetype windows()
    {
        XServer *const panels = m_desktop.nested()->panelServer();
        return !panels ? 0 : std::ranges::count_if(panels->windows(), [this](const auto &window) {
            return window.pid == corvane().program().pid();
        });
    }

    void expectNothingIsLeftOf(int drags)
    {
        GtkPeer source(m_desktop, {.text = u"text"_s}, leftPlace());
        ASSERT_EQ(source.problem(), QString());
        GtkPeer target(m_desktop, {}, rightPlace());
        ASSERT_EQ(target.problem(), QString());
        start();
        dragElsewhere(source, target, 3);
        const Belongings before = belongings();
        dragElsewhere(source, target, drags);
        const Belongings after = belongings();
        EXPECT_LE(after.files, before.files);
        EXPECT_LT(after.memory, before.memory + 512);
        EXPECT_LE(after.windows, before.windows);
    }
};

class LongerDay : public LongDay { };

INSTANTIATE_TEST_SUITE_P(, LongDay, testing::Values(sessionOf(WindowManager::Sway)), nameOf);
// For an hour when it matters: --gtest_also_run_disabled_tests.
INSTANTIATE_TEST_SUITE_P(DISABLED_, LongerDay,
                         testing::Values(sessionOf(WindowManager::Sway),
                                         sessionOf(WindowManager::KWin),
                                         sessionOf(WindowManager::Mutter)),
                         nameOf);

TEST_P(LongDay, dragsInARowThatEndElsewhereLeaveNothingOpenAndNothingBehind)
{
    expectNothingIsLeftOf(12);
}

TEST_P(LongerDay, twoHundredDragsInARowLeaveNothingOpenAndNothingBehind)
{
    expectNothingIsLeftOf(200);
}

} // namespace
} // namespace corvane::e2e
