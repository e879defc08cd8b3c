#include "platform/qt/desktop/window_roles.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QWidget>

namespace corvane {

namespace {

/// A widget that groups others has a name, such as the settings under one title.
bool isNamedGroup(const QWidget &widget)
{
    return !widget.accessibleName().isEmpty()
        && widget.findChild<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
}

/// A widget is asked for while it has no parent yet, and looks like a window then: what it is, is
/// found out each time.
class PlainWidget : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;

    QAccessible::Role role() const override
    {
        if (!widget()->isWindow())
            return isNamedGroup(*widget()) ? QAccessible::Grouping : QAccessibleWidget::role();
        switch (widget()->windowType()) {
        case Qt::Window:
            return QAccessible::Window;
        case Qt::Dialog:
            return QAccessible::Dialog;
        default:
            return QAccessibleWidget::role();
        }
    }

protected:
    ~PlainWidget() override = default;
};

QAccessibleInterface *makePlainWidget(const QString &className, QObject *object)
{
    // Asked for the class of the object first, and for the plainest one last.
    auto *const widget
        = className == QLatin1String("QWidget") ? qobject_cast<QWidget *>(object) : nullptr;
    return widget ? new PlainWidget(widget) : nullptr;
}

} // namespace

void installWindowRoles()
{
    QAccessible::installFactory(makePlainWidget);
}

} // namespace corvane
