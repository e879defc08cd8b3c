#pragma once

#include "input/hot_key_center.h"
#include "platform/base/callback_list.h"
#include "platform/base/lifetime.h"
#include "platform/base/subscription.h"

#include <functional>
#include <map>
#include <optional>

namespace corvane {

/// Binds the two stored shortcuts to their actions, and reports whether that worked, also when the
/// desktop answers late, and after later attempts. Main thread only; the center must outlive it.
class ShortcutBinder {
public:
    /// Reads a stored shortcut at the time of binding; none if there is none.
    using Stored = std::function<std::optional<Shortcut>()>;

    ShortcutBinder(HotKeyCenter &center, Stored shelfShortcut, Stored viewAllShortcut);

    /// Each gives false if the shortcut was refused at once.
    bool bindShelf();
    bool bindViewAll();
    /// Binds both again after the user changed one: the other one may be waiting for the
    /// combination that was given up. If both are the same now, the other one keeps it.
    void rebind(HotKeyCenter::Binding changed);
    /// Tries refused shortcuts again; the program that had them may have released them.
    void retryRefused();
    ShortcutOutcome outcome(HotKeyCenter::Binding binding) const;
    /// Called after an outcome has changed, until the subscription ends.
    Subscription observeOutcomes(std::function<void()> observer);

    /// Called for a press. They may be replaced at any time, or left empty.
    std::function<void()> onToggleShelf;
    std::function<void()> onToggleViewAll;

private:
    bool bind(HotKeyCenter::Binding binding);
    bool bind(const Stored &shortcut, HotKeyCenter::Binding binding,
              std::function<void()> ShortcutBinder::*action);

    void note(HotKeyCenter::Binding binding, const ShortcutOutcome &outcome);

    HotKeyCenter &m_center;
    Stored m_shelfShortcut;
    Stored m_viewAllShortcut;
    std::map<HotKeyCenter::Binding, ShortcutOutcome> m_outcomes;
    CallbackList<> m_observers;
    Lifetime m_lifetime;
};

} // namespace corvane
