#pragma once

#include <QAccessibleWidget>
#include <QObject>

namespace corvane {

/// Tells screen readers what widgets of that class are, which otherwise are fillers to them. To be
/// called in the constructor of the class.
template<typename Widget>
void speakAs(QAccessible::Role role)
{
    static QAccessible::Role spoken = role;
    static const bool isInstalled = [] {
        QAccessible::installFactory([](const QString &, QObject *object) -> QAccessibleInterface * {
            auto *const widget = dynamic_cast<Widget *>(object);
            // The toolkit keeps it, and deletes it along with the widget.
            return widget ? new QAccessibleWidget(widget, spoken) : nullptr;
        });
        return true;
    }();
    Q_UNUSED(isInstalled)
}

} // namespace corvane
