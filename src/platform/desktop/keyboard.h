#pragma once

#include <QFlags>

namespace corvane {

/// Modifier keys by their role. In our own windows Command is Control or Super, since Linux users
/// copy with Control; Option is Alt.
enum class Modifier : unsigned {
    Shift = 1,
    Control = 2,
    Option = 4,
    Command = 8,
};
Q_DECLARE_FLAGS(Modifiers, Modifier)
Q_DECLARE_OPERATORS_FOR_FLAGS(Modifiers)

/// The keyboard's state apart from any event.
class Keyboard {
public:
    virtual ~Keyboard() = default;

    virtual Modifiers currentModifiers() const = 0;
};

} // namespace corvane
