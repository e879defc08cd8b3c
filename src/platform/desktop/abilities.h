#pragma once

#include "platform/base/callback_list.h"

#include <functional>
#include <utility>

namespace corvane {

/// Why a session can do less than everything, as far as people are told.
enum class Reason {
    None,
    /// The display server was built or started without what it takes.
    ServerLacksExtensions,
    /// The desktop tells programs nothing of it, or leaves it to the user.
    KeptByDesktop,
};

/// How much of something a session can do. The first enumerator of an `Extent` means all of it; any
/// other one has a reason.
template<typename Extent>
struct Ability {
    Extent extent = Extent();
    Reason why = Reason::None;

    bool isFull() const { return extent == Extent(); }

    friend bool operator==(const Ability &, const Ability &) = default;
};

/// Where drags of other programs are noticed.
enum class Drags {
    Everywhere,
    /// Only once they have come to the part of the top edge where the shelf hangs.
    AtTheEdge,
    Unnoticed,
};

/// Whether a hidden shelf hears of the pointer at the top edge.
enum class TopEdge {
    Watched,
    Unwatched,
};

/// Whether clicks in other programs are heard of.
enum class ClicksElsewhere {
    Noticed,
    Unnoticed,
};

/// Where the user chooses the keys that reach us whichever program has the keyboard.
enum class ShortcutChoice {
    /// In our preferences, by pressing them.
    Here,
    InTheDesktop,
};

/// From when on the key that keeps what is dragged out has to be held.
enum class KeepingKey {
    /// At the moment of the drop is enough.
    AtTheDrop,
    BeforeTheDrag,
};

/// What people may have to be told of a session. Everything, unless it says otherwise.
struct Abilities {
    Ability<Drags> drags = {};
    Ability<TopEdge> topEdge = {};
    Ability<ClicksElsewhere> clicksElsewhere = {};
    Ability<ShortcutChoice> shortcutChoice = {};
    Ability<KeepingKey> keepingKey = {};

    friend bool operator==(const Abilities &, const Abilities &) = default;
};

/// The abilities of the session that the program runs in. They may change while it runs: a service
/// of the desktop answers late, or goes away. Main thread only.
class SessionAbilities {
public:
    explicit SessionAbilities(const Abilities &abilities = {})
        : m_now(abilities)
    {
    }

    const Abilities &now() const { return m_now; }
    /// The session says what they are from now on. The same as before is no news.
    void become(const Abilities &abilities)
    {
        if (std::exchange(m_now, abilities) != abilities)
            m_observers.notify();
    }
    /// Called after they have changed, until the subscription ends.
    Subscription observe(std::function<void()> observer)
    {
        return m_observers.subscribe(std::move(observer));
    }

private:
    Abilities m_now;
    CallbackList<> m_observers;
};

} // namespace corvane
