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
#include <functional>
#include <semaphore>
#include <utility>

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
    case SingleInstance::Outcome::Refused:
        return "refused";
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

/// Says what it is asked for. A text "wait" is never done with.
class SayingRequests : public ShelfRequests {
public:
    bool act(const QString &action, const QString &activationToken) override
    {
        say((action % u' ' % activationToken).toUtf8());
        return action == QStringLiteral("known");
    }
    void put(const ShelfDelivery &delivery, std::function<void(int)> done) override
    {
        if (delivery.bytes == "wait")
            return;
        say((delivery.kind == ShelfDelivery::Kind::Text ? "text " : "addresses ")
            + QByteArray::number(delivery.bytes.size()));
        done(3);
    }
    void list(Entries done) override
    {
        done(QByteArray(QByteArray(3'999, 'x').append('\0')).repeated(10'000));
    }
    void take(const QString &, Entries done) override
    {
        m_isTaken = true;
        done(QByteArray("/a\0", 3));
    }
    bool taken(const QString &) override
    {
        if (m_isTaken)
            say("confirmed");
        return std::exchange(m_isTaken, false);
    }
    void takerLeft(const QString &) override { say("left"); }
    void end() override { QCoreApplication::exit(); }

private:
    bool m_isTaken = false;
};

/// The same, and does what it is asked for.
int requests()
{
    DBusSingleInstance single(sceneApplicationId());
    SayingRequests requests;
    single.setRequests(&requests);
    say(nameOf(single.acquire([] { say("reopened"); })));
    return QCoreApplication::exec();
}

/// As "instance", with a main thread that stands still between two lines of its input. Its other
/// threads go on, as those of a program do that waits for a disk.
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
    if (name == "requests")
        return requests();
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
