#pragma once

#include "e2e/desktop/x_desktop.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QDBusVirtualObject>

#include <gtest/gtest.h>

#include <map>
#include <utility>

namespace corvane::e2e {

/// What tells programs of the user's settings on a desktop.
class SettingsPortal : public QDBusVirtualObject {
public:
    using Key = std::pair<QString, QString>;

    explicit SettingsPortal(const XDesktop &desktop)
        : m_bus(QDBusConnection::connectToBus(
            desktop.environment().value(QStringLiteral("DBUS_SESSION_BUS_ADDRESS")),
            QStringLiteral("settings portal")))
    {
        qDBusRegisterMetaType<QMap<QString, QVariantMap>>();
        m_bus.registerVirtualObject(path, this);
        EXPECT_TRUE(m_bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop")));
    }
    ~SettingsPortal() override { QDBusConnection::disconnectFromBus(m_bus.name()); }

    /// Tells everybody.
    void set(const Key &key, const QVariant &value)
    {
        m_values[key] = value;
        auto signal = QDBusMessage::createSignal(path, interface, QStringLiteral("SettingChanged"));
        signal << key.first << key.second << QVariant::fromValue(QDBusVariant(value));
        EXPECT_TRUE(m_bus.send(signal));
    }

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &bus) override
    {
        const QString method = message.interface() == interface ? message.member() : QString();
        const QVariantList arguments = message.arguments();
        if (method == QStringLiteral("ReadAll"))
            return bus.send(message.createReply(QVariant::fromValue(all())));
        const auto known
            = m_values.find({arguments.value(0).toString(), arguments.value(1).toString()});
        if (method.isEmpty() || known == m_values.end())
            return bus.send(
                message.createErrorReply(QStringLiteral("org.freedesktop.portal.Error.NotFound"),
                                         QStringLiteral("Requested setting not found")));
        const QVariant once = QVariant::fromValue(QDBusVariant(known->second));
        // `Read` wraps a value twice, as the real one does.
        return bus.send(message.createReply(
            method == QStringLiteral("Read") ? QVariant::fromValue(QDBusVariant(once)) : once));
    }

private:
    QMap<QString, QVariantMap> all() const
    {
        QMap<QString, QVariantMap> groups;
        for (const auto &[key, value] : m_values)
            groups[key.first].insert(key.second, value);
        return groups;
    }

    const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
    const QString interface = QStringLiteral("org.freedesktop.portal.Settings");
    QDBusConnection m_bus;
    std::map<Key, QVariant> m_values;
};

} // namespace corvane::e2e
