#pragma once

#include "input/hot_key_center.h"

#include <functional>
#include <memory>
#include <optional>

namespace corvane {

/// Binds the two stored shortcuts to what they do. Main thread only; the center must outlive it.
class ShortcutBinder {
public:
    /// Reads a stored shortcut at the time of binding; none if there is none.
    using Stored = std::function<std::optional<Shortcut>()>;

    ShortcutBinder(HotKeyCenter &center, Stored shelfShortcut, Stored viewAllShortcut);

    /// Each gives false if the shortcut was refused; to be called again whenever it was changed.
    bool bindShelf();
    bool bindViewAll();

    /// What a press does, looked up when it comes. Each may be left empty.
    std::function<void()> onToggleShelf;
    std::function<void()> onToggleViewAll;

private:
    bool bind(const Stored &shortcut, HotKeyCenter::Binding binding,
              std::function<void()> ShortcutBinder::*action);

    HotKeyCenter &m_center;
    Stored m_shelfShortcut;
    Stored m_viewAllShortcut;
    std::shared_ptr<ShortcutBinder *> m_self = std::make_shared<ShortcutBinder *>(this);
};

} // namespace corvane
