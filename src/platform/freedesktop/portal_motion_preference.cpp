#include "platform/freedesktop/portal_motion_preference.h"

#include <QApplication>
#include <QStyle>

namespace corvane {

namespace {

const PortalSettings::Key reducedMotion{QStringLiteral("org.freedesktop.appearance"),
                                        QStringLiteral("reduced-motion")};
const PortalSettings::Key gnomeAnimations{QStringLiteral("org.gnome.desktop.interface"),
                                          QStringLiteral("enable-animations")};
const PortalSettings::Key kdeDurations{QStringLiteral("org.kde.kdeglobals.KDE"),
                                       QStringLiteral("AnimationDurationFactor")};

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
    : m_settings(
        {reducedMotion, gnomeAnimations, kdeDurations},
        [this](const PortalSettings::Key &key, const QVariant &value) { take(key, value); })
{
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

void PortalMotionPreference::take(const PortalSettings::Key &key, const QVariant &value)
{
    if (key == reducedMotion)
        m_reducedMotion = value.toUInt() == 1;
    else if (key == gnomeAnimations)
        m_animationsEnabled = value.toBool();
    else
        m_animatesAtOnce = isZero(value);
}

} // namespace corvane
