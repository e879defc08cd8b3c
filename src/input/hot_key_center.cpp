#include "input/hot_key_center.h"

#include "platform/base/main_queue.h"

#include <utility>

namespace corvane {

HotKeyCenter::HotKeyCenter(HotKeyService &service, MainQueue &queue)
    : m_service(service)
    , m_queue(queue)
{
}

HotKeyCenter::~HotKeyCenter()
{
    unregisterAll();
}

bool HotKeyCenter::apply(const std::optional<Shortcut> &shortcut, Binding binding, Handler handler)
{
    unregister(binding);
    const std::uint32_t id = idOf(binding);
    m_handlers[id] = std::move(handler);
    if (!shortcut)
        return true;
    if (!m_eventHandler)
        installEventHandler();
    const auto changed = [this, binding, id](const ShortcutOutcome &outcome) {
        m_outcomes[id] = outcome;
        // A copy: the callback may replace itself.
        if (const auto tell = onOutcomeChanged)
            tell(binding);
    };
    auto registration = m_service.registerHotKey(shortcut->keyCode, shortcut->modifiers,
                                                 {signature, id}, m_lifetime.guard(changed));
    m_outcomes[id] = registration.outcome;
    if (registration.subscription.isActive())
        m_hotKeyRefs[id] = std::move(registration.subscription);
    return !registration.outcome.isRefused();
}

ShortcutOutcome HotKeyCenter::outcome(Binding binding) const
{
    const auto found = m_outcomes.find(idOf(binding));
    return found == m_outcomes.end() ? ShortcutOutcome() : found->second;
}

void HotKeyCenter::unregister(Binding binding)
{
    m_outcomes.erase(idOf(binding));
    m_hotKeyRefs.erase(idOf(binding));
}

void HotKeyCenter::unregisterAll()
{
    unregister(Binding::Shelf);
    unregister(Binding::ViewAll);
    m_handlers.clear();
}

void HotKeyCenter::installEventHandler()
{
    m_eventHandler = m_service.installHandler(
        m_lifetime.guard([this](const std::optional<HotKeyIdentifier> &pressed) {
            if (pressed)
                m_queue.async(m_lifetime.guard([this, id = pressed->id] { run(id); }));
        }));
}

void HotKeyCenter::run(std::uint32_t id) const
{
    const auto found = m_handlers.find(id);
    if (found == m_handlers.end())
        return;
    // A copy: the handler may apply another shortcut, which replaces it.
    const Handler handler = found->second;
    if (handler)
        handler();
}

} // namespace corvane
