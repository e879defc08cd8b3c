#include "app/application.h"

#include "app/base/app_info.h"
#include "app/composition_root.h"
#include "app/sessions/choose_session.h"
#include "app/unanswered_start.h"
#include "platform/base/end_deadline.h"
#include "platform/freedesktop/dbus_single_instance.h"
#include "platform/freedesktop/session_bus.h"
#include "platform/qt/base/unix_signals.h"
#include "platform/system/own_environment.h"
#include "services/preview_scratch.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFile>

#include <unistd.h>

#include <cstdio>
#include <memory>
#include <utility>

namespace corvane {

namespace {

/// Whether the desktop started the program through the session bus. The first call that the bus
/// delivers is then the start itself, not a request to show the shelf.
bool isStartedByBus()
{
    return QCoreApplication::arguments().contains(QLatin1String("--started-by-bus"));
}

/// How long the end waits for threads; the rest of `end_deadline::forRest` is for the clipboard.
constexpr std::chrono::milliseconds patienceForThreads{150};

/// Takes the program down in order; does nothing the second time, when `delegate` is null.
void putInOrder(AppDelegate *delegate)
{
    if (!delegate)
        return;
    end_deadline::set(end_deadline::forSteps);
    delegate->applicationWillTerminate();
    end_deadline::set(end_deadline::forRest);
}

void setUpApplication(const AppInfo &info)
{
    QCoreApplication::setApplicationName(QStringLiteral("Corvane"));
    QCoreApplication::setOrganizationName(QStringLiteral("Corvane"));
    QCoreApplication::setApplicationVersion(info.version());
    QGuiApplication::setDesktopFileName(info.applicationId());
    // Qt would quit when the last window is closed, but the program runs without windows.
    QGuiApplication::setQuitOnLastWindowClosed(false);
}

} // namespace

int runApplication(int argc, char **argv)
{
    const SessionChoice choice
        = chooseSession(SessionEnvironment::ofThisProcess(), probeRegistry());
    if (!choice.kind) {
        std::fprintf(stderr, "corvane: %s\n", choice.refusal.constData());
        return 1;
    }
    own_environment::set("QT_QPA_PLATFORM", choice.platformPlugin);
    prepareSession(*choice.kind);
    session_bus::keepFromStarting();
    const AppInfo info = AppInfo::builtIn();
    auto application = std::make_unique<QApplication>(argc, argv);
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
        else if (delegate && name == QStringLiteral("view-all"))
            delegate->toggleViewAll();
    };
    if (outcome == SingleInstance::Outcome::HandedOver)
        return 0;
    if (outcome == SingleInstance::Outcome::NotAnswering) {
        tellOfUnansweredStart(instance.otherProcess());
        return 1;
    }

    // The process may end by a signal, by the user or with the session. In all cases `putInOrder`
    // runs, which removes the spool, within a time limit.
    end_deadline::prepare();
    const auto terminate = [&delegate] {
        putInOrder(std::exchange(delegate, nullptr));
        QCoreApplication::quit();
    };
    auto root = std::make_unique<CompositionRoot>(*choice.kind, terminate);
    delegate = &root->delegate;
    const UnixSignals signals(terminate);
    // Only `putInOrder`: some versions of Qt take a call of `quit` in here for another end, and
    // emit the signal again.
    QObject::connect(application.get(), &QCoreApplication::aboutToQuit,
                     [&delegate] { putInOrder(std::exchange(delegate, nullptr)); });

    delegate->applicationDidFinishLaunching();
    root->workQueue.run(root->spool.leftoversRemoval());
    root->workQueue.run([folder = QFile::encodeName(QDir::tempPath())] {
        preview_scratch::removeLeftovers(folder);
    });
    const int status = QApplication::exec();
    putInOrder(std::exchange(delegate, nullptr));
    root->userDefaults.synchronize();
    const bool haveAllEnded = root->finishWork(patienceForThreads);
    if (QGuiApplication::clipboard()->ownsClipboard())
        end_deadline::set(end_deadline::forClipboard);
    if (haveAllEnded)
        return status;
    // Threads that are still running may use the root's objects, so it is not destroyed. The
    // application object is: its end hands the clipboard over, among other things.
    [[maybe_unused]] const CompositionRoot *const kept = root.release();
    application.reset();
    ::_exit(status);
}

} // namespace corvane
