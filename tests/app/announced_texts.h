#pragma once

#include <QAccessible>
#include <QAccessibleInterface>
#include <QStringList>
#include <QWidget>

namespace corvane::test {

/// What screen readers were told to say at once of a window, as long as it can be read.
inline QStringList announcedIn(QWidget &window)
{
    QStringList texts;
    const QAccessibleInterface *const root = QAccessible::queryAccessibleInterface(&window);
    for (int i = 0; root && i < root->childCount(); ++i) {
        const QAccessibleInterface *const child = root->child(i);
        if (child->role() == QAccessible::Notification)
            texts << child->text(QAccessible::Name);
    }
    return texts;
}

} // namespace corvane::test
