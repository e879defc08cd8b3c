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

bool ShortcutBinder::bind(const Stored &shortcut, HotKeyCenter::Binding binding,
                          std::function<void()> ShortcutBinder::*action)
{
    return m_center.apply(shortcut(), binding, [weak = std::weak_ptr(m_self), action] {
        const auto self = weak.lock();
        if (!self)
            return;
        // A copy: it may replace itself.
        if (const auto run = (*self)->*action)
            run();
    });
}

} // namespace corvane
