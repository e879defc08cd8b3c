#pragma once

#include "input/hot_key_center.h"
#include "platform/base/callback_list.h"
#include "platform/base/lifetime.h"
#include "platform/base/subscription.h"

#include <functional>
#include <map>
#include <optional>

namespace corvane {

/// What has become of a shortcut that was to be bound.
enum class ShortcutOutcome {
    /// There is none, or it was never bound.
    Unset,
    Bound,
    /// Another program has it, or nobody can have it.
    Refused,
};

/// Binds the two stored shortcuts to what they do, and tells what has become of that: also later,
/// where another attempt has another outcome. Main thread only; the center must outlive it.
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
    ShortcutOutcome outcome(HotKeyCenter::Binding binding) const;
    /// Called after an outcome has become another one, until the subscription ends.
    Subscription observeOutcomes(std::function<void()> observer);

    /// What a press does, looked up when it comes. Each may be left empty.
    std::function<void()> onToggleShelf;
    std::function<void()> onToggleViewAll;

private:
    bool bind(HotKeyCenter::Binding binding);
    bool bind(const Stored &shortcut, HotKeyCenter::Binding binding,
              std::function<void()> ShortcutBinder::*action);

    void note(HotKeyCenter::Binding binding, ShortcutOutcome outcome);

    HotKeyCenter &m_center;
    Stored m_shelfShortcut;
    Stored m_viewAllShortcut;
    std::map<HotKeyCenter::Binding, ShortcutOutcome> m_outcomes;
    CallbackList<> m_observers;
    Lifetime m_lifetime;
};

} // namespace corvane
