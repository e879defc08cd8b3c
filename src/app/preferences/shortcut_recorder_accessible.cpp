#include "app/preferences/shortcut_recorder_accessible.h"

#include "app/preferences/shortcut_recorder_view.h"

namespace corvane {

ShortcutRecorderAccessible::ShortcutRecorderAccessible(ShortcutRecorderView &view)
    : QAccessibleWidget(&view, QAccessible::Button)
    , m_view(view)
{
}

void ShortcutRecorderAccessible::install()
{
    static const bool isInstalled = [] {
        QAccessible::installFactory([](const QString &, QObject *object) -> QAccessibleInterface * {
            auto *const view = qobject_cast<ShortcutRecorderView *>(object);
            // The toolkit keeps it, and deletes it along with the view.
            return view ? new ShortcutRecorderAccessible(*view) : nullptr;
        });
        return true;
    }();
    Q_UNUSED(isInstalled)
}

QString ShortcutRecorderAccessible::text(QAccessible::Text kind) const
{
    if (kind != QAccessible::Name)
        return QAccessibleWidget::text(kind);
    const QString purpose = m_view.accessibleName();
    return purpose.isEmpty() ? m_view.text() : purpose + u": " + m_view.text();
}

QStringList ShortcutRecorderAccessible::actionNames() const
{
    return QStringList{pressAction()} + QAccessibleWidget::actionNames();
}

void ShortcutRecorderAccessible::doAction(const QString &name)
{
    if (name == pressAction())
        m_view.toggleRecording();
    else
        QAccessibleWidget::doAction(name);
}

} // namespace corvane
