#pragma once

#include "app/welcome/welcome_step.h"

#include <QList>
#include <QPointF>
#include <QSizeF>

namespace corvane {

/// A moment of the little play that shows a step: where everything is. Points of a stage of
/// `stageSize`, y downward, its top edge the screen's.
struct WelcomeScene {
    static constexpr QSizeF stageSize{520, 320};
    /// Seconds that a play takes; it begins again where it ends.
    static constexpr double duration = 3.6;

    struct Card {
        QPointF centre;
        /// Of its size in a window.
        double scale = 1;
        double opacity = 1;

        friend bool operator==(const Card &, const Card &) = default;
    };

    /// 0 is the notch alone, 1 the open shelf.
    double shelf = 0;
    /// How bright the ring is that asks for a drop, 0 to 1.
    double ring = 0;
    /// The files, from the lowest to the topmost.
    QList<Card> cards;
    QPointF pointer;
    double pointerOpacity = 1;
    /// Whether the Shift key is shown, and how far it is pressed, 0 to 1.
    bool showsKey = false;
    double key = 0;

    friend bool operator==(const WelcomeScene &, const WelcomeScene &) = default;
};

namespace welcome_scene {

/// `phase` is the share of the play that is over, 0 to 1.
WelcomeScene at(WelcomeStep step, double phase);
/// The moment that tells most, for those who want no movement.
double telling(WelcomeStep step);

} // namespace welcome_scene

} // namespace corvane
