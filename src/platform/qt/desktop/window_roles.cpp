#include "platform/qt/desktop/window_roles.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QWidget>

namespace corvane {

namespace {

QAccessibleInterface *makeWindow(const QString &className, QObject *object)
{
    // Asked for the class of the object first, and for the plainest one last.
    if (className != QLatin1String("QWidget"))
        return nullptr;
    auto *const widget = qobject_cast<QWidget *>(object);
    if (!widget || !widget->isWindow())
        return nullptr;
    switch (widget->windowType()) {
    case Qt::Window:
        return new QAccessibleWidget(widget, QAccessible::Window);
    case Qt::Dialog:
        return new QAccessibleWidget(widget, QAccessible::Dialog);
    default:
        return nullptr;
    }
}

} // namespace

void installWindowRoles()
{
    QAccessible::installFactory(makeWindow);
}

} // namespace corvane
