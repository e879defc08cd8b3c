#include "e2e/desktop/x_desktop.h"

#include "e2e/desktop/eventually.h"
#include "e2e/desktop/nested_kwin.h"
#include "e2e/desktop/nested_mutter.h"
#include "e2e/desktop/nested_sway.h"

#include <QDir>
#include <QFile>

#include <sys/prctl.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstring>

namespace corvane::e2e {

using namespace Qt::StringLiterals;

namespace {

bool manages(const XServer &server, xcb_window_t window)
{
    const QByteArray listed = server.property(server.root(), "_NET_CLIENT_LIST");
    constexpr qsizetype width = sizeof window;
    for (qsizetype i = 0; i + width <= listed.size(); i += width) {
        if (std::memcmp(listed.constData() + i, &window, sizeof window) == 0)
            return true;
    }
    return false;
}

/// Whether the window manager shows a window before long: while it starts, one that wants to be
/// shown may be passed over. A dock, which is given no focus and so takes none away when it goes.
bool isShowingWindows(const XServer &server)
{
    xcb_connection_t *const connection = server.connection();
    const xcb_window_t dock = xcb_generate_id(connection);
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, dock, server.root(), 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    const xcb_atom_t type = server.atom("_NET_WM_WINDOW_TYPE_DOCK");
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, dock, server.atom("_NET_WM_WINDOW_TYPE"),
                        XCB_ATOM_ATOM, 32, 1, &type);
    const bool isShown = eventually([&] {
        xcb_map_window(connection, dock);
        const auto facts = server.facts(dock);
        return facts && facts->isViewable && manages(server, dock);
    });
    xcb_destroy_window(connection, dock);
    return isShown && eventually([&] { return !manages(server, dock); });
}

} // namespace

XDesktop::XDesktop(DesktopKind kind)
    : m_environment(QProcessEnvironment::systemEnvironment())
{
    for (const auto &name : {u"WAYLAND_DISPLAY"_s, u"XAUTHORITY"_s, u"DBUS_SESSION_BUS_ADDRESS"_s,
                             u"QT_SCALE_FACTOR"_s, u"XDG_CURRENT_DESKTOP"_s, u"DISPLAY"_s})
        m_environment.remove(name);
    const auto folder = [this](const QString &variable, const QString &name) {
        QDir().mkpath(path(name));
        QFile::setPermissions(path(name), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        m_environment.insert(variable, path(name));
    };
    folder(u"HOME"_s, u"home"_s);
    folder(u"XDG_CONFIG_HOME"_s, u"home/.config"_s);
    folder(u"XDG_CACHE_HOME"_s, u"home/.cache"_s);
    folder(u"XDG_DATA_HOME"_s, u"home/.local/share"_s);
    folder(u"XDG_RUNTIME_DIR"_s, u"runtime"_s);
    folder(u"TMPDIR"_s, u"tmp"_s);
    m_environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
    m_environment.insert(u"GDK_BACKEND"_s, u"x11"_s);
    m_environment.insert(u"XDG_SESSION_TYPE"_s, u"x11"_s);
    m_environment.insert(u"LANG"_s, u"C.UTF-8"_s);
    m_environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    m_environment.insert(u"LIBGL_ALWAYS_SOFTWARE"_s, u"1"_s);
    m_environment.insert(u"NO_AT_BRIDGE"_s, u"1"_s);
    m_environment.insert(u"GTK_A11Y"_s, u"none"_s);

    startServer(kind);
    if (m_problem.isEmpty())
        startBus();
    if (m_problem.isEmpty())
        startWindowManager(kind);
    if (m_problem.isEmpty() && kind.compositor == Compositor::Picom && !m_nested)
        startCompositor();
}

void XDesktop::startServer(const DesktopKind &kind)
{
    QStringList arguments{
        u"-displayfd"_s, u"1"_s,
        u"-noreset"_s,   u"-nolisten"_s,
        u"tcp"_s,        u"-screen"_s,
        u"0"_s,          u"%1x%2x24"_s.arg(kind.size.width()).arg(kind.size.height())};
    if (!kind.missingExtension.isEmpty())
        arguments << u"-extension"_s << kind.missingExtension;
    // The server picks a free display number and writes it to its output.
    m_xvfb = start(u"Xvfb"_s, arguments);
    // Its messages are there, too; the number is on a line of its own.
    QByteArray number;
    const bool told = eventually([&] {
        for (const QByteArray &line : m_xvfb->output().split('\n')) {
            bool isNumber = false;
            line.toInt(&isNumber);
            if (isNumber)
                number = line;
        }
        return !number.isEmpty() || !m_xvfb->isRunning();
    });
    if (!told || number.isEmpty()) {
        m_problem = u"Xvfb does not start: "_s + QString::fromUtf8(m_xvfb->output());
        return;
    }
    const QByteArray display = ":" + number;
    m_screen = QString::fromLatin1(display);
    m_environment.insert(u"DISPLAY"_s, m_screen);
    m_server = std::make_unique<XServer>(display);
    m_hands = std::make_unique<Hands>(*m_server);
    if (!m_server->isConnected())
        m_problem = u"there is no connection to Xvfb"_s;
}

void XDesktop::startBus()
{
    const QString address = u"unix:path="_s + path(u"runtime/bus"_s);
    m_bus = start(u"dbus-daemon"_s,
                  {u"--session"_s, u"--nofork"_s, u"--nopidfile"_s, u"--address="_s + address});
    m_environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, address);
    if (!eventually([this] { return QFile::exists(path(u"runtime/bus"_s)); }))
        m_problem = u"the session bus does not start"_s;
}

void XDesktop::startWindowManager(const DesktopKind &kind)
{
    if (kind.windowManager != WindowManager::Openbox
        && kind.windowManager != WindowManager::Xfwm4) {
        startNested(kind);
        return;
    }
    // Without the window manager's own compositor: whether there is one is the test's choice.
    m_windowManager = kind.windowManager == WindowManager::Openbox
        ? start(u"openbox"_s, {u"--sm-disable"_s})
        : start(u"xfwm4"_s, {u"--compositor=off"_s, u"--sm-client-disable"_s});
    const bool up = eventually([this] {
        const auto check = m_server->windowProperty(m_server->root(), "_NET_SUPPORTING_WM_CHECK");
        return check && m_server->windowProperty(*check, "_NET_SUPPORTING_WM_CHECK") == check;
    });
    if (!up || !isShowingWindows(*m_server))
        m_problem = u"the window manager does not start"_s;
}

void XDesktop::startNested(const DesktopKind &kind)
{
    if (kind.windowManager == WindowManager::Sway)
        m_nested = std::make_unique<NestedSway>(*m_server, m_environment, kind.nested);
    else if (kind.windowManager == WindowManager::Mutter)
        m_nested = std::make_unique<NestedMutter>(*m_server, m_environment, kind.nested);
    else
        m_nested = std::make_unique<NestedKwin>(*m_server, m_environment, kind.nested);
    m_problem = m_nested->problem();
    m_nested->addTo(m_environment);
}

QList<WindowFacts> XDesktop::windows() const
{
    return m_nested ? m_nested->windows() : m_server->windows();
}

void XDesktop::startCompositor()
{
    m_compositor = start(u"picom"_s, {u"--backend"_s, u"xrender"_s, u"--config"_s, u"/dev/null"_s});
    if (!eventually([this] { return m_server->selectionOwner("_NET_WM_CM_S0") != noWindow; }))
        m_problem = u"the compositor does not start"_s;
}

std::unique_ptr<Program> XDesktop::start(const QString &name, const QStringList &arguments)
{
    return std::make_unique<Program>(name, arguments, m_environment,
                                     m_environment.value(u"HOME"_s));
}

int XDesktop::runToEnd(const QString &name, const QStringList &arguments,
                       const QProcessEnvironment &environment,
                       const std::function<void(pid_t)> &started)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.setInputChannelMode(QProcess::ForwardedInputChannel);
    // Ends it when this program ends.
    process.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGTERM); });
    process.start(name, arguments);
    if (!process.waitForStarted()) {
        qWarning("%s does not start: %s", qPrintable(name), qPrintable(process.errorString()));
        return 1;
    }
    if (started)
        started(static_cast<pid_t>(process.processId()));
    process.waitForFinished(-1);
    const int signalBase = process.exitStatus() == QProcess::CrashExit ? 128 : 0;
    return signalBase + process.exitCode();
}

std::optional<WindowFacts>
XDesktop::waitForWindow(const std::function<bool(const WindowFacts &)> &holds)
{
    // Starting programs may wait 25 s for a service of the desktop that does not answer.
    constexpr auto startOfAProgram = 4 * patience;
    std::optional<WindowFacts> found;
    eventually(
        [&] {
            for (const WindowFacts &window : windows()) {
                if (window.isViewable && !window.isOverrideRedirect && holds(window))
                    found = window;
            }
            return found.has_value();
        },
        startOfAProgram);
    return found;
}

std::optional<WindowFacts> XDesktop::waitForWindowOf(const Program &program)
{
    // A program's helpers are in its session, so their windows count as its own.
    return waitForWindow([&program](const WindowFacts &window) {
        return window.pid > 0 && getsid(static_cast<pid_t>(window.pid)) == program.pid();
    });
}

std::optional<WindowFacts> XDesktop::place(xcb_window_t window, const QRect &frame)
{
    const auto facts = [&]() -> std::optional<WindowFacts> {
        if (!m_nested)
            return m_server->facts(window);
        const auto all = windows();
        const auto found = std::ranges::find(all, window, &WindowFacts::id);
        return found == all.end() ? std::nullopt : std::optional(*found);
    };
    if (m_nested)
        m_nested->place(window, frame);
    else
        m_server->moveResize(window, frame);
    const bool placed = eventually([&] {
        const auto now = facts();
        // Window managers take borders into account differently.
        return now && now->frame.size() == frame.size()
            && (now->frame.topLeft() - frame.topLeft()).manhattanLength() < 60;
    });
    if (!placed)
        return std::nullopt;
    pictureAtRest(frame);
    return facts();
}

QImage XDesktop::pictureAtRest(const QRect &area)
{
    return atRest([&] { return m_server->picture(area); });
}

std::optional<QByteArray> XDesktop::clipboard(const QString &type)
{
    return outputOf(u"xclip"_s, {u"-selection"_s, u"clipboard"_s, u"-o"_s, u"-target"_s, type},
                    m_environment);
}

void XDesktop::clearClipboard()
{
    xcb_set_selection_owner(m_server->connection(), noWindow, m_server->atom("CLIPBOARD"),
                            XCB_CURRENT_TIME);
    // The server has done it when the reply to a later request has come.
    m_server->selectionOwner("CLIPBOARD");
}

void XDesktop::endServer()
{
    if (m_xvfb) {
        m_xvfb->signal(SIGTERM);
        m_xvfb->waitForEnd();
    }
}

void XDesktop::removeTemporaryFiles() const
{
    QDir(path(u"tmp"_s)).removeRecursively();
    QDir().mkpath(path(u"tmp"_s));
    QFile::setPermissions(path(u"tmp"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

} // namespace corvane::e2e
