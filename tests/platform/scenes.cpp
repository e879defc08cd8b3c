#include "platform/scenes.h"

#include "platform/base/end_deadline.h"
#include "platform/freedesktop/dbus_single_instance.h"
#include "platform/panel_scene.h"
#include "platform/qt/base/qt_work_queue.h"
#include "platform/qt/base/unix_signals.h"
#include "platform/x11/base/x11_connection.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QTimer>

#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <semaphore>

namespace corvane::test {

namespace {

const char *nameOf(SingleInstance::Outcome outcome)
{
    switch (outcome) {
    case SingleInstance::Outcome::First:
        return "first";
    case SingleInstance::Outcome::HandedOver:
        return "handed over";
    case SingleInstance::Outcome::NotAnswering:
        return "not answering";
    case SingleInstance::Outcome::Unknown:
        break;
    }
    return "unknown";
}

int instance()
{
    DBusSingleInstance single(sceneApplicationId());
    say(nameOf(single.acquire([] { say("reopened"); })));
    return QCoreApplication::exec();
}

/// The same, with a main thread that stands still between two lines of its input. Its other threads
/// go on, as those of a program do that waits for a disk.
int stuckInstance()
{
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &input, [] {
        std::getchar();
        say("stuck");
        std::getchar();
    });
    return instance();
}

int signals()
{
    const UnixSignals watched([] {
        say("terminating");
        QCoreApplication::exit();
    });
    say("ready");
    const int status = QCoreApplication::exec();
    say("ended");
    return status;
}

/// Its main thread waits for what never comes, and so does one that somebody waits for.
int stuckForGood()
{
    end_deadline::prepare();
    const UnixSignals watched([] {});
    say("ready");
    std::binary_semaphore never{0};
    never.acquire();
    return 1;
}

/// It has done what had to be done, and a thread does not come back.
int stuckThread()
{
    end_deadline::prepare();
    QtWorkQueue queue;
    queue.run([] {
        std::binary_semaphore never{0};
        never.acquire();
    });
    std::raise(SIGALRM);
    say("ready");
    end_deadline::set(std::chrono::milliseconds{10});
    return 1;
}

int stuckAfterSignal()
{
    const UnixSignals watched([] { say("terminating"); });
    say("ready");
    return QCoreApplication::exec();
}

int serverLoss()
{
    const X11Connection connection([] { say("lost"); });
    say("ready");
    return QCoreApplication::exec();
}

} // namespace

void say(const QByteArray &text)
{
    std::puts(text.constData());
    std::fflush(stdout);
}

QString sceneApplicationId()
{
    return QStringLiteral("example.corvane.PlatformTest");
}

int playScene(const QByteArray &name)
{
    // Whatever became of the test that started it.
    QTimer::singleShot(std::chrono::minutes{1}, qApp, &QCoreApplication::quit);
    if (name == "instance")
        return instance();
    if (name == "stuckInstance")
        return stuckInstance();
    if (name == "signals")
        return signals();
    if (name == "stuckForGood")
        return stuckForGood();
    if (name == "stuckThread")
        return stuckThread();
    if (name == "stuckAfterSignal")
        return stuckAfterSignal();
    if (name == "panel")
        return playPanel();
    return name == "serverLoss" ? serverLoss() : 1;
}

} // namespace corvane::test
