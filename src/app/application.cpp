#include "app/application.h"

#include "app/base/app_info.h"
#include "app/base/translations.h"
#include "app/commands/command_answers.h"
#include "app/commands/command_line.h"
#include "app/commands/start_wish.h"
#include "app/commands/toolkit_start.h"
#include "app/composition_root.h"
#include "app/sessions/choose_session.h"
#include "app/unanswered_start.h"
#include "platform/base/end_deadline.h"
#include "platform/freedesktop/dbus_single_instance.h"
#include "platform/freedesktop/session_bus.h"
#include "platform/qt/base/unix_signals.h"
#include "platform/qt/desktop/window_roles.h"
#include "platform/system/own_environment.h"
#include "platform/system/temporary_folder.h"
#include "services/preview_scratch.h"

#include <QApplication>
#include <QClipboard>
#include <QLocale>

#include <unistd.h>

#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace corvane {

namespace {

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
    installWindowRoles();
}

/// What the toolkit is told of the command line: the program's name, and what it understands
/// itself.
struct ToolkitArguments {
    explicit ToolkitArguments(const QList<QByteArray> &arguments)
        : texts(arguments)
    {
        for (QByteArray &text : texts)
            pointers.push_back(text.data());
        count = static_cast<int>(pointers.size());
        pointers.push_back(nullptr);
    }

    QList<QByteArray> texts;
    std::vector<char *> pointers;
    int count = 0;
};

QStringList languagesOfSession()
{
    return Translations::wanted(qEnvironmentVariable("CORVANE_LANGUAGE"),
                                QLocale::system().uiLanguages());
}

/// What is said on the command line, in people's language, before there is a toolkit.
struct WithoutToolkit {
    explicit WithoutToolkit(ToolkitArguments &arguments)
    {
        if (!QCoreApplication::instance())
            application.emplace(arguments.count, arguments.pointers.data());
        translations.emplace(languagesOfSession());
    }

    /// None where there is one already.
    std::optional<QCoreApplication> application;
    std::optional<Translations> translations;
};

void complainOf(const StartWish &wish)
{
    for (const QByteArray &problem : wish.problems())
        command_answers::complain(problem);
}

/// Where this process cannot be the shelf: asks one that runs, which needs no display.
std::optional<int> askedOfAnother(StartWish &wish, const AppInfo &info)
{
    RunningProgram other(info.applicationId());
    other.setPlatformData(RunningProgram::platformDataOfEnvironment());
    const bool isThere
        = session_bus::isAvailable() && other.isAlive() == RunningProgram::Answer::Done;
    if (!isThere || wish.handOver(other) != RunningProgram::Answer::Done)
        return std::nullopt;
    complainOf(wish);
    return wish.problems().isEmpty() ? 0 : 1;
}

/// The exit status of a start beside another process; none if this process is the one to run.
std::optional<int> endBesideAnother(SingleInstance::Outcome outcome, const StartWish &wish,
                                    const DBusSingleInstance &instance)
{
    complainOf(wish);
    switch (outcome) {
    case SingleInstance::Outcome::HandedOver:
        return wish.problems().isEmpty() ? 0 : 1;
    case SingleInstance::Outcome::Refused:
        command_answers::complain(command_answers::whyRefused(instance.other()));
        return 1;
    case SingleInstance::Outcome::NotAnswering:
        tellOfUnansweredStart(instance.otherProcess());
        return 1;
    case SingleInstance::Outcome::First:
    case SingleInstance::Outcome::Unknown:
        break;
    }
    return std::nullopt;
}

/// Runs the shelf until the program ends.
int runShelf(SessionKind kind, DBusSingleInstance &instance, AppDelegate *&delegate,
             StartWish &wish, std::unique_ptr<QApplication> &application)
{
    // The process may end by a signal, by the user or with the session. In all cases `putInOrder`
    // runs, which removes the spool, within a time limit.
    end_deadline::prepare();
    const auto terminate = [&delegate, &instance] {
        instance.setRequests(nullptr);
        putInOrder(std::exchange(delegate, nullptr));
        QCoreApplication::quit();
    };
    auto root = std::make_unique<CompositionRoot>(kind, terminate);
    delegate = &root->delegate;
    const UnixSignals signals(terminate);
    // Only `putInOrder`: some versions of Qt take a call of `quit` in here for another end, and
    // emit the signal again.
    QObject::connect(application.get(), &QCoreApplication::aboutToQuit,
                     [&delegate] { putInOrder(std::exchange(delegate, nullptr)); });

    root->workQueue.run(root->spool.leftoversRemoval());
    root->workQueue.run([folder = temporaryFolder()] { preview_scratch::removeLeftovers(folder); });
    delegate->applicationDidFinishLaunching();
    instance.setRequests(&root->requests);
    wish.fulfil(root->requests);
    const int status = QApplication::exec();
    instance.setRequests(nullptr);
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

/// Starts the shelf, or hands over to the one that runs.
int start(const CommandLine &line, ToolkitArguments &toolkit,
          std::unique_ptr<WithoutToolkit> withoutToolkit, const AppInfo &info)
{
    StartWish wish(line, StartWish::Surroundings::ofThisProcess());
    if (wish.isVain()) {
        complainOf(wish);
        return 1;
    }
    const SessionChoice choice = chooseSession();
    if (!choice.kind) {
        const auto status = wish.isPlain() ? std::nullopt : askedOfAnother(wish, info);
        if (!status)
            command_answers::complain(choice.refusal);
        return status.value_or(1);
    }
    own_environment::set("QT_QPA_PLATFORM", choice.platformPlugin);
    prepareSession(*choice.kind);
    // Before the toolkit, which takes what the desktop gave for windows of this process.
    const QVariantMap platformData = RunningProgram::platformDataOfEnvironment();
    std::unique_ptr<QApplication> application;
    {
        const ToolkitStart guarded;
        withoutToolkit.reset();
        application = std::make_unique<QApplication>(toolkit.count, toolkit.pointers.data());
    }
    setUpApplication(info);
    const Translations translations(languagesOfSession());

    AppDelegate *delegate = nullptr;
    DBusSingleInstance instance(info.applicationId());
    if (line.isStartedByBus)
        instance.setStartedByBus();
    instance.setHandOver([&wish](const RunningProgram &other) { return wish.handOver(other); });
    instance.setPlatformData(platformData);
    const auto outcome = instance.acquire([&delegate] {
        if (delegate)
            delegate->applicationShouldHandleReopen(false);
    });
    if (const auto status = endBesideAnother(outcome, wish, instance))
        return *status;
    // Not beside another process, which said so itself.
    if (!choice.warning.isEmpty())
        command_answers::complain(choice.warning);
    return runShelf(*choice.kind, instance, delegate, wish, application);
}

} // namespace

int runApplication(int argc, char **argv)
{
    QList<QByteArray> arguments;
    for (int i = 1; i < argc; ++i)
        arguments << argv[i];
    const QList<QByteArray> ofToolkit = CommandLine::takeToolkitArguments(arguments);
    ToolkitArguments toolkit(QList<QByteArray>{argc > 0 ? argv[0] : "corvane"} + ofToolkit);
    auto withoutToolkit = std::make_unique<WithoutToolkit>(toolkit);
    const CommandLine line = CommandLine::of(arguments);
    const AppInfo info = AppInfo::builtIn();
    if (const auto status = command_answers::atOnce(line, info))
        return *status;
    session_bus::keepFromStarting();
    if (!command_answers::isForRunningProgram(line.wish))
        return start(line, toolkit, std::move(withoutToolkit), info);
    return command_answers::byRunningProgram(line, info);
}

} // namespace corvane
