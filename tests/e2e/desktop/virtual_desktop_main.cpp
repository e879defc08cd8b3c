// Runs a command on a virtual desktop, and ends the desktop after it; the exit status is the
// command's. Called by tools/virtual-desktop.

#include "e2e/desktop/x_desktop.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <sys/types.h>

#include <atomic>
#include <csignal>
#include <optional>

namespace {

using namespace corvane::e2e;
using namespace Qt::StringLiterals;

/// The command's process id; 0 before it is started.
std::atomic<pid_t> command = 0;
/// The signal that came last; 0 before there was one.
std::atomic<int> received = 0;

/// A signal to this program ends the command, and then the desktop in good order; before the
/// command runs it is kept.
void passOn(int number)
{
    received = number;
    if (const pid_t process = command; process != 0)
        ::kill(process, number);
}

void commandRuns(pid_t process)
{
    command = process;
    if (const int number = received; number != 0)
        ::kill(process, number);
}

/// Marks the guide for new users as seen, so that it does not open.
bool closeTheGuide(const XDesktop &desktop)
{
    const QString folder = desktop.environment().value(u"XDG_CONFIG_HOME"_s) + u"/Corvane"_s;
    QFile settings(folder + u"/Corvane.conf"_s);
    return QDir().mkpath(folder) && settings.open(QFile::WriteOnly)
        && settings.write("[General]\nsettings.seenWelcome=true\n") > 0;
}

std::optional<WindowManager> windowManagerFrom(const QString &name)
{
    if (name == u"openbox"_s)
        return WindowManager::Openbox;
    if (name == u"xfwm4"_s)
        return WindowManager::Xfwm4;
    if (name == u"sway"_s)
        return WindowManager::Sway;
    if (name == u"kwin"_s)
        return WindowManager::KWin;
    if (name == u"mutter"_s)
        return WindowManager::Mutter;
    return std::nullopt;
}

QSize sizeFrom(const QString &text)
{
    return {text.section(u'x', 0, 0).toInt(), text.section(u'x', 1).toInt()};
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QCommandLineOption manager(u"window-manager"_s, u"openbox, xfwm4, sway, kwin or mutter"_s,
                                     u"name"_s, u"openbox"_s);
    const QCommandLineOption noCompositor(u"no-compositor"_s, u"nothing is blended"_s);
    const QCommandLineOption size(u"size"_s, u"of the screen"_s, u"WxH"_s, u"1512x982"_s);
    const QCommandLineOption scale(u"scale"_s, u"pixels per point, in Wayland sessions"_s,
                                   u"number"_s, u"1"_s);
    const QCommandLineOption noXWayland(u"no-xwayland"_s, u"sway and kwin keep no X server"_s);
    QCommandLineParser parser;
    parser.addOptions({manager, noCompositor, size, scale, noXWayland});
    parser.addHelpOption();
    parser.addPositionalArgument(u"command"_s, u"runs on the desktop"_s, u"COMMAND..."_s);
    // Options after the command belong to the command.
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    parser.process(application);
    QStringList arguments = parser.positionalArguments();
    const QString managerName = parser.value(manager);
    const auto windowManager = windowManagerFrom(managerName);
    if (arguments.isEmpty() || !windowManager || sizeFrom(parser.value(size)).isEmpty())
        parser.showHelp(2);

    for (const int number : {SIGTERM, SIGINT, SIGHUP})
        std::signal(number, passOn);
    XDesktop desktop(
        {.windowManager = *windowManager,
         .compositor = parser.isSet(noCompositor) ? Compositor::None : Compositor::Picom,
         .size = sizeFrom(parser.value(size)),
         .nested
         = {.scale = parser.value(scale).toDouble(), .hasXWayland = !parser.isSet(noXWayland)}});
    if (!desktop.problem().isEmpty() || !closeTheGuide(desktop)) {
        qWarning("virtual-desktop: %s", qPrintable(desktop.problem()));
        return 1;
    }
    if (received != 0)
        return 128 + received;
    QProcessEnvironment environment = desktop.environment();
    // What pictures are taken of: a Wayland session's own display is not what is seen of it.
    environment.insert(u"CORVANE_SCREEN"_s, desktop.screen());
    const QString name = arguments.takeFirst();
    const int status = XDesktop::runToEnd(name, arguments, environment, commandRuns);
    // The process id may be reused from now on, and the desktop is ending anyway.
    for (const int number : {SIGTERM, SIGINT, SIGHUP})
        std::signal(number, SIG_IGN);
    return status;
}
