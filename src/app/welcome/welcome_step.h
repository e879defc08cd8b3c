#pragma once

#include <QString>

#include <array>

namespace corvane {

/// The steps of the guide, in order.
enum class WelcomeStep {
    DragIn,
    DragOut,
    Keep,
};

inline constexpr std::array allWelcomeSteps{WelcomeStep::DragIn, WelcomeStep::DragOut,
                                            WelcomeStep::Keep};

namespace welcome_step {

QString title(WelcomeStep step);
QString body(WelcomeStep step);
/// How it is done by keyboard alone; empty where there is nothing to be said. `shortcut` are the
/// keys, as people see them, that open the shelf; empty where none are bound.
QString keys(WelcomeStep step, const QString &shortcut);

} // namespace welcome_step

} // namespace corvane
