#pragma once

#include "core/store_follower.h"
#include "platform/base/lifetime.h"
#include "platform/base/subscription.h"
#include "platform/desktop/edge_trigger.h"

#include <functional>
#include <vector>

namespace corvane {

class MainQueue;
class OutsideClicks;
class ShelfStore;

/// Shows the hidden shelf, if it holds items, when the pointer is kept at the top edge of a screen,
/// where the shelf would hang, and hides it again after the pointer has left.
///
///     Waiting ----entered----> Approached --approachDelay later, welcome: shown--> Summoned
///        ^                         |                                            |  |  |  |
///        +--left, pressed, unwelcome                                            |  |  |  |
///        +--pointer off the shelf for leaveDelay, no button held: hidden--------+  |  |  |
///        +--clicked through within clicksThroughTime: hidden-----------------------+  |  |
///        +--used by a key, a click or a drag: stays, as if opened by hand-------------+  |
///        +--hidden by another cause------------------------------------------------------+
///
/// Welcome is: the edge tells that the pointer is still there, and free. The edge is watched only
/// while the shelf is hidden and holds items. Delayed work is voided by restarting its lifetime.
/// Main thread only; everything in the context must outlive it.
class EdgeSummoner {
public:
    /// In seconds: how long the pointer must stay at the edge before the shelf is shown.
    static constexpr double approachDelay = 0.25;
    /// In seconds: how long the pointer must be off the shelf before it is hidden again.
    static constexpr double leaveDelay = 0.8;
    /// In seconds from showing it: clicks go through the shelf to the window below it.
    static constexpr double clicksThroughTime = 0.3;

    struct Context {
        EdgeTrigger &trigger;
        OutsideClicks &outsideClicks;
        Screens &screens;
        ShelfStore &store;
        MainQueue &queue;
        /// How wide the shelf would be on that screen, in points.
        std::function<double(const ScreenPointer &screen)> shelfWidth;
        /// Called before the shelf is shown, to let its clicks through for so many seconds.
        std::function<void(double seconds)> letClicksThrough = {};
    };
    explicit EdgeSummoner(const Context &context);
    ~EdgeSummoner();
    EdgeSummoner(const EdgeSummoner &) = delete;
    EdgeSummoner &operator=(const EdgeSummoner &) = delete;

    /// Stops watching for good, as the program ends. A shelf that is shown stays.
    void stop();

    /// To be called when the pointer came onto the shown shelf, or left it.
    void pointerIsInside(bool isInside);
    /// To be called when the user did something on the shelf: it stays open then.
    void shelfIsUsed();

private:
    enum class Phase {
        Waiting,
        Approached,
        Summoned,
    };

    void wire();
    void entered();
    void giveUp();
    void wait();
    void watchPresses(void (EdgeSummoner::*pressed)());
    void summon();
    void clickedThrough();
    void dismissLater();
    void dismiss();
    void storeChanged();
    void watchAnew();
    void updateWatch();
    std::vector<EdgeStretch> stretches() const;
    void after(double seconds, void (EdgeSummoner::*work)());

    Context m_context;
    ShelfStore &m_store;
    StoreFollower m_follower;
    Phase m_phase = Phase::Waiting;
    /// Guards delayed work; restarting it makes that work do nothing.
    Lifetime m_delayed;
    bool m_isStopped = false;
    qsizetype m_summonedCount = 0;
    double m_summonTime = 0;
    std::vector<EdgeStretch> m_watched;
    Subscription m_pressWatch;
    Lifetime m_lifetime;
};

} // namespace corvane
