#pragma once

#include "app/base/app_info.h"

#include <functional>

namespace corvane {

class DesktopServices;
class HotKeyService;
class KeyMonitors;
class LoginItems;
class MotionPreference;
class ScreenLocator;
class SessionAbilities;
class Settings;
class ShortcutBinder;
class Updater;

/// What the panes read and write. Everything must outlive the window.
struct PreferencesContext {
    Settings &settings;
    const LoginItems &loginItems;
    ShortcutBinder &shortcutBinder;
    KeyMonitors &keyMonitors;
    HotKeyService &hotKeys;
    DesktopServices &desktopServices;
    const MotionPreference &motion;
    const ScreenLocator &screenLocator;
    SessionAbilities &abilities;
    /// Has screen readers say a text at once, wherever the keyboard is.
    std::function<void(const QString &text)> announce;
    AppInfo appInfo;
    /// Null where this build does not know where to look for updates, or where others keep it up
    /// to date.
    Updater *updater = nullptr;
    /// Whether the distribution, or Flatpak, does.
    bool isKeptUpToDateByOthers = false;
};

} // namespace corvane
