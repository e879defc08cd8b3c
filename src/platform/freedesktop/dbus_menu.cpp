#include "platform/freedesktop/dbus_menu.h"

#include <QGuiApplication>

#include <algorithm>
#include <utility>

namespace corvane {

namespace {

constexpr int rootId = 0;

QVariantMap chosen(const QVariantMap &all, const QStringList &names)
{
    if (names.isEmpty())
        return all;
    QVariantMap some;
    for (const QString &name : names) {
        const auto found = all.constFind(name);
        if (found != all.constEnd())
            some.insert(name, *found);
    }
    return some;
}

QVariantMap rootProperties()
{
    return {{QStringLiteral("children-display"), QStringLiteral("submenu")}};
}

QVariantMap propertiesOf(const MenuRow &row)
{
    if (row.isSeparator())
        return {{QStringLiteral("type"), QStringLiteral("separator")}};
    QString label = row.title;
    // A single one would underline the letter after it.
    label.replace(QLatin1Char('_'), QLatin1String("__"));
    QVariantMap properties{{QStringLiteral("label"), label}};
    const QStringList keys = row.keyEquivalent.names();
    if (!keys.isEmpty())
        properties.insert(QStringLiteral("shortcut"), QVariant::fromValue(DBusMenuShortcut{keys}));
    return properties;
}

} // namespace

QString DBusMenu::textDirection()
{
    return QGuiApplication::isRightToLeft() ? QStringLiteral("rtl") : QStringLiteral("ltr");
}

void DBusMenu::setBuilder(std::function<MenuRows()> build)
{
    m_build = std::move(build);
}

void DBusMenu::announceChange()
{
    // Nobody has a copy yet.
    if (!m_rows.isEmpty())
        rebuild();
}

bool DBusMenu::rebuild()
{
    MenuRows rows = m_build ? m_build() : MenuRows();
    const bool isTheSame = std::equal(
        rows.cbegin(), rows.cend(), m_rows.cbegin(), m_rows.cend(),
        [](const MenuRow &one, const MenuRow &other) { return one.showsTheSameAs(other); });
    // Whoever asks first has seen nothing else before.
    const bool isFirst = m_rows.isEmpty();
    m_rows = std::move(rows);
    if (isTheSame || isFirst)
        return false;
    // Not only for the one who caused it: there may be several panels.
    Q_EMIT LayoutUpdated(++m_revision, rootId);
    return true;
}

const MenuRow *DBusMenu::find(int id) const
{
    const auto found = std::find_if(m_rows.cbegin(), m_rows.cend(),
                                    [id](const MenuRow &row) { return row.id == id; });
    return found != m_rows.cend() ? &*found : nullptr;
}

uint DBusMenu::GetLayout(int parentId, int recursionDepth, const QStringList &propertyNames,
                         DBusMenuLayout &layout)
{
    layout.id = parentId;
    if (parentId != rootId) {
        if (const MenuRow *row = find(parentId))
            layout.properties = chosen(propertiesOf(*row), propertyNames);
        return m_revision;
    }
    rebuild();
    layout.properties = chosen(rootProperties(), propertyNames);
    // Any negative depth means everything.
    if (recursionDepth == 0)
        return m_revision;
    for (const MenuRow &row : std::as_const(m_rows)) {
        const DBusMenuLayout child{row.id, chosen(propertiesOf(row), propertyNames), {}};
        layout.children << QDBusVariant(QVariant::fromValue(child));
    }
    return m_revision;
}

DBusMenuPropertiesList DBusMenu::GetGroupProperties(const QList<int> &ids,
                                                    const QStringList &propertyNames) const
{
    DBusMenuPropertiesList list;
    const auto isWanted = [&ids](int id) { return ids.isEmpty() || ids.contains(id); };
    if (isWanted(rootId))
        list << DBusMenuProperties{rootId, chosen(rootProperties(), propertyNames)};
    for (const MenuRow &row : m_rows) {
        if (isWanted(row.id))
            list << DBusMenuProperties{row.id, chosen(propertiesOf(row), propertyNames)};
    }
    return list;
}

QDBusVariant DBusMenu::GetProperty(int id, const QString &name) const
{
    const MenuRow *row = find(id);
    const QVariantMap properties = row ? propertiesOf(*row) : rootProperties();
    // The bus has no empty variant.
    return QDBusVariant(properties.value(name, QString()));
}

bool DBusMenu::handleEvent(int id, const QString &name)
{
    const MenuRow *row = find(id);
    if (!row && id != rootId)
        return false;
    if (row && name == QLatin1String("clicked") && row->action) {
        // After the panel has its answer: the row may end the program.
        QMetaObject::invokeMethod(this, row->action, Qt::QueuedConnection);
    } else if (id == rootId && name == QLatin1String("opened")) {
        rebuild();
    }
    return true;
}

void DBusMenu::Event(int id, const QString &name, const QDBusVariant &, uint)
{
    handleEvent(id, name);
}

QList<int> DBusMenu::EventGroup(const DBusMenuEvents &events)
{
    QList<int> errors;
    for (const DBusMenuEvent &event : events) {
        if (!handleEvent(event.id, event.name))
            errors << event.id;
    }
    return errors;
}

bool DBusMenu::AboutToShow(int id)
{
    return id == rootId && rebuild();
}

QList<int> DBusMenu::AboutToShowGroup(const QList<int> &ids, QList<int> &idErrors)
{
    QList<int> updatesNeeded;
    for (const int id : ids) {
        if (id != rootId && !find(id))
            idErrors << id;
        else if (AboutToShow(id))
            updatesNeeded << id;
    }
    return updatesNeeded;
}

} // namespace corvane
