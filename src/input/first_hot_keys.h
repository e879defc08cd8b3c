#pragma once

#include "platform/base/changing_list.h"
#include "platform/base/lifetime.h"
#include "platform/desktop/optional_hot_keys.h"

#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace corvane {

/// Hot keys by the first of several services that is there, the best one standing first. What is
/// registered moves to another service when the one that has it goes, or a better one comes.
///
/// Refuses by itself what no service should be asked for: keys that type a character, modifiers
/// without a meaning, and what another registration of ours has. Main thread only; the services
/// must outlive it.
class FirstHotKeys : public HotKeyService {
public:
    explicit FirstHotKeys(std::vector<OptionalHotKeys *> services);

    std::optional<HandlerRef> installHandler(Handler onPressed) override;
    Registration registerHotKey(KeyPosition keyCode, std::uint32_t modifiers,
                                const HotKeyIdentifier &identifier,
                                OutcomeObserver onOutcome) override;
    ShortcutOutcome outcomeWithoutKeys(const HotKeyIdentifier &identifier) const override;
    std::unique_ptr<Suspension> suspend() override;

    /// None while it is not known which ones are there, and where none is.
    const OptionalHotKeys *chosen() const { return m_chosen; }
    /// Called after another one was chosen. May be empty.
    std::function<void()> onChosen;

private:
    using Handle = int;
    struct HotKey {
        KeyPosition keyCode = KeyPosition::Unknown;
        std::uint32_t modifiers = 0;
        HotKeyIdentifier identifier;
        OutcomeObserver onOutcome;
        /// What has become of it, as its observer knows.
        ShortcutOutcome told;
        /// With the chosen service.
        Subscription taken;
    };
    class Counted;

    static OptionalHotKeys *firstOf(const std::vector<OptionalHotKeys *> &services);
    void choose();
    ShortcutOutcome take(Handle handle, HotKey &hotKey);
    void tell(Handle handle, const ShortcutOutcome &outcome);
    void unregister(Handle handle) { m_hotKeys.erase(handle); }
    void resume();

    std::vector<OptionalHotKeys *> m_services;
    OptionalHotKeys *m_chosen = nullptr;
    std::map<Handle, HotKey> m_hotKeys;
    Handle m_nextHandle = 1;
    ChangingList<Handler> m_handlers;
    bool m_isListening = false;
    int m_suspensions = 0;
    std::unique_ptr<Suspension> m_suspended;
    std::vector<Subscription> m_presences;
    Lifetime m_lifetime;
};

} // namespace corvane
