#include "platform/freedesktop/shortcuts/kde_service.h"

#include <QDBusMetaType>

namespace corvane::test {

namespace {

const auto service = QStringLiteral("org.kde.kglobalaccel");
const auto compositor = QStringLiteral("org.kde.KWin");
const auto path = QStringLiteral("/kglobalaccel");

} // namespace

QDBusArgument &operator<<(QDBusArgument &to, const KdeSequence &sequence)
{
    to.beginStructure();
    to << sequence.keys;
    to.endStructure();
    return to;
}

const QDBusArgument &operator>>(const QDBusArgument &from, KdeSequence &sequence)
{
    from.beginStructure();
    from >> sequence.keys;
    from.endStructure();
    return from;
}

KdeService::KdeService()
{
    qDBusRegisterMetaType<KdeSequence>();
    qDBusRegisterMetaType<KdeSequences>();
    m_bus.registerObject(path, this, QDBusConnection::ExportScriptableInvokables);
}

KdeService::~KdeService()
{
    go();
    QDBusConnection::disconnectFromBus(QStringLiteral("kde"));
}

void KdeService::come(bool isCompositor)
{
    if (isCompositor)
        m_bus.registerService(compositor);
    m_bus.registerService(service);
}

void KdeService::go()
{
    m_bus.unregisterService(service);
    m_bus.unregisterService(compositor);
}

void KdeService::signal(const QString &name, const QString &component, const QString &action)
{
    auto message
        = QDBusMessage::createSignal(QStringLiteral("/component/example"),
                                     QStringLiteral("org.kde.kglobalaccel.Component"), name);
    message << component << action << qlonglong(0);
    m_bus.send(message);
}

void KdeService::press(const QString &action, const QString &component)
{
    signal(QStringLiteral("globalShortcutPressed"), component, action);
}

void KdeService::release(const QString &action)
{
    signal(QStringLiteral("globalShortcutReleased"), program(), action);
}

void KdeService::choose(const QString &name, const QList<int> &keys)
{
    action(name).keys = keys;
    auto message = QDBusMessage::createSignal(path, QStringLiteral("org.kde.KGlobalAccel"),
                                              QStringLiteral("yourShortcutGotChanged"));
    message << idOf(name) << QVariant::fromValue(keys);
    m_bus.send(message);
}

bool KdeService::answers()
{
    ++questions;
    if (manners == Manners::Answers)
        return true;
    setDelayedReply(true);
    if (manners == Manners::Confused)
        m_bus.send(message().createReply(QStringLiteral("what?")));
    return false;
}

void KdeService::doRegister(const QStringList &id)
{
    actions[id.mid(0, 2)];
}

void KdeService::setInactive(const QStringList &id)
{
    actions[id.mid(0, 2)].isPresent = false;
}

QList<int> KdeService::shortcut(const QStringList &id)
{
    return answers() ? actions[id.mid(0, 2)].keys : QList<int>();
}

QList<int> KdeService::defaultShortcut(const QStringList &id)
{
    return shortcut(id);
}

KdeSequences KdeService::defaultShortcutKeys(const QStringList &id)
{
    KdeSequences wanted;
    if (answers()) {
        for (const int key : actions[id.mid(0, 2)].wanted)
            wanted << KdeSequence{{key, 0, 0, 0}};
    }
    return wanted;
}

QList<int> KdeService::setShortcut(const QStringList &id, const QList<int> &keys, uint flags)
{
    constexpr uint present = 2;
    constexpr uint asAsked = 4;
    constexpr uint isWish = 8;
    if (!answers())
        return {};
    Action &changed = actions[id.mid(0, 2)];
    if ((flags & isWish) != 0)
        return changed.wanted = keys;
    changed.isPresent = changed.isPresent || (flags & present) != 0;
    if ((flags & asAsked) == 0 && !changed.isFresh)
        return changed.keys;
    changed.isFresh = false;
    changed.keys.clear();
    for (const int key : keys) {
        const bool isFree = action(key).isEmpty();
        changed.keys << (isFree ? key : 0);
    }
    return changed.keys;
}

QStringList KdeService::action(int key)
{
    for (const auto &[id, owner] : actions) {
        if (owner.keys.contains(key))
            return id + QStringList{QString(), QString()};
    }
    return {};
}

} // namespace corvane::test
