#pragma once

#include <QAccessible>
#include <QAccessibleInterface>
#include <QMetaEnum>
#include <QStringList>
#include <QWidget>

namespace corvane::test {

/// Of a kind that people press, choose or write in.
inline bool isControl(QAccessible::Role role)
{
    return role == QAccessible::Button || role == QAccessible::CheckBox
        || role == QAccessible::RadioButton || role == QAccessible::EditableText
        || role == QAccessible::Link || role == QAccessible::ComboBox || role == QAccessible::Slider
        || role == QAccessible::SpinBox;
}

/// What is read in a window and what a screen reader says of it, a line for each control that says
/// anything: its kind, its name (for a text the text itself), what is written in it, in brackets
/// what it is described by, and in braces its tool tip where that is another text. Controls that
/// people use are listed also where they say nothing.
///
/// Taken from the tree that screen readers walk, so nothing that is hidden counts.
inline void addSpokenTexts(QAccessibleInterface *control, QStringList &lines)
{
    if (!control || !control->isValid() || control->state().invisible)
        return;
    const auto role = control->role();
    // Of these the toolkit speaks, in its own way.
    if (role == QAccessible::ScrollBar)
        return;
    const QString name = control->text(QAccessible::Name);
    const QString description = control->text(QAccessible::Description);
    const bool isWritten = role == QAccessible::EditableText;
    const QString written = isWritten ? control->text(QAccessible::Value) : QString();
    const auto *widget = qobject_cast<QWidget *>(control->object());
    const QString toolTip = widget ? widget->toolTip() : QString();
    if (isControl(role) || !name.isEmpty() || !description.isEmpty() || !written.isEmpty()) {
        const auto roles = QMetaEnum::fromType<QAccessible::Role>();
        QString line = QString::fromLatin1(roles.valueToKey(role)) + QLatin1String(": ") + name;
        if (!written.isEmpty())
            line += QLatin1String(" = ") + written;
        if (!description.isEmpty())
            line += QLatin1String(" [") + description + QLatin1Char(']');
        if (!toolTip.isEmpty() && toolTip != description)
            line += QLatin1String(" {") + toolTip + QLatin1Char('}');
        lines << line.replace(QLatin1Char('\n'), QLatin1String("\\n"));
    }
    for (int i = 0; i < control->childCount(); ++i)
        addSpokenTexts(control->child(i), lines);
}

inline QStringList spokenTexts(QWidget &window)
{
    QStringList lines{QStringLiteral("title: ") + window.windowTitle()};
    QAccessibleInterface *const root = QAccessible::queryAccessibleInterface(&window);
    for (int i = 0; root && i < root->childCount(); ++i)
        addSpokenTexts(root->child(i), lines);
    return lines;
}

} // namespace corvane::test
