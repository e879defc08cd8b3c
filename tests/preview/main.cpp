// Entry of the tests of the preview's window, which is made of widgets and needs no display. There
// are two screens.

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    const QTemporaryDir home;
    for (const char *name : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"})
        qputenv(name, home.path().toUtf8());
    QFile screens(home.filePath(QStringLiteral("screens.json")));
    if (!screens.open(QFile::WriteOnly))
        return 1;
    screens.write(R"({"screens": [
        {"name": "left", "x": 0, "y": 0, "width": 800, "height": 800},
        {"name": "right", "x": 800, "y": 0, "width": 1200, "height": 700}]})");
    screens.close();
    const QByteArray platform = "offscreen:configfile=" + QFile::encodeName(screens.fileName());
    qputenv("QT_QPA_PLATFORM", platform);
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");

    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
