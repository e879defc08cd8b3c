#include "platform/display.h"
#include "platform/freedesktop/portal_motion_preference.h"

#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusVariant>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

/// The settings portal, on a connection of its own.
class Portal : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    Portal()
    {
        bus.registerObject(path, this,
                           QDBusConnection::ExportScriptableInvokables
                               | QDBusConnection::ExportScriptableSignals);
        bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
    }
    ~Portal() override
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

const auto appearance = QStringLiteral("org.freedesktop.appearance");
const auto gnome = QStringLiteral("org.gnome.desktop.interface");
const auto kde = QStringLiteral("org.kde.kdeglobals.KDE");
const auto durationFactor = QStringLiteral("AnimationDurationFactor");

} // namespace

TEST(MotionPreference, followsTheToolkitWhereThereIsNoPortal)
{
    const PortalMotionPreference preference;
    settle();
    EXPECT_FALSE(preference.reducesMotion());
}

TEST(MotionPreference, asksThePortalAndFollowsIt)
{
    Portal portal;
    portal.values = {{gnome + QStringLiteral("/enable-animations"), false},
                     {appearance + QStringLiteral("/reduced-motion"), 1U},
                     {kde + u'/' + durationFactor, QStringLiteral("1")}};
    const PortalMotionPreference preference;
    EXPECT_TRUE(eventually([&] { return preference.reducesMotion(); }));
    EXPECT_TRUE(eventually([&] { return portal.reads == 3; }));
    settle();
    portal.change(appearance, QStringLiteral("reduced-motion"), 0U);
    EXPECT_TRUE(eventually([&] { return !preference.reducesMotion(); }));
    portal.change(appearance, QStringLiteral("color-scheme"), 1U);
    portal.change(gnome, QStringLiteral("enable-animations"), false);
    settle();
    EXPECT_FALSE(preference.reducesMotion());
}

TEST(MotionPreference, isForLessWhereKdeAnimatesAtOnce)
{
    Portal portal;
    // As a text, as it stands in that desktop's file.
    portal.values = {{gnome + QStringLiteral("/enable-animations"), true},
                     {appearance + QStringLiteral("/reduced-motion"), 0U},
                     {kde + u'/' + durationFactor, QStringLiteral("0")}};
    const PortalMotionPreference preference;
    EXPECT_TRUE(eventually([&] { return preference.reducesMotion(); }));
    portal.change(kde, durationFactor, QStringLiteral("0.5"));
    EXPECT_TRUE(eventually([&] { return !preference.reducesMotion(); }));
    portal.change(kde, durationFactor, 0);
    EXPECT_TRUE(eventually([&] { return preference.reducesMotion(); }));
    portal.change(kde, durationFactor, QStringLiteral("none"));
    EXPECT_TRUE(eventually([&] { return !preference.reducesMotion(); }))
        << "what is no number says nothing";
}

} // namespace corvane::test

#include "motion_preference_test.moc"
