#include "app/application.h"

#include "app/app_info.h"
#include "app/composition_root.h"
#include "platform/freedesktop/dbus_single_instance.h"
#include "platform/freedesktop/session_bus.h"
#include "platform/qt/unix_signals.h"

#include <QApplication>

#include <cstdio>
#include <utility>

namespace corvane {

namespace {

bool hasDisplay()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY");
}

/// Whether the desktop had the session bus start the program. What the bus delivers first is then
/// the launch itself and not yet a wish to see the shelf.
bool isStartedByBus()
{
    return QCoreApplication::arguments().contains(QLatin1String("--started-by-bus"));
}

void setUpApplication(const AppInfo &info)
{
    QCoreApplication::setApplicationName(QStringLiteral("Corvane"));
    QCoreApplication::setOrganizationName(QStringLiteral("Corvane"));
    QCoreApplication::setApplicationVersion(info.version());
    QGuiApplication::setDesktopFileName(info.applicationId());
    // The shelf comes and goes; none of its windows is the last one.
    QGuiApplication::setQuitOnLastWindowClosed(false);
}

} // namespace

int runApplication(int argc, char **argv)
{
    if (!hasDisplay()) {
        std::fputs("corvane: there is no X11 display to hang the shelf on (DISPLAY is not set)\n",
                   stderr);
        return 1;
    }
    // In a Wayland session the shelf runs through XWayland for now.
    qputenv("QT_QPA_PLATFORM", "xcb");
    session_bus::keepFromStarting();
    const AppInfo info = AppInfo::builtIn();
    QApplication application(argc, argv);
    setUpApplication(info);

    AppDelegate *delegate = nullptr;
    DBusSingleInstance instance(info.applicationId());
    bool isBeingLaunched = isStartedByBus();
    const auto outcome = instance.acquire([&delegate, &isBeingLaunched] {
        if (!std::exchange(isBeingLaunched, false) && delegate)
            delegate->applicationShouldHandleReopen(false);
    });
    instance.onAction = [&delegate, &isBeingLaunched](const QString &name) {
        isBeingLaunched = false;
        if (delegate && name == QStringLiteral("preferences"))
            delegate->showPreferences(PreferencesTab::General);
    };
    if (outcome == SingleInstance::Outcome::HandedOver)
        return 0;

    // However the process ends, nothing of the spool may outlive it.
    const auto terminate = [&delegate] {
        if (delegate)
            delegate->applicationWillTerminate();
        QCoreApplication::quit();
    };
    CompositionRoot root(terminate);
    delegate = &root.delegate;
    const UnixSignals signals(terminate);
    QObject::connect(&application, &QCoreApplication::aboutToQuit, terminate);

    delegate->applicationDidFinishLaunching();
    root.mainQueue.async([&root] { root.spool.removeLeftovers(); });
    const int status = QApplication::exec();
    delegate->applicationWillTerminate();
    delegate = nullptr;
    return status;
}

} // namespace corvane
