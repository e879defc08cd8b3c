#pragma once

#include "platform/desktop/hot_key_service.h"

#include <functional>
#include <map>
#include <set>
#include <utility>
#include <vector>

namespace corvane::test {

/// The hot keys of a desktop. Its functions are what the user and other programs do.
class FakeHotKeys : public HotKeyService {
public:
    using Combination = std::pair<KeyPosition, std::uint32_t>;

    std::optional<HandlerRef> installHandler(Handler onPressed) override
    {
        if (refusesHandler)
            return std::nullopt;
        m_handlers.push_back(std::move(onPressed));
        return static_cast<HandlerRef>(m_handlers.size());
    }
    Registration registerHotKey(KeyPosition keyCode, std::uint32_t modifiers,
                                const HotKeyIdentifier &identifier,
                                OutcomeObserver onOutcome) override
    {
        const Combination wanted = {keyCode, modifiers};
        constexpr std::uint32_t sufficient = 256 | 2048 | 4096;
        if ((modifiers & sufficient) == 0)
            return {ShortcutOutcome::refused(ShortcutRefusal::TypesCharacter), {}};
        constexpr std::uint32_t known = sufficient | 512;
        constexpr KeyPosition lastKey{127};
        constexpr KeyPosition firstModifierKey{54};
        constexpr KeyPosition lastModifierKey{63};
        const bool isModifierKey = keyCode >= firstModifierKey && keyCode <= lastModifierKey;
        if (keyCode > lastKey || isModifierKey || (modifiers & ~known) != 0
            || takenByOthers.contains(wanted) || isRegistered(wanted))
            return {ShortcutOutcome::refused(), {}};
        const int handle = m_nextHandle++;
        m_registered.emplace(handle, Taken{wanted, identifier, std::move(onOutcome)});
        return {firstAnswer, Subscription([this, handle] { unregister(handle); })};
    }
    ShortcutOutcome outcomeWithoutKeys(const HotKeyIdentifier & /*identifier*/) const override
    {
        return withoutKeys;
    }
    std::unique_ptr<Suspension> suspend() override { return std::make_unique<Counted>(*this); }

    /// Presses the keys; true if one of our hot keys was pressed.
    bool press(KeyPosition keyCode, std::uint32_t modifiers)
    {
        if (suspensions > 0)
            return false;
        for (const auto &[handle, registration] : m_registered) {
            if (registration.combination != Combination{keyCode, modifiers})
                continue;
            pressed(registration.identifier);
            return true;
        }
        return false;
    }
    void pressed(const std::optional<HotKeyIdentifier> &identifier)
    {
        // A copy: a handler may unregister the hot key.
        for (const Handler &handler : std::vector(m_handlers))
            handler(identifier);
    }
    /// The desktop answers, or changes its mind.
    void answer(const Combination &combination, const ShortcutOutcome &outcome)
    {
        // A copy: whoever is told may register others.
        for (const auto &[handle, taken] : std::map(m_registered)) {
            if (taken.combination == combination)
                taken.onOutcome(outcome);
        }
    }
    bool isRegistered(const Combination &combination) const
    {
        for (const auto &[handle, registration] : m_registered) {
            if (registration.combination == combination)
                return true;
        }
        return false;
    }
    std::size_t registrationCount() const { return m_registered.size(); }
    std::size_t handlerCount() const { return m_handlers.size(); }

    std::set<Combination> takenByOthers;
    /// What registering says of a combination that can be had.
    ShortcutOutcome firstAnswer = ShortcutOutcome::bound();
    /// What a hot key is that has no combination.
    ShortcutOutcome withoutKeys;
    bool refusesHandler = false;
    int unregistrations = 0;
    int suspensions = 0;
    /// Called at the start of each unregistration.
    std::function<void()> onUnregister;

private:
    struct Taken {
        Combination combination;
        HotKeyIdentifier identifier;
        OutcomeObserver onOutcome;
    };
    struct Counted : Suspension {
        explicit Counted(FakeHotKeys &keys)
            : m_keys(keys)
        {
            ++m_keys.suspensions;
        }
        ~Counted() override { --m_keys.suspensions; }
        FakeHotKeys &m_keys;
    };

    void unregister(int handle)
    {
        if (onUnregister)
            onUnregister();
        if (m_registered.erase(handle) > 0)
            ++unregistrations;
    }

    std::vector<Handler> m_handlers;
    std::map<int, Taken> m_registered;
    int m_nextHandle = 1;
};

} // namespace corvane::test
