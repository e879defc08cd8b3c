#pragma once

#include "input/hot_key_center.h"
#include "platform/base/lifetime.h"

#include <functional>
#include <optional>
#include <set>

namespace corvane {

/// Binds the two stored shortcuts to what they do. Main thread only; the center must outlive it.
class ShortcutBinder {
public:
    /// Reads a stored shortcut at the time of binding; none if there is none.
    using Stored = std::function<std::optional<Shortcut>()>;

    ShortcutBinder(HotKeyCenter &center, Stored shelfShortcut, Stored viewAllShortcut);

    /// Each gives false if the shortcut was refused.
    bool bindShelf();
    bool bindViewAll();
    /// Binds both anew after one was changed: what it gave up may be what the other one waits for.
    /// Where both are the same now, the other one keeps it.
    void rebind(HotKeyCenter::Binding changed);
    /// Tries once more what was refused: whoever held it may have let go.
    void retryRefused();
    /// Whether the shortcut was refused when it was last bound.
    bool isRefused(HotKeyCenter::Binding binding) const { return m_refused.contains(binding); }

    /// What a press does, looked up when it comes. Each may be left empty.
    std::function<void()> onToggleShelf;
    std::function<void()> onToggleViewAll;

private:
    bool bind(HotKeyCenter::Binding binding);
    bool bind(const Stored &shortcut, HotKeyCenter::Binding binding,
              std::function<void()> ShortcutBinder::*action);

    HotKeyCenter &m_center;
    Stored m_shelfShortcut;
    Stored m_viewAllShortcut;
    std::set<HotKeyCenter::Binding> m_refused;
    Lifetime m_lifetime;
};

} // namespace corvane
