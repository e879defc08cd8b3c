// Entry of the back ends' tests. They run on a desktop of their own: an X server, a window manager,
// a session bus and a home folder, all there before Qt starts in this program. So the program
// starts them, and then itself again.

#include "e2e/desktop/x_desktop.h"
#include "platform/scenes.h"

#include <QApplication>

#include <gtest/gtest.h>

namespace {

constexpr auto innerMark = "CORVANE_TESTS_HAVE_A_DESKTOP";

int runOnDesktop(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    corvane::e2e::XDesktop desktop({.windowManager = corvane::e2e::WindowManager::Openbox,
                                    .compositor = corvane::e2e::Compositor::None});
    if (!desktop.problem().isEmpty()) {
        qWarning("%s", qPrintable(desktop.problem()));
        return 1;
    }
    QProcessEnvironment environment = desktop.environment();
    environment.insert(QLatin1String(innerMark), QStringLiteral("1"));
    // The keyboard library copies text that no NUL ends, with its length: strictly no text.
    const QString checks = environment.value(QStringLiteral("ASAN_OPTIONS"));
    environment.insert(QStringLiteral("ASAN_OPTIONS"),
                       checks + QLatin1String(":strict_string_checks=0"));
    return corvane::e2e::XDesktop::runToEnd(QCoreApplication::applicationFilePath(),
                                            application.arguments().mid(1), environment);
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsSet(innerMark)) {
        testing::InitGoogleTest(&argc, argv);
        QApplication application(argc, argv);
        QApplication::setQuitOnLastWindowClosed(false);
        if (qEnvironmentVariableIsSet(corvane::test::sceneVariable))
            return corvane::test::playScene(qgetenv(corvane::test::sceneVariable));
        return RUN_ALL_TESTS();
    }
    for (int i = 1; i < argc; ++i) {
        if (qstrncmp(argv[i], "--gtest_list_tests", 18) == 0) {
            testing::InitGoogleTest(&argc, argv);
            return RUN_ALL_TESTS();
        }
    }
    return runOnDesktop(argc, argv);
}
