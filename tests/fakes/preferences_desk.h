#pragma once

#include "app/preferences/preferences_context.h"
#include "core/settings.h"
#include "fakes/fake_desktop_services.h"
#include "fakes/fake_hot_keys.h"
#include "fakes/fake_key_monitors.h"
#include "fakes/fake_login_items.h"
#include "fakes/fake_motion_preference.h"
#include "fakes/memory_user_defaults.h"
#include "fakes/test_clock.h"
#include "fakes/user_screens.h"
#include "input/hot_key_center.h"
#include "input/shortcut_binder.h"
#include "platform/desktop/abilities.h"

#include <QJsonObject>
#include <QStringList>

namespace corvane::test {

/// Everything that the preferences read and write, with real settings on top of fakes. Animations
/// are off.
struct PreferencesDesk {
    PreferencesDesk() { motion.reduces = true; }

    PreferencesContext context()
    {
        return {.settings = settings,
                .loginItems = loginItems,
                .shortcutBinder = binder,
                .keyMonitors = keyMonitors,
                .hotKeys = hotKeys,
                .desktopServices = services,
                .motion = motion,
                .screenLocator = screens.locator,
                .abilities = abilities,
                .announce = [this](const QString &text) { announced << text; },
                .appInfo = info,
                .updater = updater,
                .isKeptUpToDateByOthers = isKeptUpToDateByOthers};
    }

    MemoryUserDefaults defaults;
    FakeLoginItems loginItems;
    Settings settings{defaults, loginItems};
    TestClock clock;
    FakeHotKeys hotKeys;
    HotKeyCenter center{hotKeys, clock};
    ShortcutBinder binder{center, [this] { return settings.shortcut(); },
                          [this] { return settings.viewAllShortcut(); }};
    FakeKeyMonitors keyMonitors;
    FakeDesktopServices services;
    FakeMotionPreference motion;
    UserScreens screens;
    SessionAbilities abilities;
    AppInfo info{QJsonObject{
        {QStringLiteral("CFBundleShortVersionString"), QStringLiteral("1.2")},
        {QStringLiteral("CFBundleVersion"), QStringLiteral("34")},
        {QStringLiteral("CorvaneHomePage"), QStringLiteral("https://corvane.example/")},
        {QStringLiteral("CorvaneSupportAddress"), QStringLiteral("support@corvane.example")}}};
    /// What screen readers were told to say at once.
    QStringList announced;
    Updater *updater = nullptr;
    bool isKeptUpToDateByOthers = false;
};

} // namespace corvane::test
