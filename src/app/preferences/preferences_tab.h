#pragma once

#include <QString>

#include <array>
#include <optional>

namespace corvane {

/// The panes of the preferences window.
enum class PreferencesTab {
    General,
    About,
};

/// In the order in which they stand in the window.
inline constexpr std::array allPreferencesTabs{PreferencesTab::General, PreferencesTab::About};

namespace preferences_tab {

/// The tab's name, "General" or "About".
QString rawValue(PreferencesTab tab);
/// None for any other text.
std::optional<PreferencesTab> fromRawValue(const QString &rawValue);
/// The name as the user reads it.
QString title(PreferencesTab tab);

} // namespace preferences_tab

} // namespace corvane
