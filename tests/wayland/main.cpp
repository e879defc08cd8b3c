// Entry of the tests of what Wayland sessions ask of a compositor. Qt runs on one that shows
// nothing, which is there before Qt starts.

#include "app/sessions/layer_session.h"
#include "wayland/fake_compositor.h"

#include <QApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

FakeCompositor *current = nullptr;

} // namespace

FakeCompositor &compositor()
{
    return *current;
}

} // namespace corvane::test

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    const QTemporaryDir home;
    for (const char *name : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"})
        qputenv(name, home.path().toUtf8());
    for (const char *name : {"DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "WAYLAND_SOCKET"})
        qunsetenv(name);
    corvane::test::FakeCompositor compositor;
    corvane::test::current = &compositor;
    qputenv("WAYLAND_DISPLAY", compositor.socket());
    qputenv("QT_QPA_PLATFORM", "wayland");
    corvane::LayerSession::prepare();
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
