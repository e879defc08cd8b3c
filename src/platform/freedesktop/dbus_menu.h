#pragma once

#include "platform/freedesktop/notifier_types.h"
#include "platform/menu.h"

#include <QObject>

#include <functional>

namespace corvane {

/// A menu that a panel shows for us: com.canonical.dbusmenu, of one level.
///
/// It is built anew when the panel announces that it opens, and whenever the panel asks for all of
/// it. The root is item 0; the others are the rows' ids.
class DBusMenu : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
    Q_PROPERTY(uint Version READ version)
    Q_PROPERTY(QString TextDirection READ textDirection)
    Q_PROPERTY(QString Status READ status)
    Q_PROPERTY(QStringList IconThemePath READ iconThemePath)

public:
    void setBuilder(std::function<MenuRows()> build);
    /// Builds the menu anew for the panels that have a copy of it.
    void announceChange();

    static uint version() { return 3; }
    static QString textDirection();
    static QString status() { return QStringLiteral("normal"); }
    static QStringList iconThemePath() { return {}; }

    // The return value is the first result, references are those after it.
    Q_INVOKABLE Q_SCRIPTABLE uint GetLayout(int parentId, int recursionDepth,
                                            const QStringList &propertyNames,
                                            corvane::DBusMenuLayout &layout);
    Q_INVOKABLE Q_SCRIPTABLE QList<corvane::DBusMenuProperties>
    GetGroupProperties(const QList<int> &ids, const QStringList &propertyNames) const;
    Q_INVOKABLE Q_SCRIPTABLE QDBusVariant GetProperty(int id, const QString &name) const;
    Q_INVOKABLE Q_SCRIPTABLE void Event(int id, const QString &name, const QDBusVariant &data,
                                        uint timestamp);
    Q_INVOKABLE Q_SCRIPTABLE QList<int> EventGroup(const QList<corvane::DBusMenuEvent> &events);
    Q_INVOKABLE Q_SCRIPTABLE bool AboutToShow(int id);
    Q_INVOKABLE Q_SCRIPTABLE QList<int> AboutToShowGroup(const QList<int> &ids,
                                                         QList<int> &idErrors);

Q_SIGNALS:
    Q_SCRIPTABLE void LayoutUpdated(uint revision, int parent);

private:
    /// Whether the menu looks different from before; then panels are told so.
    bool rebuild();
    const MenuRow *find(int id) const;
    /// False if there is no such item.
    bool handleEvent(int id, const QString &name);

    std::function<MenuRows()> m_build;
    MenuRows m_rows;
    uint m_revision = 1;
};

} // namespace corvane
