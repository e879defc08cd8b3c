// Entry of the test programs that need no display: a user's home of their own, and Qt off screen.

#ifdef QT_WIDGETS_LIB
#include <QApplication>
#endif
#include <QGuiApplication>
#include <QLocale>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

// What links widgets tests them too.
#ifdef QT_WIDGETS_LIB
using Application = QApplication;
#else
using Application = QGuiApplication;
#endif

} // namespace

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    // Tests of a process's end fork, and Qt has threads: the child starts afresh.
    GTEST_FLAG_SET(death_test_style, "threadsafe");

    const QTemporaryDir home;
    for (const char *name : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"})
        qputenv(name, home.path().toUtf8());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");

    const Application application(argc, argv);
    // Numbers and dates as everywhere, whoever runs this.
    QLocale::setDefault(QLocale::c());
    return RUN_ALL_TESTS();
}
