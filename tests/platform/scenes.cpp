#include "platform/scenes.h"

#include "platform/freedesktop/dbus_single_instance.h"
#include "platform/panel_scene.h"
#include "platform/qt/unix_signals.h"
#include "platform/x11/x11_connection.h"

#include <QCoreApplication>
#include <QTimer>

#include <chrono>

namespace corvane::test {

namespace {

const char *nameOf(SingleInstance::Outcome outcome)
{
    switch (outcome) {
    case SingleInstance::Outcome::First:
        return "first";
    case SingleInstance::Outcome::HandedOver:
        return "handed over";
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
    if (name == "signals")
        return signals();
    if (name == "stuckAfterSignal")
        return stuckAfterSignal();
    if (name == "panel")
        return playPanel();
    return name == "serverLoss" ? serverLoss() : 1;
}

} // namespace corvane::test
