#include "platform/freedesktop/portal_motion_preference.h"

#include "platform/freedesktop/session_bus.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QStyle>

namespace corvane {

namespace {

const auto service = QStringLiteral("org.freedesktop.portal.Desktop");
const auto path = QStringLiteral("/org/freedesktop/portal/desktop");
const auto interface = QStringLiteral("org.freedesktop.portal.Settings");
const auto appearance = QStringLiteral("org.freedesktop.appearance");
const auto reducedMotion = QStringLiteral("reduced-motion");
const auto gnome = QStringLiteral("org.gnome.desktop.interface");
const auto enableAnimations = QStringLiteral("enable-animations");
const auto kde = QStringLiteral("org.kde.kdeglobals.KDE");
const auto durationFactor = QStringLiteral("AnimationDurationFactor");

/// The portal wraps what it reads in one variant more than it needs.
QVariant unwrapped(QVariant value)
{
    while (value.metaType() == QMetaType::fromType<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

/// KDE's portal gives what stands in its files, a text as a rule.
bool isZero(const QVariant &value)
{
    bool isNumber = false;
    return value.toDouble(&isNumber) == 0 && isNumber;
}

bool styleDoesNotMove()
{
    return qobject_cast<QApplication *>(QCoreApplication::instance())
        && QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) == 0;
}

} // namespace

PortalMotionPreference::PortalMotionPreference()
{
    if (!session_bus::isAvailable())
        return;
    QDBusConnection::sessionBus().connect(service, path, interface,
                                          QStringLiteral("SettingChanged"), this,
                                          SLOT(settingChanged(QString, QString, QDBusVariant)));
    ask(appearance, reducedMotion);
    ask(gnome, enableAnimations);
    ask(kde, durationFactor);
}

bool PortalMotionPreference::reducesMotion() const
{
    if (m_animatesAtOnce)
        return true;
    if (m_reducedMotion)
        return *m_reducedMotion;
    if (m_animationsEnabled)
        return !*m_animationsEnabled;
    return styleDoesNotMove();
}

void PortalMotionPreference::settingChanged(const QString &group, const QString &key,
                                            const QDBusVariant &value)
{
    take(group, key, value.variant());
}

void PortalMotionPreference::ask(const QString &group, const QString &key)
{
    auto call = QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("Read"));
    call << group << key;
    auto *watcher
        = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, group, key] {
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        if (!reply.isError())
            take(group, key, reply.value().variant());
        watcher->deleteLater();
    });
}

void PortalMotionPreference::take(const QString &group, const QString &key, const QVariant &value)
{
    const QVariant plain = unwrapped(value);
    if (group == appearance && key == reducedMotion)
        m_reducedMotion = plain.toUInt() == 1;
    else if (group == gnome && key == enableAnimations)
        m_animationsEnabled = plain.toBool();
    else if (group == kde && key == durationFactor)
        m_animatesAtOnce = isZero(plain);
}

} // namespace corvane
