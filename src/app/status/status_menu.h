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
    UpdateNotice,
    CheckForUpdates,
    SecondSeparator,
    Quit,
};

/// Everything that the menu's rows depend on.
struct StatusMenuState {
    int itemCount = 0;
    std::optional<Shortcut> shelfShortcut = std::nullopt;
    std::optional<Shortcut> viewAllShortcut = std::nullopt;
    bool canCheckForUpdates = false;
    /// What is wrong with updates; empty for nothing.
    QString updateNotice = {};
};

namespace status_menu {

/// The rows, without actions. "View All Items" is there from two items on, the row that clears the
/// shelf from one on.
MenuRows rows(const StatusMenuState &state);

/// The keys to show for a shortcut: its character in lower case and its modifiers; nothing without
/// a character.
KeyEquivalent keyEquivalent(const std::optional<Shortcut> &shortcut);

/// "Corvane", or with items "Corvane — 1 item", "Corvane — 4 items".
QString toolTip(int itemCount);

} // namespace status_menu

} // namespace corvane
