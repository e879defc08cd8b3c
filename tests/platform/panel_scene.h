#pragma once

#include <QRect>

namespace corvane::test {

/// Where the scene's panel stands and which part of it takes clicks, from the panel's top left; in
/// points and Qt's coordinates.
inline constexpr QRect panelSceneFrame{100, 100, 301, 101};
inline constexpr QRect panelSceneBody{50, 0, 200, 60};

/// The variable that says by how many points the panel moves to the right once it is shown.
constexpr auto panelSceneMove = "CORVANE_TEST_PANEL_MOVE";

/// If this variable is set, the panel hangs in the middle of the screen instead, so many points
/// below its upper edge.
constexpr auto panelSceneHangs = "CORVANE_TEST_PANEL_HANGS";
inline constexpr int panelSceneFromTop = 10;

/// Shows a panel until it is ended, and prints its window's id. How often a drag has moved over it
/// is its title. What is dropped on it is read as
/// text; printed are its length, its hash, and what memory reading it took.
int playPanel();

} // namespace corvane::test
