#pragma once

#include "platform/base/callback_list.h"
#include "platform/base/changing_list.h"
#include "platform/base/lifetime.h"
#include "platform/desktop/key_name.h"
#include "platform/desktop/optional_hot_keys.h"
#include "platform/freedesktop/shortcuts/desktop_action.h"
#include "platform/freedesktop/shortcuts/kde_signals.h"

#include <QDBusServiceWatcher>
#include <QObject>
#include <QStringList>
#include <QVariantList>

#include <map>
#include <memory>

namespace corvane {

/// Hot keys by KDE's service for them, where the compositor itself is that service. (Another
/// program that has its name takes keys of X servers, and would be deaf in other sessions.)
///
/// The service keeps the keys of each action, and the user may change them in the desktop's
/// settings. It is also told which keys we asked for last: as long as we ask for the same ones,
/// what the user chose there counts; once we ask for others, these do. Keys that the user took away
/// there are asked for again only when somebody registers them anew.
///
/// Everything is asked in the background and within a bound. A service that does not answer counts
/// as absent until its name changes hands. Main thread only.
class KdeShortcuts : public OptionalHotKeys {
public:
    static constexpr int answerMilliseconds = 5'000;

    /// The program's name on the bus and as people read it.
    struct Component {
        QString name;
        QString title;
    };
    KdeShortcuts(Component component, std::vector<DesktopAction> actions, KeyNaming naming,
                 int patience = answerMilliseconds);
    ~KdeShortcuts() override;
    KdeShortcuts(const KdeShortcuts &) = delete;
    KdeShortcuts &operator=(const KdeShortcuts &) = delete;

    Presence presence() const override { return m_presence; }
    Subscription observePresence(std::function<void()> observer) override
    {
        return m_presenceObservers.subscribe(std::move(observer));
    }
    ShortcutChoice choice() const override { return ShortcutChoice::Here; }

    std::optional<HandlerRef> installHandler(Handler onPressed) override
    {
        return m_handlers.add(std::move(onPressed));
    }
    Registration registerHotKey(KeyPosition keyCode, std::uint32_t modifiers,
                                const HotKeyIdentifier &identifier,
                                OutcomeObserver onOutcome) override;
    std::unique_ptr<Suspension> suspend() override;

private:
    using Id = std::uint32_t;
    struct HotKey {
        DesktopAction action;
        HotKeyIdentifier identifier;
        /// As Qt numbers them.
        int keys = 0;
        /// Whether they were registered before, since the program started.
        bool isAnew = false;
        OutcomeObserver onOutcome;
        ShortcutOutcome told;
        /// Restarted for each attempt to bind it, so that late answers to earlier ones do nothing.
        Lifetime attempt;
    };
    class Counted;
    enum class Retry { Allowed, Done };

    void listen();
    void pressed(const QString &component, const QString &action);
    void changed(const QString &component, const QString &action);
    void lookForService();
    void become(Presence presence);
    QStringList actionId(const DesktopAction &action) const;
    void send(const QString &method, const QVariantList &arguments) const;
    template<typename Answer>
    void ask(HotKey &hotKey, const QString &method, const QVariantList &arguments,
             std::function<void(HotKey &, const Answer &)> then);

    void unregister(Id id);
    void bind(HotKey &hotKey);
    void bindAsBefore(HotKey &hotKey);
    void bindAnew(HotKey &hotKey, Retry retry);
    void askForOwner(HotKey &hotKey);
    bool takeBackFrom(const QStringList &owner, const HotKey &hotKey);
    void tellBound(HotKey &hotKey, const QList<int> &keys);
    void tell(HotKey &hotKey, const ShortcutOutcome &outcome);
    void resume();

    Component m_component;
    std::vector<DesktopAction> m_actions;
    KeyNaming m_naming;
    int m_patience;
    KdeSignals m_signals;
    QDBusServiceWatcher m_watcher;
    /// The answers that are awaited.
    QObject m_answers;
    Presence m_presence = Presence::Unknown;
    CallbackList<> m_presenceObservers;
    std::map<Id, std::unique_ptr<HotKey>> m_hotKeys;
    /// Which keys each action was registered with last.
    std::map<Id, int> m_known;
    ChangingList<Handler> m_handlers;
    int m_suspensions = 0;
    /// A service that tells of releases has told of none since the last press.
    bool m_isHeld = false;
    bool m_hearsReleases = false;
    Lifetime m_search;
    Lifetime m_lifetime;
};

} // namespace corvane
