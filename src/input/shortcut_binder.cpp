#include "input/shortcut_binder.h"

#include <utility>

namespace corvane {

ShortcutBinder::ShortcutBinder(HotKeyCenter &center, Stored shelfShortcut, Stored viewAllShortcut)
    : m_center(center)
    , m_shelfShortcut(std::move(shelfShortcut))
    , m_viewAllShortcut(std::move(viewAllShortcut))
{
    m_center.onOutcomeChanged = m_lifetime.guard(
        [this](HotKeyCenter::Binding binding) { note(binding, m_center.outcome(binding)); });
}

bool ShortcutBinder::bindShelf()
{
    return bind(m_shelfShortcut, HotKeyCenter::Binding::Shelf, &ShortcutBinder::onToggleShelf);
}

bool ShortcutBinder::bindViewAll()
{
    return bind(m_viewAllShortcut, HotKeyCenter::Binding::ViewAll,
                &ShortcutBinder::onToggleViewAll);
}

bool ShortcutBinder::bind(HotKeyCenter::Binding binding)
{
    return binding == HotKeyCenter::Binding::Shelf ? bindShelf() : bindViewAll();
}

void ShortcutBinder::rebind(HotKeyCenter::Binding changed)
{
    using enum HotKeyCenter::Binding;
    m_center.unregister(Shelf);
    m_center.unregister(ViewAll);
    bind(changed == Shelf ? ViewAll : Shelf);
    bind(changed);
}

void ShortcutBinder::retryRefused()
{
    for (const auto &[binding, outcome] : std::map(m_outcomes)) {
        if (outcome.isRefused())
            bind(binding);
    }
}

ShortcutOutcome ShortcutBinder::outcome(HotKeyCenter::Binding binding) const
{
    const auto found = m_outcomes.find(binding);
    return found == m_outcomes.end() ? ShortcutOutcome() : found->second;
}

Subscription ShortcutBinder::observeOutcomes(std::function<void()> observer)
{
    return m_observers.subscribe(std::move(observer));
}

void ShortcutBinder::note(HotKeyCenter::Binding binding, const ShortcutOutcome &outcome)
{
    if (outcome == this->outcome(binding))
        return;
    m_outcomes[binding] = outcome;
    m_observers.notify();
}

bool ShortcutBinder::bind(const Stored &shortcut, HotKeyCenter::Binding binding,
                          std::function<void()> ShortcutBinder::*action)
{
    const bool isNotRefused = m_center.apply(shortcut(), binding, m_lifetime.guard([this, action] {
        // A copy: the action may replace itself.
        if (const auto run = this->*action)
            run();
    }));
    note(binding, m_center.outcome(binding));
    return isNotRefused;
}

} // namespace corvane
