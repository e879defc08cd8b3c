#pragma once

#include "platform/desktop/motion_preference.h"
#include "platform/freedesktop/portal_settings.h"

#include <optional>

namespace corvane {

/// The desktop's wish for less movement, from the settings portal: that of KDE's users who have
/// animations end at once, else the common key where the desktop has it, else GNOME's switch for
/// animations, else what the toolkit's style does. Asks in the background and follows changes;
/// until the first answer the toolkit decides.
class PortalMotionPreference : public MotionPreference {
public:
    PortalMotionPreference();

    bool reducesMotion() const override;

private:
    void take(const PortalSettings::Key &key, const QVariant &value);

    std::optional<bool> m_reducedMotion;
    std::optional<bool> m_animationsEnabled;
    bool m_animatesAtOnce = false;
    PortalSettings m_settings;
};

} // namespace corvane
