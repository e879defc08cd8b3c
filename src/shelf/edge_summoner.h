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

/// Shows the hidden shelf while it holds items and the pointer is kept at the top edge of a screen,
/// where the shelf would hang, and hides it again once the pointer has gone, as a hand would do it.
///
///     Waiting ----entered----> Approached --approachDelay later, welcome: shown--> Summoned
///        ^                         |                                            |  |  |  |
///        +--left, pressed, unwelcome                                            |  |  |  |
///        +--pointer off the shelf for leaveDelay, no button held: hidden--------+  |  |  |
///        +--clicked through within clicksThroughTime: hidden-----------------------+  |  |
///        +--used by a key, a click or a drag: stays, as if opened by hand-------------+  |
///        +--hidden by somebody else------------------------------------------------------+
///
/// Welcome is: the edge tells that the pointer is still there, and free. The edge is watched only
/// while the shelf is hidden and holds items. Delayed work is voided by restarting its lifetime.
/// Main thread only; everything in the context must outlive it.
class EdgeSummoner {
public:
    /// Seconds at the edge until the shelf is shown.
    static constexpr double approachDelay = 0.25;
    /// Seconds off the shelf until it is hidden again.
    static constexpr double leaveDelay = 0.8;
    /// Seconds for which clicks on the shown shelf go to what it covers.
    static constexpr double clicksThroughTime = 0.3;

    struct Context {
        EdgeTrigger &trigger;
        OutsideClicks &outsideClicks;
        Screens &screens;
        ShelfStore &store;
        MainQueue &queue;
        /// How wide the shelf would be on that screen, in points.
        std::function<double(const ScreenPointer &screen)> shelfWidth;
        /// Called before the shelf is shown: for so many seconds its clicks go to what it covers.
        std::function<void(double seconds)> letClicksThrough = {};
    };
    explicit EdgeSummoner(const Context &context);
    ~EdgeSummoner();
    EdgeSummoner(const EdgeSummoner &) = delete;
    EdgeSummoner &operator=(const EdgeSummoner &) = delete;

    /// Lets go of the edge, for good: the program ends. A shelf that is shown stays.
    void stop();

    /// The pointer came onto the shown shelf, or went off it.
    void pointerIsInside(bool isInside);
    /// The user did something on the shelf: it stays open.
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
    /// Restarted by whatever makes delayed work out of date.
    Lifetime m_delayed;
    bool m_isStopped = false;
    qsizetype m_summonedCount = 0;
    double m_summonTime = 0;
    std::vector<EdgeStretch> m_watched;
    Subscription m_pressWatch;
    Lifetime m_lifetime;
};

} // namespace corvane
