#pragma once

#include "platform/desktop/motion_preference.h"

#include <QObject>

#include <optional>

class QDBusVariant;

namespace corvane {

/// The desktop's wish for less movement, from the settings portal: that of KDE's users who have
/// animations end at once, else the common key where the desktop has it, else GNOME's switch for
/// animations, else what the toolkit's style does. Asks in the background and follows changes;
/// until the first answer the toolkit decides.
class PortalMotionPreference : public QObject, public MotionPreference {
    Q_OBJECT

public:
    PortalMotionPreference();

    bool reducesMotion() const override;

private Q_SLOTS:
    void settingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    void ask(const QString &group, const QString &key);
    void take(const QString &group, const QString &key, const QVariant &value);

    std::optional<bool> m_reducedMotion;
    std::optional<bool> m_animationsEnabled;
    bool m_animatesAtOnce = false;
};

} // namespace corvane
