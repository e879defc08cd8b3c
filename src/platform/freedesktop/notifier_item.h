#pragma once

#include "platform/freedesktop/dbus_menu.h"
#include "platform/freedesktop/notifier_types.h"
#include "platform/status_item.h"

#include <QDBusObjectPath>
#include <QDBusServiceWatcher>
#include <QObject>

#include <functional>
#include <utility>

namespace corvane {

/// A status item on the session bus: org.kde.StatusNotifierItem with its menu, for panels that show
/// such items. Where they gather, the watcher, may come and go; the item is handed in to each one.
///
/// Nothing is asked of panels: they come for the icon and the menu when they want them, and nothing
/// waits for an answer.
class NotifierItem : public QObject, public StatusItem {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    Q_PROPERTY(QString Category READ category)
    Q_PROPERTY(QString Id READ itemId)
    Q_PROPERTY(QString Title READ title)
    Q_PROPERTY(QString Status READ status)
    Q_PROPERTY(int WindowId READ windowId)
    Q_PROPERTY(QString IconName READ iconName)
    Q_PROPERTY(corvane::NotifierPixmaps IconPixmap READ iconPixmap)
    Q_PROPERTY(corvane::NotifierToolTip ToolTip READ toolTip)
    Q_PROPERTY(bool ItemIsMenu READ itemIsMenu)
    Q_PROPERTY(QDBusObjectPath Menu READ menuPath)

public:
    /// The name that the icon goes by in the panel's settings.
    explicit NotifierItem(QString title);
    ~NotifierItem() override;

    /// Begins to look for a watcher. `onAvailability` is told soon whether there is one, and again
    /// whenever that changes.
    void start(std::function<void(bool isAvailable)> onAvailability);
    /// Opens the menu at the pointer, for panels that leave it to us.
    void setMenuOpener(std::function<void()> open) { m_openMenu = std::move(open); }
    void setForeground(const QColor &foreground);

    void setIcon(Icon icon) override;
    void setToolTip(const QString &toolTip) override;
    void setMenu(Menu menu) override;
    void menuChanged() override;

    static QString category() { return QStringLiteral("ApplicationStatus"); }
    QString itemId() const { return m_title.toLower(); }
    QString title() const { return m_title; }
    static QString status() { return QStringLiteral("Active"); }
    static int windowId() { return 0; }
    /// None: a named icon could not be drawn from the number of items.
    static QString iconName() { return {}; }
    NotifierPixmaps iconPixmap() const;
    NotifierToolTip toolTip() const;
    /// A click opens the menu.
    static bool itemIsMenu() { return true; }
    static QDBusObjectPath menuPath();

    Q_INVOKABLE Q_SCRIPTABLE void Activate(int x, int y);
    Q_INVOKABLE Q_SCRIPTABLE void ContextMenu(int x, int y);
    // The middle button and the wheel do nothing; the panels ask for them all the same.
    Q_INVOKABLE Q_SCRIPTABLE void SecondaryActivate(int x, int y);
    Q_INVOKABLE Q_SCRIPTABLE void Scroll(int delta, const QString &orientation);

Q_SIGNALS:
    Q_SCRIPTABLE void NewIcon();
    Q_SCRIPTABLE void NewToolTip();

private:
    void watcherChanged(bool isThere);
    void exportObjects();
    void handIn() const;

    QString m_title;
    QString m_toolTip;
    Icon m_icon;
    QColor m_foreground = Qt::white;
    DBusMenu m_menu;
    QDBusServiceWatcher m_watcher;
    bool m_isExported = false;
    std::function<void(bool)> m_onAvailability;
    std::function<void()> m_openMenu;
};

} // namespace corvane
