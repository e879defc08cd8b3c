#include "platform/freedesktop/notifier_types.h"

#include <QDBusMetaType>

namespace corvane {

namespace {

template<typename... Fields>
QDBusArgument &write(QDBusArgument &out, const Fields &...fields)
{
    out.beginStructure();
    (out << ... << fields);
    out.endStructure();
    return out;
}

template<typename... Fields>
const QDBusArgument &read(const QDBusArgument &in, Fields &...fields)
{
    in.beginStructure();
    (in >> ... >> fields);
    in.endStructure();
    return in;
}

} // namespace

void registerNotifierTypes()
{
    qDBusRegisterMetaType<NotifierPixmap>();
    qDBusRegisterMetaType<NotifierPixmaps>();
    qDBusRegisterMetaType<NotifierToolTip>();
    qDBusRegisterMetaType<DBusMenuLayout>();
    qDBusRegisterMetaType<DBusMenuProperties>();
    qDBusRegisterMetaType<DBusMenuPropertiesList>();
    qDBusRegisterMetaType<DBusMenuEvent>();
    qDBusRegisterMetaType<DBusMenuEvents>();
    qDBusRegisterMetaType<DBusMenuShortcut>();
    qDBusRegisterMetaType<QList<QDBusVariant>>();
}

QDBusArgument &operator<<(QDBusArgument &out, const NotifierPixmap &pixmap)
{
    return write(out, pixmap.width, pixmap.height, pixmap.pixels);
}

const QDBusArgument &operator>>(const QDBusArgument &in, NotifierPixmap &pixmap)
{
    return read(in, pixmap.width, pixmap.height, pixmap.pixels);
}

QDBusArgument &operator<<(QDBusArgument &out, const NotifierToolTip &toolTip)
{
    return write(out, toolTip.iconName, toolTip.pixmaps, toolTip.title, toolTip.text);
}

const QDBusArgument &operator>>(const QDBusArgument &in, NotifierToolTip &toolTip)
{
    return read(in, toolTip.iconName, toolTip.pixmaps, toolTip.title, toolTip.text);
}

QDBusArgument &operator<<(QDBusArgument &out, const DBusMenuLayout &layout)
{
    return write(out, layout.id, layout.properties, layout.children);
}

const QDBusArgument &operator>>(const QDBusArgument &in, DBusMenuLayout &layout)
{
    return read(in, layout.id, layout.properties, layout.children);
}

QDBusArgument &operator<<(QDBusArgument &out, const DBusMenuProperties &properties)
{
    return write(out, properties.id, properties.properties);
}

const QDBusArgument &operator>>(const QDBusArgument &in, DBusMenuProperties &properties)
{
    return read(in, properties.id, properties.properties);
}

QDBusArgument &operator<<(QDBusArgument &out, const DBusMenuEvent &event)
{
    return write(out, event.id, event.name, event.data, event.timestamp);
}

const QDBusArgument &operator>>(const QDBusArgument &in, DBusMenuEvent &event)
{
    return read(in, event.id, event.name, event.data, event.timestamp);
}

} // namespace corvane
