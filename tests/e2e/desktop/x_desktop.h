#pragma once

#include "e2e/desktop/hands.h"
#include "e2e/desktop/nested_compositor.h"
#include "e2e/desktop/program.h"
#include "e2e/desktop/x_server.h"

#include <QProcessEnvironment>
#include <QSize>
#include <QString>
#include <QTemporaryDir>

#include <sys/types.h>

#include <functional>
#include <memory>
#include <optional>

namespace corvane::e2e {

/// Sway, KWin and Mutter are compositors of their own, whose sessions are none of X11's.
enum class WindowManager { Openbox, Xfwm4, Sway, KWin, Mutter };
enum class Compositor { None, Picom };

struct DesktopKind {
    WindowManager windowManager = WindowManager::Openbox;
    Compositor compositor = Compositor::Picom;
    QSize size{1512, 982};
    /// One that the X server does without, such as "XFIXES".
    QString missingExtension = {};
    /// Of a compositor of its own.
    NestedCompositor::Kind nested = {};

    friend bool operator==(const DesktopKind &, const DesktopKind &) = default;
};

/// A desktop without a display: X server, window manager, perhaps a compositor, a session bus, and
/// a home folder of its own. The destructor ends everything that it started.
///
/// Everything is seen on the X server, and the user's hands are there. Programs use it, too, except
/// in a Wayland session, whose compositor is its one window.
class XDesktop {
public:
    explicit XDesktop(DesktopKind kind = {});

    /// Empty when it has started, else what went wrong.
    QString problem() const { return m_problem; }

    XServer &server() { return *m_server; }
    /// Its name, which programs in a Wayland session are not told.
    QString screen() const { return m_screen; }
    Hands &hands() { return *m_hands; }
    /// The compositor that the programs run in; null where they run on the X server itself.
    NestedCompositor *nested() { return m_nested.get(); }

    /// The environment for programs on this desktop. Tests may change a copy of it.
    const QProcessEnvironment &environment() const { return m_environment; }
    QString home() const { return m_home.path(); }
    QString path(const QString &name) const { return m_home.filePath(name); }

    std::unique_ptr<Program> start(const QString &name, const QStringList &arguments);
    /// Runs a program with the standard input and output of this one until it ends. Returns its
    /// exit status, or 128 + the number of the signal that ended it. `started` gets its process id.
    static int runToEnd(const QString &name, const QStringList &arguments,
                        const QProcessEnvironment &environment,
                        const std::function<void(pid_t)> &started = {});
    /// Waits for a managed, visible window for which `holds` is true, and returns the first one.
    std::optional<WindowFacts> waitForWindow(const std::function<bool(const WindowFacts &)> &holds);
    std::optional<WindowFacts> waitForWindowOf(const Program &program);
    /// Moves and resizes a managed window, and waits until its picture does not change any more.
    std::optional<WindowFacts> place(xcb_window_t window, const QRect &frame);
    /// The picture of the area, when two pictures a moment apart are the same.
    QImage pictureAtRest(const QRect &area);

    /// What another program gets from the clipboard; none if it does not offer that type.
    std::optional<QByteArray> clipboard(const QString &type);
    /// Empties the clipboard, so that what is found next was copied later.
    void clearClipboard();
    /// Ends the server, and with it its programs, as a logout does.
    void endServer();

    void removeTemporaryFiles() const;

private:
    void startServer(const DesktopKind &kind);
    void startBus();
    void startWindowManager(const DesktopKind &kind);
    void startNested(const DesktopKind &kind);
    QList<WindowFacts> windows() const;
    void startCompositor();

    QTemporaryDir m_home;
    QProcessEnvironment m_environment;
    QString m_problem;
    QString m_screen;
    // In the order in which they are started; they are destroyed in the opposite one.
    std::unique_ptr<Program> m_xvfb;
    std::unique_ptr<XServer> m_server;
    std::unique_ptr<Hands> m_hands;
    std::unique_ptr<Program> m_bus;
    std::unique_ptr<Program> m_windowManager;
    std::unique_ptr<Program> m_compositor;
    std::unique_ptr<NestedCompositor> m_nested;
};

} // namespace corvane::e2e
