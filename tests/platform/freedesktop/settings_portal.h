#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QObject>
#include <QVariantMap>

namespace corvane::test {

/// The settings portal, on a connection of its own.
class SettingsPortal : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    SettingsPortal()
    {
        bus.registerObject(path, this,
                           QDBusConnection::ExportScriptableInvokables
                               | QDBusConnection::ExportScriptableSignals);
        bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
    }
    ~SettingsPortal() override
    {
        bus.unregisterService(QStringLiteral("org.freedesktop.portal.Desktop"));
        QDBusConnection::disconnectFromBus(QStringLiteral("portal"));
    }

    Q_INVOKABLE Q_SCRIPTABLE QDBusVariant Read(const QString &group, const QString &key)
    {
        ++reads;
        // One variant more than is needed, as the real one does.
        return QDBusVariant(QVariant::fromValue(QDBusVariant(values.value(group + u'/' + key))));
    }

    void change(const QString &group, const QString &key, const QVariant &value)
    {
        auto signal
            = QDBusMessage::createSignal(path, QStringLiteral("org.freedesktop.portal.Settings"),
                                         QStringLiteral("SettingChanged"));
        signal << group << key << QVariant::fromValue(QDBusVariant(value));
        bus.send(signal);
    }

    const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
    QDBusConnection bus
        = QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("portal"));
    QVariantMap values;
    int reads = 0;
};

} // namespace corvane::test
