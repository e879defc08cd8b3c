#include "e2e/desktop/x_desktop.h"

#include "e2e/desktop/eventually.h"

#include <QDir>
#include <QFile>

#include <unistd.h>

#include <csignal>

namespace corvane::e2e {

using namespace Qt::StringLiterals;

XDesktop::XDesktop(DesktopKind kind)
    : environment_(QProcessEnvironment::systemEnvironment())
{
    for (const auto &name : {u"WAYLAND_DISPLAY"_s, u"XAUTHORITY"_s, u"DBUS_SESSION_BUS_ADDRESS"_s,
                             u"QT_SCALE_FACTOR"_s, u"XDG_CURRENT_DESKTOP"_s, u"DISPLAY"_s})
        environment_.remove(name);
    const auto folder = [this](const QString &variable, const QString &name) {
        QDir().mkpath(path(name));
        QFile::setPermissions(path(name), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        environment_.insert(variable, path(name));
    };
    folder(u"HOME"_s, u"home"_s);
    folder(u"XDG_CONFIG_HOME"_s, u"home/.config"_s);
    folder(u"XDG_CACHE_HOME"_s, u"home/.cache"_s);
    folder(u"XDG_DATA_HOME"_s, u"home/.local/share"_s);
    folder(u"XDG_RUNTIME_DIR"_s, u"runtime"_s);
    folder(u"TMPDIR"_s, u"tmp"_s);
    environment_.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
    environment_.insert(u"GDK_BACKEND"_s, u"x11"_s);
    environment_.insert(u"XDG_SESSION_TYPE"_s, u"x11"_s);
    environment_.insert(u"LANG"_s, u"C.UTF-8"_s);
    environment_.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    environment_.insert(u"LIBGL_ALWAYS_SOFTWARE"_s, u"1"_s);
    environment_.insert(u"NO_AT_BRIDGE"_s, u"1"_s);
    environment_.insert(u"GTK_A11Y"_s, u"none"_s);

    startServer();
    if (problem_.isEmpty())
        startBus();
    if (problem_.isEmpty())
        startWindowManager(kind.windowManager);
    if (problem_.isEmpty() && kind.compositor == Compositor::Picom)
        startCompositor();
}

void XDesktop::startServer()
{
    // The server picks a free number by itself and writes it where it is told to.
    xvfb_ = start(u"Xvfb"_s,
                  {u"-displayfd"_s, u"1"_s, u"-noreset"_s, u"-nolisten"_s, u"tcp"_s, u"-screen"_s,
                   u"0"_s, u"1512x982x24"_s});
    // Its messages come the same way; a line with nothing but a number is the answer.
    QByteArray number;
    const bool told = eventually([&] {
        for (const QByteArray &line : xvfb_->output().split('\n')) {
            bool isNumber = false;
            line.toInt(&isNumber);
            if (isNumber)
                number = line;
        }
        return !number.isEmpty() || !xvfb_->isRunning();
    });
    if (!told || number.isEmpty()) {
        problem_ = u"Xvfb does not start: "_s + QString::fromUtf8(xvfb_->output());
        return;
    }
    const QByteArray display = ":" + number;
    environment_.insert(u"DISPLAY"_s, QString::fromLatin1(display));
    server_ = std::make_unique<XServer>(display);
    hands_ = std::make_unique<Hands>(*server_);
    if (!server_->isConnected())
        problem_ = u"there is no connection to Xvfb"_s;
}

void XDesktop::startBus()
{
    const QString address = u"unix:path="_s + path(u"runtime/bus"_s);
    bus_ = start(u"dbus-daemon"_s,
                 {u"--session"_s, u"--nofork"_s, u"--nopidfile"_s, u"--address="_s + address});
    environment_.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, address);
    if (!eventually([this] { return QFile::exists(path(u"runtime/bus"_s)); }))
        problem_ = u"the session bus does not start"_s;
}

void XDesktop::startWindowManager(WindowManager windowManager)
{
    // A manager's own compositor would make every run the same.
    windowManager_ = windowManager == WindowManager::Openbox
        ? start(u"openbox"_s, {u"--sm-disable"_s})
        : start(u"xfwm4"_s, {u"--compositor=off"_s, u"--sm-client-disable"_s});
    const bool up = eventually([this] {
        const auto check = server_->windowProperty(server_->root(), "_NET_SUPPORTING_WM_CHECK");
        return check && server_->windowProperty(*check, "_NET_SUPPORTING_WM_CHECK") == check;
    });
    if (!up)
        problem_ = u"the window manager does not start"_s;
}

void XDesktop::startCompositor()
{
    compositor_ = start(u"picom"_s, {u"--backend"_s, u"xrender"_s, u"--config"_s, u"/dev/null"_s});
    if (!eventually([this] { return server_->selectionOwner("_NET_WM_CM_S0") != noWindow; }))
        problem_ = u"the compositor does not start"_s;
}

std::unique_ptr<Program> XDesktop::start(const QString &name, const QStringList &arguments)
{
    return std::make_unique<Program>(name, arguments, environment_, environment_.value(u"HOME"_s));
}

std::optional<WindowFacts>
XDesktop::waitForWindow(const std::function<bool(const WindowFacts &)> &holds)
{
    std::optional<WindowFacts> found;
    eventually([&] {
        for (const WindowFacts &window : server_->windows()) {
            if (window.isViewable && !window.isOverrideRedirect && holds(window))
                found = window;
        }
        return found.has_value();
    });
    return found;
}

std::optional<WindowFacts> XDesktop::waitForWindowOf(const Program &program)
{
    // Each program leads a session of its own, so its helpers' windows count as its own.
    return waitForWindow([&program](const WindowFacts &window) {
        return window.pid > 0 && getsid(static_cast<pid_t>(window.pid)) == program.pid();
    });
}

std::optional<WindowFacts> XDesktop::place(xcb_window_t window, const QRect &frame)
{
    server_->moveResize(window, frame);
    const bool placed = eventually([&] {
        const auto now = server_->facts(window);
        // Managers count their borders differently.
        return now && now->frame.size() == frame.size()
            && (now->frame.topLeft() - frame.topLeft()).manhattanLength() < 60;
    });
    if (!placed)
        return std::nullopt;
    pictureAtRest(frame);
    return server_->facts(window);
}

QImage XDesktop::pictureAtRest(const QRect &area)
{
    constexpr int enough = 4;
    QImage last;
    int same = 0;
    eventually([&] {
        QThread::msleep(20);
        const QImage now = server_->picture(area);
        same = now == last ? same + 1 : 0;
        last = now;
        return same >= enough;
    });
    return last;
}

std::optional<QByteArray> XDesktop::clipboard(const QString &type)
{
    return outputOf(u"xclip"_s, {u"-selection"_s, u"clipboard"_s, u"-o"_s, u"-target"_s, type},
                    environment_);
}

void XDesktop::endServer()
{
    if (xvfb_) {
        xvfb_->signal(SIGTERM);
        xvfb_->waitForEnd();
    }
}

void XDesktop::removeTemporaryFiles() const
{
    QDir(path(u"tmp"_s)).removeRecursively();
    QDir().mkpath(path(u"tmp"_s));
    QFile::setPermissions(path(u"tmp"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

} // namespace corvane::e2e
