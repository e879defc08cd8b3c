#include "platform/qt/desktop/window_roles.h"

#include "platform/qt/desktop/announcements.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QWidget>

#include <memory>

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

    int childCount() const override
    {
        return QAccessibleWidget::childCount() + (m_announcements ? m_announcements->count() : 0);
    }
    QAccessibleInterface *child(int index) const override
    {
        const int own = QAccessibleWidget::childCount();
        if (index < own)
            return QAccessibleWidget::child(index);
        return m_announcements ? m_announcements->at(index - own) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        const int announced = m_announcements ? m_announcements->indexOf(child) : -1;
        return announced < 0 ? QAccessibleWidget::indexOfChild(child)
                             : QAccessibleWidget::childCount() + announced;
    }

    void announce(const QString &text, MainQueue &queue)
    {
        if (!m_announcements)
            m_announcements = std::make_unique<Announcements>(queue, *this);
        m_announcements->announce(text);
    }

protected:
    ~PlainWidget() override = default;

private:
    /// Null before the first one.
    std::unique_ptr<Announcements> m_announcements;
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

void announceIn(const QWidget &widget, const QString &text, MainQueue &queue)
{
    QWidget *const window = widget.window();
    if (!window->isVisible())
        return;
    auto *const told = dynamic_cast<PlainWidget *>(QAccessible::queryAccessibleInterface(window));
    if (told)
        told->announce(text, queue);
}

} // namespace corvane
