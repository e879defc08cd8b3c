#include "input/shortcut_binder.h"

#include <utility>

namespace corvane {

ShortcutBinder::ShortcutBinder(HotKeyCenter &center, Stored shelfShortcut, Stored viewAllShortcut)
    : m_center(center)
    , m_shelfShortcut(std::move(shelfShortcut))
    , m_viewAllShortcut(std::move(viewAllShortcut))
{
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
    for (const HotKeyCenter::Binding binding : std::set(m_refused))
        bind(binding);
}

bool ShortcutBinder::bind(const Stored &shortcut, HotKeyCenter::Binding binding,
                          std::function<void()> ShortcutBinder::*action)
{
    const bool isBound = m_center.apply(shortcut(), binding, m_lifetime.guard([this, action] {
        // A copy: it may replace itself.
        if (const auto run = this->*action)
            run();
    }));
    if (isBound)
        m_refused.erase(binding);
    else
        m_refused.insert(binding);
    return isBound;
}

} // namespace corvane
