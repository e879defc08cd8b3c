#pragma once

#include "input/first_hot_keys.h"
#include "platform/freedesktop/shortcuts/action_shortcuts.h"
#include "platform/freedesktop/shortcuts/kde_shortcuts.h"
#include "platform/freedesktop/shortcuts/portal_shortcuts.h"

namespace corvane {

/// Hot keys in a session that lets no program take keys for itself: by a service of the desktop
/// where it has one, else the user binds keys to commands. The queue must outlive it.
struct DesktopHotKeys {
    DesktopHotKeys(const KeyNaming &naming, MainQueue &queue);

    /// Whether the user chooses them in our preferences.
    bool areChosenHere() const;

    KdeShortcuts kde;
    PortalShortcuts portal;
    ActionShortcuts actions;
    FirstHotKeys service;
};

} // namespace corvane
