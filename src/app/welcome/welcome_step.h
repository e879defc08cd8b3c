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
/// How it is done by keyboard alone; empty where there is nothing to be said.
QString keys(WelcomeStep step);

} // namespace welcome_step

} // namespace corvane
