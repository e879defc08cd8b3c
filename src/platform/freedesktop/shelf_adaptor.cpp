#include "platform/freedesktop/shelf_adaptor.h"

#include "platform/freedesktop/shelf_errors.h"
#include "platform/system/sealed_memory.h"

#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QMetaClassInfo>

#include <optional>

namespace corvane {

namespace {

std::optional<ShelfDelivery::Kind> kindOf(const QString &name)
{
    using enum ShelfDelivery::Kind;
    for (const ShelfDelivery::Kind kind : {Addresses, Text}) {
        if (ShelfAdaptor::nameOf(kind) == name)
            return kind;
    }
    return std::nullopt;
}

} // namespace

QString ShelfAdaptor::interfaceName()
{
    const int index = staticMetaObject.indexOfClassInfo("D-Bus Interface");
    return QLatin1String(staticMetaObject.classInfo(index).value());
}

QString ShelfAdaptor::nameOf(ShelfDelivery::Kind kind)
{
    return kind == ShelfDelivery::Kind::Text ? QStringLiteral("text") : QStringLiteral("addresses");
}

ShelfAdaptor::ShelfAdaptor(QObject *parent)
    : QDBusAbstractAdaptor(parent)
{
    m_takers.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
    connect(&m_takers, &QDBusServiceWatcher::serviceUnregistered, this, &ShelfAdaptor::takerLeft);
}

ShelfAdaptor::~ShelfAdaptor() = default;

void ShelfAdaptor::refuse(const QDBusMessage &message, const char *error, const char *text)
{
    message.setDelayedReply(true);
    QDBusConnection::sessionBus().send(
        message.createErrorReply(QLatin1String(error), QLatin1String(text)));
}

bool ShelfAdaptor::mayWait(const QDBusMessage &message)
{
    if (!requests) {
        refuse(message, shelf_errors::notReady, "Corvane is not ready yet");
        return false;
    }
    if (m_waiting >= mostWaiting) {
        refuse(message, shelf_errors::tooMuch, "too many calls wait for their answers");
        return false;
    }
    ++m_waiting;
    message.setDelayedReply(true);
    return true;
}

void ShelfAdaptor::answer(const QDBusMessage &message, const QVariant &value)
{
    --m_waiting;
    QDBusConnection::sessionBus().send(message.createReply(value));
}

uint ShelfAdaptor::Put(const QString &kind, const QDBusUnixFileDescriptor &memory,
                       const QDBusMessage &message)
{
    const auto known = kindOf(kind);
    const auto contents
        = sealed_memory::contents(memory.fileDescriptor(), ShelfRequests::maximumBytes);
    if (!known || !contents)
        refuse(message, shelf_errors::badArguments,
               known ? "the contents are no sealed memory, or too many" : "there is no such kind");
    else if (mayWait(message))
        requests->put({*known, *contents}, m_lifetime.guard([this, message](int items) {
            answer(message, static_cast<uint>(items));
        }));
    return 0;
}

ShelfRequests::Entries ShelfAdaptor::sendingTo(const QDBusMessage &message)
{
    return m_lifetime.guard([this, message](const QByteArray &entries) {
        const FileDescriptor memory = sealed_memory::holding(entries);
        if (memory.isOpen()) {
            answer(message, QVariant::fromValue(QDBusUnixFileDescriptor(memory.number())));
            return;
        }
        --m_waiting;
        refuse(message, shelf_errors::noMemory, "there is not enough memory");
    });
}

QDBusUnixFileDescriptor ShelfAdaptor::List(const QDBusMessage &message)
{
    if (mayWait(message))
        requests->list(sendingTo(message));
    return {};
}

QDBusUnixFileDescriptor ShelfAdaptor::Take(const QDBusMessage &message)
{
    if (!mayWait(message))
        return {};
    watch(message.service());
    requests->take(message.service(), sendingTo(message));
    return {};
}

void ShelfAdaptor::watch(const QString &taker)
{
    m_takers.setConnection(QDBusConnection::sessionBus());
    if (m_takers.watchedServices().contains(taker))
        return;
    m_takers.addWatchedService(taker);
    // It may have left before it was watched.
    const auto bus = QStringLiteral("org.freedesktop.DBus");
    auto question = QDBusMessage::createMethodCall(bus, QStringLiteral("/org/freedesktop/DBus"),
                                                   bus, QStringLiteral("NameHasOwner"));
    question << taker;
    auto *const pending
        = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
    connect(pending, &QDBusPendingCallWatcher::finished, this,
            [this, taker](QDBusPendingCallWatcher *call) {
                call->deleteLater();
                const QDBusPendingReply<bool> isThere = *call;
                if (isThere.isValid() && !isThere.value())
                    takerLeft(taker);
            });
}

void ShelfAdaptor::takerLeft(const QString &taker)
{
    m_takers.removeWatchedService(taker);
    if (requests)
        requests->takerLeft(taker);
}

void ShelfAdaptor::ConfirmTaken(const QDBusMessage &message) const
{
    if (!requests || !requests->taken(message.service()))
        refuse(message, shelf_errors::nothingTaken, "nothing was taken");
}

void ShelfAdaptor::End(const QDBusMessage &message) const
{
    if (!requests) {
        refuse(message, shelf_errors::notReady, "Corvane is not ready yet");
        return;
    }
    message.setDelayedReply(true);
    requests->end();
}

} // namespace corvane
