#pragma once

#include "platform/desktop/edge_trigger.h"

namespace corvane {

class FullScreenWindows;
class MouseButtons;
class Pointer;
class PointerBarriers;

/// Notices the pointer at a screen's top edge on desktops that report the pointer's place, the
/// buttons held, full-screen windows, and the pointer being pushed against the edge. Main thread
/// only; what it is given must outlive it.
class BarrierEdgeTrigger : public EdgeTrigger {
public:
    /// In points: so far below the edge the pointer still counts as being there, because a resting
    /// hand trembles.
    static constexpr double edgeDepth = 3;

    struct Desktop {
        PointerBarriers &barriers;
        const FullScreenWindows &fullScreenWindows;
        const MouseButtons &buttons;
        const Pointer &pointer;
    };
    explicit BarrierEdgeTrigger(const Desktop &desktop);
    ~BarrierEdgeTrigger() override;
    BarrierEdgeTrigger(const BarrierEdgeTrigger &) = delete;
    BarrierEdgeTrigger &operator=(const BarrierEdgeTrigger &) = delete;

    void watch(const std::vector<EdgeStretch> &stretches) override;
    bool isStillThere() const override;
    bool isButtonHeld() const override;

private:
    Desktop m_desktop;
    std::vector<EdgeStretch> m_watched;
};

} // namespace corvane
