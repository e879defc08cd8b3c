#pragma once

#include "platform/desktop/edge_trigger.h"
#include "platform/desktop/screens.h"

#include <QPointer>

#include <functional>
#include <vector>

namespace corvane {

class EdgeStrip;
class StripSurface;

/// Thin, invisible windows at the top edges of the screens, where a desktop tells of the
/// pointer, and of what is dragged, over our own windows alone.
///
/// They are there only while somebody watches, since a click on them reaches nobody else. They lie
/// below windows that fill the screen. A pointer with a button held does not come to them, except
/// with what is dragged. Main thread only; what they are given must outlive them.
class EdgeStrips : public EdgeTrigger {
public:
    /// Points that a strip is high: a resting hand trembles, and what is dragged jumps.
    static constexpr int height = 3;

    EdgeStrips(StripSurface &surface, const Screens &screens);
    ~EdgeStrips() override;
    EdgeStrips(const EdgeStrips &) = delete;
    EdgeStrips &operator=(const EdgeStrips &) = delete;

    void watch(const std::vector<EdgeStretch> &stretches) override;
    bool isStillThere() const override;
    bool isButtonHeld() const override { return false; }

    /// Watches for what is dragged as well, at the middle of every screen's edge.
    void watchDrags(bool watches);
    /// The screens have changed.
    void renew();

    /// Something is dragged over a strip of that screen; it may be our own. None where the screen
    /// is just going.
    std::function<void(const ScreenPointer &screen, bool isOwn)> onDragEntered;
    /// What was dragged over a strip went away from it. May be left empty, as the others.
    std::function<void()> onDragLeft;
    /// The pointer came to a strip with nothing dragged.
    std::function<void(const ScreenPointer &screen)> onPointer;

private:
    void update();
    void retire();
    std::vector<EdgeStretch> wanted() const;
    EdgeStrip *makeStrip(const EdgeStretch &stretch);
    void pointerCame(const ScreenPointer &screen);
    void pointerWent();

    StripSurface &m_surface;
    const Screens &m_screens;
    std::vector<EdgeStretch> m_watched;
    bool m_watchesDrags = false;
    /// The pointer is on one of them.
    bool m_isPointerThere = false;
    std::vector<EdgeStretch> m_shown;
    /// Each destroys itself once it is retired.
    std::vector<EdgeStrip *> m_strips;
    /// Those that were retired and may have a drag over them still.
    std::vector<QPointer<EdgeStrip>> m_retired;
};

} // namespace corvane
