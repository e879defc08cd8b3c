#include "input/first_hot_keys.h"

#include "platform/base/checked_math.h"
#include "platform/desktop/stored_modifiers.h"

#include <algorithm>
#include <utility>

namespace corvane {

class FirstHotKeys::Counted : public Suspension {
public:
    explicit Counted(FirstHotKeys &keys)
        : m_keys(keys)
    {
        if (m_keys.m_suspensions++ == 0 && m_keys.m_chosen)
            m_keys.m_suspended = m_keys.m_chosen->suspend();
    }
    ~Counted() override { m_keys.resume(); }

private:
    FirstHotKeys &m_keys;
};

FirstHotKeys::FirstHotKeys(std::vector<OptionalHotKeys *> services)
    : m_services(std::move(services))
    , m_chosen(firstOf(m_services))
{
    for (OptionalHotKeys *service : m_services)
        m_presences.push_back(service->observePresence([this] { choose(); }));
}

/// One of which nothing is known yet is waited for: keys would else move a moment later.
OptionalHotKeys *FirstHotKeys::firstOf(const std::vector<OptionalHotKeys *> &services)
{
    using enum OptionalHotKeys::Presence;
    const auto found = std::ranges::find_if(
        services, [](const OptionalHotKeys *service) { return service->presence() != Absent; });
    return found != services.end() && (*found)->presence() == There ? *found : nullptr;
}

void FirstHotKeys::choose()
{
    OptionalHotKeys *const next = firstOf(m_services);
    if (next == m_chosen)
        return;
    m_suspended.reset();
    for (auto &[handle, hotKey] : m_hotKeys)
        hotKey.taken.end();
    m_chosen = next;
    std::vector<std::pair<Handle, ShortcutOutcome>> outcomes;
    for (auto &[handle, hotKey] : m_hotKeys)
        outcomes.emplace_back(handle, take(handle, hotKey));
    if (m_chosen && m_suspensions > 0)
        m_suspended = m_chosen->suspend();
    const Lifetime::Token life = m_lifetime.token();
    for (const auto &[handle, outcome] : outcomes) {
        tell(handle, outcome);
        if (life.isOver())
            return;
    }
    if (const auto chosen = onChosen)
        chosen();
}

std::optional<HotKeyService::HandlerRef> FirstHotKeys::installHandler(Handler onPressed)
{
    const HandlerRef handler = m_handlers.add(std::move(onPressed));
    if (std::exchange(m_isListening, true))
        return handler;
    for (OptionalHotKeys *service : m_services)
        service->installHandler(m_lifetime.guard([this](const auto &pressed) {
            m_handlers.forEach([&](const Handler &tell) { tell(pressed); });
        }));
    return handler;
}

HotKeyService::Registration FirstHotKeys::registerHotKey(KeyPosition keyCode,
                                                         std::uint32_t modifiers,
                                                         const HotKeyIdentifier &identifier,
                                                         OutcomeObserver onOutcome)
{
    if ((modifiers & stored_modifiers::moreThanTyping) == 0)
        return {ShortcutOutcome::refused(ShortcutRefusal::TypesCharacter), {}};
    const bool isTwin = std::ranges::any_of(m_hotKeys, [&](const auto &other) {
        return other.second.keyCode == keyCode && other.second.modifiers == modifiers;
    });
    if (isTwin || (modifiers & ~stored_modifiers::all) != 0)
        return {ShortcutOutcome::refused(), {}};
    const Handle handle = std::exchange(m_nextHandle, checkedAdd(m_nextHandle, 1));
    HotKey hotKey = {keyCode, modifiers, identifier, std::move(onOutcome), {}, {}};
    const ShortcutOutcome outcome = take(handle, hotKey);
    if (outcome.isRefused())
        return {outcome, {}};
    hotKey.told = outcome;
    m_hotKeys.emplace(handle, std::move(hotKey));
    return {outcome, Subscription(m_lifetime.guard([this, handle] { unregister(handle); }))};
}

ShortcutOutcome FirstHotKeys::outcomeWithoutKeys(const HotKeyIdentifier &identifier) const
{
    return m_chosen ? m_chosen->outcomeWithoutKeys(identifier) : ShortcutOutcome();
}

ShortcutOutcome FirstHotKeys::take(Handle handle, HotKey &hotKey)
{
    if (!m_chosen)
        return ShortcutOutcome::pending();
    auto registration
        = m_chosen->registerHotKey(hotKey.keyCode, hotKey.modifiers, hotKey.identifier,
                                   m_lifetime.guard([this, handle](const ShortcutOutcome &outcome) {
                                       tell(handle, outcome);
                                   }));
    hotKey.taken = std::move(registration.subscription);
    return registration.outcome;
}

void FirstHotKeys::tell(Handle handle, const ShortcutOutcome &outcome)
{
    const auto found = m_hotKeys.find(handle);
    if (found == m_hotKeys.end() || std::exchange(found->second.told, outcome) == outcome)
        return;
    // A copy: whoever is told may unregister it.
    const OutcomeObserver onOutcome = found->second.onOutcome;
    if (onOutcome)
        onOutcome(outcome);
}

std::unique_ptr<HotKeyService::Suspension> FirstHotKeys::suspend()
{
    return std::make_unique<Counted>(*this);
}

void FirstHotKeys::resume()
{
    if (--m_suspensions == 0)
        m_suspended.reset();
}

} // namespace corvane
