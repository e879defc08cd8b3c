#pragma once

#include <QByteArray>
#include <QString>

namespace corvane::test {

/// Names the scene that this program plays instead of running tests.
constexpr auto sceneVariable = "CORVANE_TEST_SCENE";

QString sceneApplicationId();

/// Prints a line of a scene, at once.
void say(const QByteArray &text);

/// Plays a scene that needs a process of its own: it prints what happens, and ends by itself or is
/// ended. Gives the exit status.
int playScene(const QByteArray &name);

} // namespace corvane::test
