#pragma once

#include <QRectF>
#include <QString>

#include <vector>

namespace corvane {

/// What assistive technologies, screen readers above all, are told of a panel, or of one thing on
/// it. A comparable value.
struct AccessibleNode {
    enum class Role { Window, List, ListItem, Button, CheckBox, Label, Notification };

    struct Action {
        /// What it is asked for by: not translated.
        QString name;
        /// What people read.
        QString text;

        friend bool operator==(const Action &, const Action &) = default;
    };
    /// The name of the action that does what a click does.
    static QString press() { return QStringLiteral("Press"); }

    /// The same thing has the same key as long as it is there, and nothing else in the tree has it.
    QString key;
    Role role = Role::Label;
    QString name;
    QString description;
    /// In the panel's coordinates, origin at its bottom left.
    QRectF frame;
    bool isEnabled = true;
    bool isSelectable = false;
    bool isSelected = false;
    bool isCheckable = false;
    bool isChecked = false;
    bool isFocusable = false;
    /// Keys act on it while the panel has the keyboard.
    bool isFocused = false;
    /// It is still being made.
    bool isBusy = false;
    /// What a click does comes first.
    std::vector<Action> actions;
    std::vector<AccessibleNode> children;

    friend bool operator==(const AccessibleNode &, const AccessibleNode &) = default;
};

} // namespace corvane
