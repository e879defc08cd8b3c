#pragma once

#include "e2e/desktop/hands.h"
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

enum class WindowManager { Openbox, Xfwm4 };
enum class Compositor { None, Picom };

struct DesktopKind {
    WindowManager windowManager = WindowManager::Openbox;
    Compositor compositor = Compositor::Picom;
    QSize size{1512, 982};
};

/// A desktop without a display: X server, window manager, perhaps a compositor, session bus, and a
/// home folder that nobody else uses. Ends everything that it started.
class XDesktop {
public:
    explicit XDesktop(DesktopKind kind = {});

    /// Empty when it is up, otherwise what went wrong.
    QString problem() const { return m_problem; }

    XServer &server() { return *m_server; }
    Hands &hands() { return *m_hands; }

    /// What programs on this desktop are started with. Tests may change their copy of it.
    const QProcessEnvironment &environment() const { return m_environment; }
    QString home() const { return m_home.path(); }
    QString path(const QString &name) const { return m_home.filePath(name); }

    std::unique_ptr<Program> start(const QString &name, const QStringList &arguments);
    /// Runs a program to its end with the input and output of this one, and gives its exit status,
    /// or 128 + the number of the signal that ended it. `started` is told its process.
    static int runToEnd(const QString &name, const QStringList &arguments,
                        const QProcessEnvironment &environment,
                        const std::function<void(pid_t)> &started = {});
    /// The first window, viewable and in the window manager's care, that the condition holds for.
    std::optional<WindowFacts> waitForWindow(const std::function<bool(const WindowFacts &)> &holds);
    std::optional<WindowFacts> waitForWindowOf(const Program &program);
    /// Moves a managed window and waits until its picture is at rest.
    std::optional<WindowFacts> place(xcb_window_t window, const QRect &frame);
    /// Waits until two pictures of the area, a moment apart, are the same, and gives it.
    QImage pictureAtRest(const QRect &area);

    /// What another program gets from the clipboard; none if nobody offers that type.
    std::optional<QByteArray> clipboard(const QString &type);
    /// Has nobody offer anything there, so that what is found next was copied later.
    void clearClipboard();
    /// A server that is asked to go away takes its programs with it, as a logout does.
    void endServer();

    void removeTemporaryFiles() const;

private:
    void startServer(QSize size);
    void startBus();
    void startWindowManager(WindowManager windowManager);
    void startCompositor();

    QTemporaryDir m_home;
    QProcessEnvironment m_environment;
    QString m_problem;
    // In the order in which they are started; they end in the opposite one.
    std::unique_ptr<Program> m_xvfb;
    std::unique_ptr<XServer> m_server;
    std::unique_ptr<Hands> m_hands;
    std::unique_ptr<Program> m_bus;
    std::unique_ptr<Program> m_windowManager;
    std::unique_ptr<Program> m_compositor;
};

} // namespace corvane::e2e
