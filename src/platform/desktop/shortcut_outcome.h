#pragma once

#include <QString>

namespace corvane {

/// Why a shortcut is refused.
enum class ShortcutRefusal {
    /// Another program or another shortcut of ours has it, or no keyboard can type it.
    Taken,
    /// It types a character: none of Command, Option and Control is held.
    TypesCharacter,
};

/// Whether a shortcut is bound, and if not, why.
struct ShortcutOutcome {
    enum class Kind {
        /// No shortcut is stored, or it was not tried yet.
        Unset,
        /// The desktop has not answered yet.
        Pending,
        Bound,
        Refused,
        /// The desktop leaves it to the user, in its own settings.
        SetInDesktop,
    };

    Kind kind = Kind::Unset;
    /// Only for a refused shortcut.
    ShortcutRefusal why = ShortcutRefusal::Taken;
    /// For a bound shortcut, how the desktop names its keys; empty if they are those that were
    /// asked for. For one that is set in the desktop, the command that the user binds a key to
    /// there.
    QString text = {};
    /// For one that is set in the desktop, the line of the desktop's settings that binds the keys
    /// which were asked for to the command; empty where we do not know how such a line is written.
    QString settingsLine = {};

    static ShortcutOutcome pending() { return {.kind = Kind::Pending}; }
    static ShortcutOutcome bound(const QString &keys = {})
    {
        return {.kind = Kind::Bound, .text = keys};
    }
    static ShortcutOutcome refused(ShortcutRefusal why = ShortcutRefusal::Taken)
    {
        return {.kind = Kind::Refused, .why = why};
    }
    static ShortcutOutcome setInDesktop(const QString &command, const QString &settingsLine = {})
    {
        return {.kind = Kind::SetInDesktop, .text = command, .settingsLine = settingsLine};
    }

    bool isRefused() const { return kind == Kind::Refused; }

    friend bool operator==(const ShortcutOutcome &, const ShortcutOutcome &) = default;
};

} // namespace corvane
