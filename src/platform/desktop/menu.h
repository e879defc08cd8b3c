#pragma once

#include "platform/desktop/keyboard.h"

#include <QKeySequence>
#include <QList>
#include <QString>

#include <functional>

namespace corvane {

/// The keys that do the same as a menu's row. They are only shown beside the row; the menu does not
/// react to them. Here Command is the Super key and Control is Control.
struct KeyEquivalent {
    /// The character that the key types without modifiers, in lower case ("k", ","), or the key's
    /// sign or name ("↩", "f5"); empty for none.
    QString key;
    Modifiers modifiers;

    /// The same for Qt, which calls Super "Meta"; empty for none.
    QKeySequence sequence() const;

    friend bool operator==(const KeyEquivalent &, const KeyEquivalent &) = default;
};

/// One row of a menu. One without a title is a separator.
struct MenuRow {
    /// Identifies the row whenever the menu is built.
    int id = 0;
    QString title;
    KeyEquivalent keyEquivalent;
    /// Called when the row is chosen. May be empty.
    std::function<void()> action;

    bool isSeparator() const { return title.isEmpty(); }
    /// Whether both look the same.
    bool showsTheSameAs(const MenuRow &other) const;
};

using MenuRows = QList<MenuRow>;

} // namespace corvane
