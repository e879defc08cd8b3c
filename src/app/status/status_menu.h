#pragma once

#include "input/shortcut.h"
#include "platform/desktop/menu.h"

#include <QString>

#include <optional>

namespace corvane {

/// The ids of the status menu's rows.
enum class StatusMenuRow {
    ShowShelf = 1,
    ViewAllItems,
    ClearShelf,
    FirstSeparator,
    Preferences,
    HowItWorks,
    CheckForUpdates,
    SecondSeparator,
    Quit,
};

/// What the status menu shows follows from this alone.
struct StatusMenuState {
    int itemCount = 0;
    std::optional<Shortcut> shelfShortcut = std::nullopt;
    std::optional<Shortcut> viewAllShortcut = std::nullopt;
    bool canCheckForUpdates = false;
};

namespace status_menu {

/// The rows, without actions. Nothing can be viewed all at once of fewer than two items, and
/// nothing cleared of none.
MenuRows rows(const StatusMenuState &state);

/// A shortcut's character in lower case with its modifiers; nothing for one without a character.
KeyEquivalent keyEquivalent(const std::optional<Shortcut> &shortcut);

/// "Corvane", or with items "Corvane — 1 item", "Corvane — 4 items".
QString toolTip(int itemCount);

} // namespace status_menu

} // namespace corvane
