#pragma once

#include <QLatin1String>

/// Where the desktop's portal is asked on the session bus.
namespace corvane::desktop_portal {

inline constexpr QLatin1String service("org.freedesktop.portal.Desktop");
inline constexpr QLatin1String path("/org/freedesktop/portal/desktop");
inline constexpr QLatin1String globalShortcuts("org.freedesktop.portal.GlobalShortcuts");
inline constexpr QLatin1String session("org.freedesktop.portal.Session");

} // namespace corvane::desktop_portal
