#pragma once

#include "platform/base/callback_list.h"
#include "platform/base/changing_list.h"
#include "platform/base/lifetime.h"
#include "platform/desktop/key_name.h"
#include "platform/desktop/optional_hot_keys.h"
#include "platform/freedesktop/shortcuts/desktop_action.h"
#include "platform/freedesktop/shortcuts/portal_signals.h"

#include <QDBusServiceWatcher>
#include <QObject>

#include <functional>
#include <map>
#include <optional>

namespace corvane {

class MainQueue;

/// Hot keys by the desktop's portal of shortcuts, which asks the user. Keys that are asked for are
/// a proposal: what is bound is what the portal lists afterwards, by the words that it has for it.
/// A portal that lists nothing has bound nothing, whatever it answers; then the user is told the
/// command.
///
/// Everything that is registered is asked for at once, in a session of the portal; when that
/// changes it is asked for in a new one. So it is when the portal ends a session in which the user
/// had bound something, once that has lasted: who has said no, or whose portal keeps none, is not
/// asked over and over. Main thread only; the queue must outlive it.
class PortalShortcuts : public OptionalHotKeys {
public:
    /// Seconds within which a portal makes a session; it asks nobody for that.
    static constexpr double sessionPatience = 10;
    /// Seconds after which a session counts as one that the portal keeps.
    static constexpr double lastingSession = 60;

    PortalShortcuts(std::vector<DesktopAction> actions, KeyNaming naming, MainQueue &queue,
                    double patience = sessionPatience);
    ~PortalShortcuts() override;
    PortalShortcuts(const PortalShortcuts &) = delete;
    PortalShortcuts &operator=(const PortalShortcuts &) = delete;

    Presence presence() const override { return m_presence; }
    Subscription observePresence(std::function<void()> observer) override
    {
        return m_presenceObservers.subscribe(std::move(observer));
    }
    ShortcutChoice choice() const override { return ShortcutChoice::InTheDesktop; }

    std::optional<HandlerRef> installHandler(Handler onPressed) override
    {
        return m_handlers.add(std::move(onPressed));
    }
    Registration registerHotKey(KeyPosition keyCode, std::uint32_t modifiers,
                                const HotKeyIdentifier &identifier,
                                OutcomeObserver onOutcome) override;
    ShortcutOutcome outcomeWithoutKeys(const HotKeyIdentifier &identifier) const override;
    /// The portal knows of no suspension; presses are not told meanwhile.
    std::unique_ptr<Suspension> suspend() override;

private:
    using Id = std::uint32_t;
    struct HotKey {
        DesktopAction action;
        HotKeyIdentifier identifier;
        QString trigger;
        OutcomeObserver onOutcome;
        ShortcutOutcome told;
    };
    class Counted;

    void lookForPortal();
    void become(Presence presence);
    void unregister(Id id);
    void bindLater();
    void bindAll();
    void bindIn(const QString &session);
    void closeSession();
    void closed();
    void take(const QVariant &listed);
    void tellAll(const std::function<ShortcutOutcome(const HotKey &)> &outcomeOf);
    void tell(Id id, const ShortcutOutcome &outcome);
    void activated(const QString &session, const QString &shortcut);

    std::vector<DesktopAction> m_actions;
    KeyNaming m_naming;
    MainQueue &m_queue;
    double m_patience;
    PortalSignals m_signals;
    QDBusServiceWatcher m_watcher;
    Presence m_presence = Presence::Unknown;
    CallbackList<> m_presenceObservers;
    std::map<Id, HotKey> m_hotKeys;
    ChangingList<Handler> m_handlers;
    int m_suspensions = 0;
    /// Empty while there is none.
    QString m_session;
    int m_sessions = 0;
    /// When the portal told what of the session is bound; none as long as nothing is.
    std::optional<double> m_boundSince;
    QObject m_answers;
    Lifetime m_search;
    /// Of the latest attempt to bind everything.
    Lifetime m_attempt;
    Lifetime m_lifetime;
};

} // namespace corvane
