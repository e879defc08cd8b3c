#include "app/welcome/welcome_scene.h"

#include <algorithm>

namespace corvane::welcome_scene {

namespace {

constexpr QPointF leftFile{92, 200};
constexpr QPointF leftPlace{146, 234};
constexpr QPointF rightPlace{396, 220};
constexpr QPointF slot{260, 29};
constexpr double slotScale = 0.82;
constexpr double liftedScale = 1.06;
/// The phase from which on everything goes back to where it began.
constexpr double curtain = 0.93;

/// How much of the time between two moments has passed, slow at both ends.
double eased(double phase, double from, double to)
{
    const double share = std::clamp((phase - from) / (to - from), 0.0, 1.0);
    return share * share * (3 - 2 * share);
}

double between(double from, double to, double share)
{
    return from + (to - from) * share;
}

QPointF between(QPointF from, QPointF to, double share)
{
    return from + (to - from) * share;
}

/// The tip of the pointer holds a card a little below its middle.
QPointF held(QPointF pointer)
{
    return pointer - QPointF(2, 4);
}

double leaving(double phase)
{
    return 1 - eased(phase, curtain, 1);
}

WelcomeScene dragIn(double phase)
{
    WelcomeScene scene;
    const QPointF home(236, 272);
    const QPointF grip = leftFile + QPointF(2, 4);
    const QPointF drop = slot + QPointF(2, 4);
    scene.pointer
        = between(between(home, grip, eased(phase, 0.02, 0.18)), drop, eased(phase, 0.26, 0.56));
    scene.pointer = between(scene.pointer, {312, 120}, eased(phase, 0.68, 0.82));
    scene.shelf = eased(phase, 0.28, 0.4) * leaving(phase);
    const bool isDropped = phase >= 0.6;
    scene.ring
        = isDropped ? 0 : eased(phase, 0.32, 0.4) * between(0.4, 1, eased(phase, 0.46, 0.54));
    scene.cards << WelcomeScene::Card{leftFile};
    if (phase >= 0.22) {
        const double scale = between(between(1, liftedScale, eased(phase, 0.22, 0.28)), slotScale,
                                     eased(phase, 0.58, 0.64));
        scene.cards << WelcomeScene::Card{
            between(held(scene.pointer), slot, isDropped ? 1 : eased(phase, 0.56, 0.6)), scale,
            leaving(phase)};
    }
    scene.pointerOpacity = leaving(phase) * eased(phase, 0, 0.04);
    return scene;
}

WelcomeScene dragOut(double phase)
{
    WelcomeScene scene;
    const QPointF home(196, 262);
    const QPointF grip = slot + QPointF(2, 4);
    const QPointF drop = rightPlace + QPointF(2, 4);
    scene.pointer = between(home, {258, 5}, eased(phase, 0.02, 0.2));
    scene.pointer = between(scene.pointer, grip, eased(phase, 0.3, 0.38));
    scene.pointer = between(scene.pointer, drop, eased(phase, 0.42, 0.68));
    scene.pointer = between(scene.pointer, drop + QPointF(34, 40), eased(phase, 0.76, 0.86));
    scene.shelf = eased(phase, 0.18, 0.3) * (1 - eased(phase, 0.74, 0.86));
    const double there = eased(phase, 0.68, 0.74);
    const bool isTaken = phase >= 0.4;
    const double scale = isTaken
        ? between(between(slotScale, liftedScale, eased(phase, 0.4, 0.48)), 1, there)
        : slotScale;
    const double visible = eased(phase, 0.22, 0.3) * leaving(phase);
    scene.cards << WelcomeScene::Card{isTaken ? held(scene.pointer) : slot, scale, visible};
    if (phase >= 0.7)
        scene.cards.last().centre = rightPlace;
    scene.pointerOpacity = leaving(phase) * eased(phase, 0, 0.04);
    return scene;
}

/// One of the two drags out of the shelf of the last step, begun and ended at these moments.
struct Carry {
    double begin = 0;
    double end = 0;
    QPointF to;
};

void carry(WelcomeScene &scene, double phase, const Carry &way)
{
    const QPointF grip = slot + QPointF(2, 4);
    scene.pointer = between(scene.pointer, grip, eased(phase, way.begin - 0.1, way.begin));
    scene.pointer
        = between(scene.pointer, way.to + QPointF(2, 4), eased(phase, way.begin, way.end));
    if (phase < way.begin)
        return;
    const double scale
        = between(between(slotScale, liftedScale, eased(phase, way.begin, way.begin + 0.08)), 1,
                  eased(phase, way.end, way.end + 0.05));
    const QPointF centre = phase < way.end ? held(scene.pointer) : way.to;
    scene.cards << WelcomeScene::Card{centre, scale, leaving(phase)};
}

WelcomeScene keep(double phase)
{
    WelcomeScene scene;
    scene.shelf = 1;
    scene.showsKey = true;
    scene.key = eased(phase, 0.05, 0.1) * (1 - eased(phase, 0.88, 0.92));
    scene.pointer = {300, 96};
    scene.cards << WelcomeScene::Card{slot, slotScale};
    carry(scene, phase, {0.16, 0.4, leftPlace});
    carry(scene, phase, {0.56, 0.8, rightPlace});
    scene.pointer = between(scene.pointer, {300, 96}, eased(phase, 0.86, 0.98));
    return scene;
}

} // namespace

WelcomeScene at(WelcomeStep step, double phase)
{
    switch (step) {
    case WelcomeStep::DragIn:
        return dragIn(phase);
    case WelcomeStep::DragOut:
        return dragOut(phase);
    case WelcomeStep::Keep:
        return keep(phase);
    }
    return {};
}

double telling(WelcomeStep step)
{
    switch (step) {
    case WelcomeStep::DragIn:
        return 0.46;
    case WelcomeStep::DragOut:
        return 0.63;
    case WelcomeStep::Keep:
        return 0.75;
    }
    return 0;
}

} // namespace corvane::welcome_scene
