#pragma once

#include "platform/desktop/key_name.h"

#include <QString>

#include <cstdint>
#include <optional>

/// How desktops write keys. All name a key by what it does in the user's layout, so that what is
/// written stands for another position in another layout.
namespace corvane::key_notation {

/// A combination as shortcuts store it.
struct Combination {
    KeyPosition key = KeyPosition::Unknown;
    std::uint32_t modifiers = 0;

    friend bool operator==(const Combination &, const Combination &) = default;
};

/// As Qt numbers it, with the modifiers' bits. A character that takes Shift stands without Shift.
/// None for a key that does nothing.
std::optional<int> qtKeys(const Combination &combination, const KeyNaming &naming);

/// As the desktops' portals take it: "SHIFT+LOGO+d"; empty for a key without a symbol.
QString trigger(const Combination &combination, const KeyNaming &naming);

/// The settings of these compositors are lines of a file.
enum class Settings {
    Unknown,
    Sway,
    Hyprland,
};
/// By the value of XDG_CURRENT_DESKTOP, a list of names separated by colons.
Settings settingsOf(const QString &currentDesktop);
/// The line that binds the combination to a command of the shell; empty where there is none.
QString settingsLine(Settings settings, const Combination &combination, const QString &command,
                     const KeyNaming &naming);

} // namespace corvane::key_notation
