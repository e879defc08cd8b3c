#include "platform/freedesktop/shortcuts/portal_shortcuts.h"

#include "platform/base/main_queue.h"
#include "platform/freedesktop/session_bus.h"
#include "platform/freedesktop/shortcuts/desktop_portal.h"
#include "platform/freedesktop/shortcuts/key_notation.h"
#include "platform/freedesktop/shortcuts/portal_request.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

#include <algorithm>
#include <utility>

namespace corvane {

namespace {

/// A shortcut as the portal takes and lists it.
struct Listed {
    QString name;
    QVariantMap about;
};

QDBusArgument &operator<<(QDBusArgument &to, const Listed &shortcut)
{
    to.beginStructure();
    to << shortcut.name << shortcut.about;
    to.endStructure();
    return to;
}

const QDBusArgument &operator>>(const QDBusArgument &from, Listed &shortcut)
{
    from.beginStructure();
    from >> shortcut.name >> shortcut.about;
    from.endStructure();
    return from;
}

/// What the portal lists; empty where that is something else.
QList<Listed> listedIn(const QVariant &value)
{
    if (value.metaType() != QMetaType::fromType<QDBusArgument>())
        return {};
    const auto argument = value.value<QDBusArgument>();
    return argument.currentSignature() == QLatin1String("a(sa{sv})")
        ? qdbus_cast<QList<Listed>>(argument)
        : QList<Listed>();
}

} // namespace

class PortalShortcuts::Counted : public Suspension {
public:
    explicit Counted(int &count)
        : m_count(count)
    {
        ++m_count;
    }
    ~Counted() override { --m_count; }

private:
    int &m_count;
};

PortalShortcuts::PortalShortcuts(std::vector<DesktopAction> actions, KeyNaming naming,
                                 MainQueue &queue, double patience)
    : m_actions(std::move(actions))
    , m_naming(std::move(naming))
    , m_queue(queue)
    , m_patience(patience)
{
    if (!session_bus::isAvailable()) {
        m_presence = Presence::Absent;
        return;
    }
    qDBusRegisterMetaType<Listed>();
    qDBusRegisterMetaType<QList<Listed>>();
    m_signals.onActivated
        = [this](const auto &session, const auto &shortcut) { activated(session, shortcut); };
    m_signals.onChanged = [this](const QString &session, const QVariant &shortcuts) {
        if (session == m_session)
            take(shortcuts);
    };
    m_signals.onClosed = [this](const QString &session) {
        if (session == m_session)
            closed();
    };
    m_signals.listen();
    m_watcher.setConnection(QDBusConnection::sessionBus());
    m_watcher.setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
    m_watcher.addWatchedService(desktop_portal::service);
    QObject::connect(&m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, &m_answers,
                     [this](const QString &, const QString &before, const QString & /*now*/) {
                         // Whoever comes after it knows nothing of its sessions.
                         if (!before.isEmpty() || m_presence != Presence::Unknown)
                             lookForPortal();
                     });
    lookForPortal();
}

PortalShortcuts::~PortalShortcuts()
{
    closeSession();
}

/// There are portals of many kinds, of which a desktop has some.
void PortalShortcuts::lookForPortal()
{
    m_session.clear();
    m_attempt.restart();
    become(Presence::Unknown);
    m_search.restart();
    auto call = QDBusMessage::createMethodCall(desktop_portal::service, desktop_portal::path,
                                               QStringLiteral("org.freedesktop.DBus.Properties"),
                                               QStringLiteral("Get"));
    call << QString(desktop_portal::globalShortcuts) << QStringLiteral("version");
    auto *answer = new QDBusPendingCallWatcher(
        QDBusConnection::sessionBus().asyncCall(call, PortalRequest::acceptMilliseconds),
        &m_answers);
    const auto found = [this, answer] {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        const bool isThere = !reply.isError() && reply.value().variant().toUInt() > 0;
        become(isThere ? Presence::There : Presence::Absent);
    };
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, &m_answers,
                     [answer, found = m_search.guard(found)] {
                         answer->deleteLater();
                         found();
                     });
}

void PortalShortcuts::become(Presence presence)
{
    if (std::exchange(m_presence, presence) != presence)
        m_presenceObservers.notify();
}

HotKeyService::Registration PortalShortcuts::registerHotKey(KeyPosition keyCode,
                                                            std::uint32_t modifiers,
                                                            const HotKeyIdentifier &identifier,
                                                            OutcomeObserver onOutcome)
{
    const DesktopAction *const action = actionWith(identifier.id, m_actions);
    if (!action || m_hotKeys.contains(identifier.id))
        return {ShortcutOutcome::refused(), {}};
    m_hotKeys[identifier.id] = {.action = *action,
                                .identifier = identifier,
                                .trigger = key_notation::trigger({keyCode, modifiers}, m_naming),
                                .onOutcome = std::move(onOutcome),
                                .told = ShortcutOutcome::pending()};
    bindLater();
    return {ShortcutOutcome::pending(),
            Subscription(m_lifetime.guard([this, id = identifier.id] { unregister(id); }))};
}

ShortcutOutcome PortalShortcuts::outcomeWithoutKeys(const HotKeyIdentifier &identifier) const
{
    const DesktopAction *const action = actionWith(identifier.id, m_actions);
    return action ? ShortcutOutcome::setInDesktop(action->command) : ShortcutOutcome();
}

void PortalShortcuts::unregister(Id id)
{
    m_hotKeys.erase(id);
    bindLater();
}

/// Several change in one go.
void PortalShortcuts::bindLater()
{
    m_attempt.restart();
    m_queue.async(m_attempt.guard([this] { bindAll(); }));
}

void PortalShortcuts::bindAll()
{
    closeSession();
    if (m_hotKeys.empty() || m_presence != Presence::There)
        return;
    const auto made = m_attempt.guard([this](const std::optional<QVariantMap> &contents) {
        // Text, though it is the name of a place: the portals' own descriptions differ.
        const QVariant place
            = contents ? contents->value(QStringLiteral("session_handle")) : QVariant();
        const QString session = place.canConvert<QDBusObjectPath>()
            ? place.value<QDBusObjectPath>().path()
            : place.toString();
        if (session.startsWith(QLatin1Char('/')))
            bindIn(session);
        else
            become(Presence::Absent);
    });
    auto *const request = new PortalRequest(&m_answers, made);
    QVariantMap options = request->options();
    // Each has a name of its own: the end of one must not be taken for that of the next.
    options[QStringLiteral("session_handle_token")] = QStringLiteral("corvane%1").arg(++m_sessions);
    request->ask(QStringLiteral("CreateSession"), {options});
    m_queue.asyncAfter(m_patience, m_attempt.guard([this] {
        if (m_session.isEmpty())
            become(Presence::Absent);
    }));
}

void PortalShortcuts::bindIn(const QString &session)
{
    m_session = session;
    m_boundSince.reset();
    QList<Listed> wanted;
    for (const auto &[id, hotKey] : m_hotKeys) {
        QVariantMap about{{QStringLiteral("description"), hotKey.action.title}};
        if (!hotKey.trigger.isEmpty())
            about[QStringLiteral("preferred_trigger")] = hotKey.trigger;
        wanted << Listed{hotKey.action.name, about};
    }
    // The user may take any time to answer.
    const auto bound = m_attempt.guard([this](const std::optional<QVariantMap> &contents) {
        take(contents ? contents->value(QStringLiteral("shortcuts")) : QVariant());
    });
    auto *const request = new PortalRequest(&m_answers, bound);
    request->ask(QStringLiteral("BindShortcuts"),
                 {QVariant::fromValue(QDBusObjectPath(session)), QVariant::fromValue(wanted),
                  QString(), request->options()});
}

void PortalShortcuts::closeSession()
{
    const QString session = std::exchange(m_session, {});
    if (session.isEmpty())
        return;
    QDBusConnection::sessionBus().call(
        QDBusMessage::createMethodCall(desktop_portal::service, session, desktop_portal::session,
                                       QStringLiteral("Close")),
        QDBus::NoBlock);
}

/// No key reaches us any more, and an answer that is awaited will not come.
void PortalShortcuts::closed()
{
    m_session.clear();
    m_attempt.restart();
    const bool wasKept = m_boundSince && m_queue.now() - *m_boundSince >= lastingSession;
    if (!wasKept) {
        take({});
        return;
    }
    bindLater();
    tellAll([](const HotKey &) { return ShortcutOutcome::pending(); });
}

void PortalShortcuts::take(const QVariant &listed)
{
    const QList<Listed> shortcuts = listedIn(listed);
    const auto outcomeOf = [&shortcuts](const HotKey &hotKey) {
        const auto found = std::ranges::find(shortcuts, hotKey.action.name, &Listed::name);
        const QString keys = found == shortcuts.end()
            ? QString()
            : found->about.value(QStringLiteral("trigger_description")).toString();
        return keys.isEmpty() ? ShortcutOutcome::setInDesktop(hotKey.action.command)
                              : ShortcutOutcome::bound(keys);
    };
    const bool isAnyBound = std::ranges::any_of(m_hotKeys, [&](const auto &hotKey) {
        return outcomeOf(hotKey.second).kind == ShortcutOutcome::Kind::Bound;
    });
    if (!isAnyBound)
        m_boundSince.reset();
    else if (!m_boundSince)
        m_boundSince = m_queue.now();
    tellAll(outcomeOf);
}

void PortalShortcuts::tellAll(const std::function<ShortcutOutcome(const HotKey &)> &outcomeOf)
{
    std::map<Id, ShortcutOutcome> outcomes;
    for (const auto &[id, hotKey] : m_hotKeys)
        outcomes[id] = outcomeOf(hotKey);
    const Lifetime::Token life = m_lifetime.token();
    for (const auto &[id, outcome] : outcomes) {
        if (!life.isOver())
            tell(id, outcome);
    }
}

void PortalShortcuts::tell(Id id, const ShortcutOutcome &outcome)
{
    const auto found = m_hotKeys.find(id);
    if (found == m_hotKeys.end() || std::exchange(found->second.told, outcome) == outcome)
        return;
    // A copy: whoever is told may unregister it.
    const OutcomeObserver onOutcome = found->second.onOutcome;
    if (onOutcome)
        onOutcome(outcome);
}

void PortalShortcuts::activated(const QString &session, const QString &shortcut)
{
    const auto found = std::ranges::find_if(
        m_hotKeys, [&](const auto &hotKey) { return hotKey.second.action.name == shortcut; });
    if (session != m_session || session.isEmpty() || found == m_hotKeys.end() || m_suspensions > 0)
        return;
    const HotKeyIdentifier identifier = found->second.identifier;
    m_handlers.forEach([&](const Handler &handler) { handler(identifier); });
}

std::unique_ptr<HotKeyService::Suspension> PortalShortcuts::suspend()
{
    return std::make_unique<Counted>(m_suspensions);
}

} // namespace corvane
