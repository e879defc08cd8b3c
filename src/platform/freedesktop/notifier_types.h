#pragma once

#include <QDBusArgument>
#include <QDBusVariant>
#include <QList>
#include <QStringList>
#include <QVariantMap>

namespace corvane {

/// A picture as status items carry it, (iiay): 32 bits a pixel, alpha first, in network byte order.
struct NotifierPixmap {
    int width = 0;
    int height = 0;
    QByteArray pixels;
};
using NotifierPixmaps = QList<NotifierPixmap>;

/// (sa(iiay)ss)
struct NotifierToolTip {
    QString iconName;
    NotifierPixmaps pixmaps;
    QString title;
    QString text;
};

/// A menu's item with what hangs below it, (ia{sv}av).
struct DBusMenuLayout {
    int id = 0;
    QVariantMap properties;
    QList<QDBusVariant> children;
};

/// (ia{sv})
struct DBusMenuProperties {
    int id = 0;
    QVariantMap properties;
};
using DBusMenuPropertiesList = QList<DBusMenuProperties>;

/// (isvu)
struct DBusMenuEvent {
    int id = 0;
    QString name;
    QDBusVariant data;
    uint timestamp = 0;
};
using DBusMenuEvents = QList<DBusMenuEvent>;

/// aas: several key combinations, each a list of key names.
using DBusMenuShortcut = QList<QStringList>;

/// Makes all of the above known to the bus.
void registerNotifierTypes();

// The toolkit finds these by their types.
QDBusArgument &operator<<(QDBusArgument &out, const NotifierPixmap &pixmap);
const QDBusArgument &operator>>(const QDBusArgument &in, NotifierPixmap &pixmap);
QDBusArgument &operator<<(QDBusArgument &out, const NotifierToolTip &toolTip);
const QDBusArgument &operator>>(const QDBusArgument &in, NotifierToolTip &toolTip);
QDBusArgument &operator<<(QDBusArgument &out, const DBusMenuLayout &layout);
const QDBusArgument &operator>>(const QDBusArgument &in, DBusMenuLayout &layout);
QDBusArgument &operator<<(QDBusArgument &out, const DBusMenuProperties &properties);
const QDBusArgument &operator>>(const QDBusArgument &in, DBusMenuProperties &properties);
QDBusArgument &operator<<(QDBusArgument &out, const DBusMenuEvent &event);
const QDBusArgument &operator>>(const QDBusArgument &in, DBusMenuEvent &event);

} // namespace corvane

Q_DECLARE_METATYPE(corvane::NotifierPixmap)
Q_DECLARE_METATYPE(corvane::NotifierToolTip)
Q_DECLARE_METATYPE(corvane::DBusMenuLayout)
Q_DECLARE_METATYPE(corvane::DBusMenuProperties)
Q_DECLARE_METATYPE(corvane::DBusMenuEvent)
