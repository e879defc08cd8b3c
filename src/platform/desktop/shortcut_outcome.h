#pragma once

#include <QString>

namespace corvane {

/// Why a shortcut is refused.
enum class ShortcutRefusal {
    /// Another program has it, or another shortcut of ours, or nobody can have it: no keyboard has
    /// its keys.
    Taken,
    /// It types a character: none of Command, Option and Control is held.
    TypesCharacter,
};

/// What has become of a shortcut that was to be bound.
struct ShortcutOutcome {
    enum class Kind {
        /// There is none, or it was never bound.
        Unset,
        /// The desktop has not answered yet.
        Pending,
        Bound,
        Refused,
        /// The desktop leaves it to the user, in its own settings.
        SetInDesktop,
    };

    Kind kind = Kind::Unset;
    /// Of one that is refused.
    ShortcutRefusal why = ShortcutRefusal::Taken;
    /// Of one that is bound how the desktop names its keys, empty where they are those that were
    /// asked for. Of one that is set in the desktop the command that a key is to be bound to there.
    QString text = {};

    static ShortcutOutcome pending() { return {.kind = Kind::Pending}; }
    static ShortcutOutcome bound(const QString &keys = {})
    {
        return {.kind = Kind::Bound, .text = keys};
    }
    static ShortcutOutcome refused(ShortcutRefusal why = ShortcutRefusal::Taken)
    {
        return {.kind = Kind::Refused, .why = why};
    }
    static ShortcutOutcome setInDesktop(const QString &command)
    {
        return {.kind = Kind::SetInDesktop, .text = command};
    }

    bool isRefused() const { return kind == Kind::Refused; }

    friend bool operator==(const ShortcutOutcome &, const ShortcutOutcome &) = default;
};

} // namespace corvane
