#include "platform/freedesktop/shortcuts/kde_shortcuts.h"

#include "platform/freedesktop/session_bus.h"
#include "platform/freedesktop/shortcuts/key_notation.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QKeySequence>

#include <algorithm>
#include <utility>

namespace corvane {

namespace {

const auto kdeService = QStringLiteral("org.kde.kglobalaccel");
/// The compositor's other name.
const auto compositor = QStringLiteral("org.kde.KWin");
const auto kdePath = QStringLiteral("/kglobalaccel");
const auto kdeInterface = QStringLiteral("org.kde.KGlobalAccel");

// How keys are set. Unless it is `asAsked`, keys that the action has already stay.
constexpr uint present = 2;
constexpr uint asAsked = 4;
/// Changes nothing but what the service has been told that the program wants.
constexpr uint wanted = 8;

QDBusMessage callTo(const QString &method, const QVariantList &arguments)
{
    auto call = QDBusMessage::createMethodCall(kdeService, kdePath, kdeInterface, method);
    call.setArguments(arguments);
    call.setAutoStartService(false);
    return call;
}

QVariant listOf(const QList<int> &keys)
{
    return QVariant::fromValue(keys);
}

/// Keys that are pressed one after the other, up to four; the others are 0.
struct Sequence {
    QList<int> keys;
};

QDBusArgument &operator<<(QDBusArgument &to, const Sequence &sequence)
{
    to.beginStructure();
    to << sequence.keys;
    to.endStructure();
    return to;
}

const QDBusArgument &operator>>(const QDBusArgument &from, Sequence &sequence)
{
    from.beginStructure();
    from >> sequence.keys;
    from.endStructure();
    return from;
}

/// The service writes 0 where it refused a key.
QList<int> withoutRefused(QList<int> keys)
{
    keys.removeAll(0);
    return keys;
}

} // namespace

class KdeShortcuts::Counted : public Suspension {
public:
    explicit Counted(KdeShortcuts &keys)
        : m_keys(keys)
    {
        if (m_keys.m_suspensions++ > 0)
            return;
        for (const auto &[id, hotKey] : m_keys.m_hotKeys)
            m_keys.send(QStringLiteral("setInactive"), {m_keys.actionId(hotKey->action)});
    }
    ~Counted() override { m_keys.resume(); }

private:
    KdeShortcuts &m_keys;
};

KdeShortcuts::KdeShortcuts(Component component, std::vector<DesktopAction> actions,
                           KeyNaming naming, int patience)
    : m_component(std::move(component))
    , m_actions(std::move(actions))
    , m_naming(std::move(naming))
    , m_patience(patience)
{
    if (!session_bus::isAvailable()) {
        m_presence = Presence::Absent;
        return;
    }
    qDBusRegisterMetaType<Sequence>();
    qDBusRegisterMetaType<QList<Sequence>>();
    listen();
    lookForService();
}

KdeShortcuts::~KdeShortcuts()
{
    for (const auto &[id, hotKey] : m_hotKeys)
        send(QStringLiteral("setInactive"), {actionId(hotKey->action)});
}

void KdeShortcuts::listen()
{
    m_signals.onPressed
        = [this](const auto &component, const auto &action) { pressed(component, action); };
    m_signals.onReleased = [this] {
        m_hearsReleases = true;
        m_isHeld = false;
    };
    m_signals.onChanged
        = [this](const auto &component, const auto &action) { changed(component, action); };
    m_signals.listen();
    m_watcher.setConnection(QDBusConnection::sessionBus());
    m_watcher.setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
    m_watcher.addWatchedService(kdeService);
    m_watcher.addWatchedService(compositor);
    QObject::connect(&m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, &m_answers,
                     [this] { lookForService(); });
}

/// It is there if both names have one owner.
void KdeShortcuts::lookForService()
{
    // Whoever has the name now knows nothing of what was registered.
    become(Presence::Unknown);
    m_search.restart();
    const auto bus = QStringLiteral("org.freedesktop.DBus");
    const auto askWho = [this, bus](const QString &name,
                                    std::function<void(const QString &)> then) {
        auto call = QDBusMessage::createMethodCall(bus, QStringLiteral("/org/freedesktop/DBus"),
                                                   bus, QStringLiteral("GetNameOwner"));
        call << name;
        auto *answer = new QDBusPendingCallWatcher(
            QDBusConnection::sessionBus().asyncCall(call, m_patience), &m_answers);
        QObject::connect(answer, &QDBusPendingCallWatcher::finished, &m_answers,
                         [answer, then = m_search.guard(std::move(then))] {
                             const QDBusPendingReply<QString> reply = *answer;
                             answer->deleteLater();
                             then(reply.isError() ? QString() : reply.value());
                         });
    };
    askWho(kdeService, [this, askWho](const QString &owner) {
        askWho(compositor, [this, owner](const QString &other) {
            become(!owner.isEmpty() && owner == other ? Presence::There : Presence::Absent);
        });
    });
}

void KdeShortcuts::become(Presence presence)
{
    if (std::exchange(m_presence, presence) == presence)
        return;
    m_isHeld = false;
    m_presenceObservers.notify();
}

QStringList KdeShortcuts::actionId(const DesktopAction &action) const
{
    return {m_component.name, action.name, m_component.title, action.title};
}

void KdeShortcuts::send(const QString &method, const QVariantList &arguments) const
{
    if (m_presence == Presence::There)
        QDBusConnection::sessionBus().call(callTo(method, arguments), QDBus::NoBlock);
}

/// `then` is called only with an answer of that kind, and while the hot key is registered and the
/// attempt goes on.
template<typename Answer>
void KdeShortcuts::ask(HotKey &hotKey, const QString &method, const QVariantList &arguments,
                       std::function<void(HotKey &, const Answer &)> then)
{
    auto *answer = new QDBusPendingCallWatcher(
        QDBusConnection::sessionBus().asyncCall(callTo(method, arguments), m_patience), &m_answers);
    const auto take = [this, answer, then = std::move(then), asked = &hotKey] {
        const QDBusPendingReply<Answer> reply = *answer;
        if (reply.isError())
            become(Presence::Absent);
        else
            then(*asked, reply.value());
    };
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, &m_answers,
                     [answer, take = hotKey.attempt.guard(take)] {
                         answer->deleteLater();
                         take();
                     });
}

HotKeyService::Registration KdeShortcuts::registerHotKey(KeyPosition keyCode,
                                                         std::uint32_t modifiers,
                                                         const HotKeyIdentifier &identifier,
                                                         OutcomeObserver onOutcome)
{
    const DesktopAction *const action = actionWith(identifier.id, m_actions);
    const auto keys = key_notation::qtKeys({keyCode, modifiers}, m_naming);
    if (!action || !keys || m_hotKeys.contains(identifier.id))
        return {ShortcutOutcome::refused(), {}};
    auto hotKey = std::make_unique<HotKey>();
    hotKey->action = *action;
    hotKey->identifier = identifier;
    hotKey->keys = *keys;
    const auto before = m_known.find(identifier.id);
    hotKey->isAnew = before != m_known.end() && before->second == *keys;
    m_known[identifier.id] = *keys;
    hotKey->onOutcome = std::move(onOutcome);
    hotKey->told = ShortcutOutcome::pending();
    HotKey &registered = *(m_hotKeys[identifier.id] = std::move(hotKey));
    if (m_suspensions == 0)
        bind(registered);
    return {ShortcutOutcome::pending(),
            Subscription(m_lifetime.guard([this, id = identifier.id] { unregister(id); }))};
}

void KdeShortcuts::unregister(Id id)
{
    const auto found = m_hotKeys.find(id);
    if (found == m_hotKeys.end())
        return;
    send(QStringLiteral("setInactive"), {actionId(found->second->action)});
    m_hotKeys.erase(found);
}

void KdeShortcuts::bind(HotKey &hotKey)
{
    hotKey.attempt.restart();
    if (m_presence != Presence::There)
        return;
    send(QStringLiteral("doRegister"), {actionId(hotKey.action)});
    // In this form: "defaultShortcut" answers with the present keys in some versions (5.103).
    ask<QList<Sequence>>(hotKey, QStringLiteral("defaultShortcutKeys"), {actionId(hotKey.action)},
                         [this](HotKey &asked, const QList<Sequence> &before) {
                             if (before.size() == 1
                                 && withoutRefused(before.front().keys) == QList{asked.keys})
                                 bindAsBefore(asked);
                             else
                                 bindAnew(asked, Retry::Allowed);
                         });
}

void KdeShortcuts::bindAsBefore(HotKey &hotKey)
{
    ask<QList<int>>(hotKey, QStringLiteral("setShortcut"),
                    {actionId(hotKey.action), listOf({hotKey.keys}), present},
                    [this](HotKey &asked, const QList<int> &keys) {
                        if (asked.isAnew && withoutRefused(keys).isEmpty())
                            bindAnew(asked, Retry::Allowed);
                        else
                            tellBound(asked, keys);
                    });
}

void KdeShortcuts::bindAnew(HotKey &hotKey, Retry retry)
{
    const auto answered = [this, retry](HotKey &asked, const QList<int> &keys) {
        if (!keys.contains(asked.keys)) {
            if (retry == Retry::Allowed)
                askForOwner(asked);
            else
                tell(asked, ShortcutOutcome::refused());
            return;
        }
        send(QStringLiteral("setShortcut"), {actionId(asked.action), listOf({asked.keys}), wanted});
        tellBound(asked, keys);
    };
    ask<QList<int>>(hotKey, QStringLiteral("setShortcut"),
                    {actionId(hotKey.action), listOf({hotKey.keys}), present | asAsked}, answered);
}

/// The keys may be those of another action of ours that has given them up.
void KdeShortcuts::askForOwner(HotKey &hotKey)
{
    ask<QStringList>(hotKey, QStringLiteral("action"), {hotKey.keys},
                     [this](HotKey &asked, const QStringList &owner) {
                         if (takeBackFrom(owner, asked))
                             bindAnew(asked, Retry::Done);
                         else
                             tell(asked, ShortcutOutcome::refused());
                     });
}

bool KdeShortcuts::takeBackFrom(const QStringList &owner, const HotKey &hotKey)
{
    if (owner.size() < 2 || owner.at(0) != m_component.name)
        return false;
    const auto action = std::ranges::find(m_actions, owner.at(1), &DesktopAction::name);
    if (action == m_actions.end() || action->id == hotKey.action.id
        || m_hotKeys.contains(action->id))
        return false;
    send(QStringLiteral("setShortcut"), {actionId(*action), listOf({}), asAsked});
    return true;
}

void KdeShortcuts::tellBound(HotKey &hotKey, const QList<int> &keys)
{
    const QList<int> bound = withoutRefused(keys);
    if (bound.isEmpty()) {
        tell(hotKey, ShortcutOutcome::setInDesktop(hotKey.action.command));
        return;
    }
    const bool isAsAsked = bound.contains(hotKey.keys);
    const QKeySequence other(QKeyCombination::fromCombined(bound.front()));
    tell(hotKey,
         ShortcutOutcome::bound(isAsAsked ? QString() : other.toString(QKeySequence::NativeText)));
}

void KdeShortcuts::tell(HotKey &hotKey, const ShortcutOutcome &outcome)
{
    if (std::exchange(hotKey.told, outcome) == outcome)
        return;
    // A copy: whoever is told may unregister it.
    const OutcomeObserver onOutcome = hotKey.onOutcome;
    if (onOutcome)
        onOutcome(outcome);
}

void KdeShortcuts::pressed(const QString &component, const QString &action)
{
    const auto found = std::ranges::find_if(
        m_hotKeys, [&](const auto &hotKey) { return hotKey.second->action.name == action; });
    if (component != m_component.name || found == m_hotKeys.end() || m_suspensions > 0)
        return;
    // A held key repeats.
    if (std::exchange(m_isHeld, true) && m_hearsReleases)
        return;
    const HotKeyIdentifier identifier = found->second->identifier;
    m_handlers.forEach([&](const Handler &handler) { handler(identifier); });
}

void KdeShortcuts::changed(const QString &component, const QString &action)
{
    if (component != m_component.name || m_suspensions > 0)
        return;
    for (const auto &[id, hotKey] : m_hotKeys) {
        if (hotKey->action.name == action)
            ask<QList<int>>(
                *hotKey, QStringLiteral("shortcut"), {actionId(hotKey->action)},
                [this](HotKey &asked, const QList<int> &keys) { tellBound(asked, keys); });
    }
}

std::unique_ptr<HotKeyService::Suspension> KdeShortcuts::suspend()
{
    return std::make_unique<Counted>(*this);
}

void KdeShortcuts::resume()
{
    if (--m_suspensions > 0)
        return;
    for (const auto &[id, hotKey] : m_hotKeys)
        bind(*hotKey);
}

} // namespace corvane
