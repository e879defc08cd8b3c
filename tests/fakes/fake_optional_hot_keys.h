#pragma once

#include "fakes/fake_hot_keys.h"
#include "platform/base/callback_list.h"
#include "platform/desktop/optional_hot_keys.h"

#include <utility>

namespace corvane::test {

/// A service for hot keys that comes and goes.
class FakeOptionalHotKeys : public OptionalHotKeys {
public:
    explicit FakeOptionalHotKeys(Presence presence, ShortcutChoice choice = ShortcutChoice::Here)
        : m_presence(presence)
        , m_choice(choice)
    {
    }

    Presence presence() const override { return m_presence; }
    Subscription observePresence(std::function<void()> observer) override
    {
        return m_observers.subscribe(std::move(observer));
    }
    ShortcutChoice choice() const override { return m_choice; }
    std::optional<HandlerRef> installHandler(Handler onPressed) override
    {
        return keys.installHandler(std::move(onPressed));
    }
    Registration registerHotKey(KeyPosition keyCode, std::uint32_t modifiers,
                                const HotKeyIdentifier &identifier,
                                OutcomeObserver onOutcome) override
    {
        return keys.registerHotKey(keyCode, modifiers, identifier, std::move(onOutcome));
    }
    ShortcutOutcome outcomeWithoutKeys(const HotKeyIdentifier & /*identifier*/) const override
    {
        return keys.withoutKeys;
    }
    std::unique_ptr<Suspension> suspend() override { return keys.suspend(); }

    void become(Presence presence)
    {
        m_presence = presence;
        m_observers.notify();
    }

    FakeHotKeys keys;

private:
    Presence m_presence;
    ShortcutChoice m_choice;
    CallbackList<> m_observers;
};

} // namespace corvane::test
