#include "shelf/edge_summoner.h"

#include "core/shelf_store.h"
#include "platform/base/main_queue.h"
#include "platform/desktop/outside_clicks.h"

#include <algorithm>
#include <utility>

namespace corvane {

EdgeSummoner::EdgeSummoner(const Context &context)
    : m_context(context)
    , m_store(context.store)
    , m_follower(context.store, context.queue, [this] { storeChanged(); })
{
    wire();
    updateWatch();
}

EdgeSummoner::~EdgeSummoner()
{
    stop();
}

void EdgeSummoner::stop()
{
    m_isStopped = true;
    wait();
    m_watched.clear();
    m_context.trigger.watch({});
    m_context.trigger.onEntered = nullptr;
    m_context.trigger.onLeft = nullptr;
}

void EdgeSummoner::wire()
{
    EdgeTrigger &trigger = m_context.trigger;
    trigger.onEntered = m_lifetime.guard([this] { entered(); });
    trigger.onLeft = m_lifetime.guard([this] { giveUp(); });
    m_context.screens.observeChanges(m_lifetime.guard([this] { watchAnew(); }));
}

void EdgeSummoner::after(double seconds, void (EdgeSummoner::*work)())
{
    m_delayed.restart();
    m_context.queue.asyncAfter(seconds, m_delayed.guard([this, work] { (this->*work)(); }));
}

void EdgeSummoner::entered()
{
    if (m_phase != Phase::Waiting)
        return;
    m_phase = Phase::Approached;
    // A click means that the user wants the window that is there, not the shelf.
    watchPresses(&EdgeSummoner::giveUp);
    after(approachDelay, &EdgeSummoner::summon);
}

void EdgeSummoner::watchPresses(void (EdgeSummoner::*pressed)())
{
    m_pressWatch = m_context.outsideClicks.watch(m_lifetime.guard(
        [this, pressed](std::optional<QPointF> /*place*/) { (this->*pressed)(); }));
}

void EdgeSummoner::giveUp()
{
    if (m_phase == Phase::Approached)
        wait();
}

void EdgeSummoner::wait()
{
    m_phase = Phase::Waiting;
    m_delayed.restart();
    m_pressWatch.end();
}

void EdgeSummoner::summon()
{
    const bool isWanted = m_context.trigger.isStillThere();
    wait();
    if (!isWanted)
        return;
    // A bar that was left open would appear with the shelf, and take keys and clicks from the
    // window that the user works in.
    m_store.closeViewAll();
    m_phase = Phase::Summoned;
    m_summonedCount = m_store.items().size();
    m_summonTime = m_context.queue.now();
    watchPresses(&EdgeSummoner::clickedThrough);
    // Until the pointer is reported on the shelf, which ends this delay, it counts as off it.
    dismissLater();
    if (m_context.letClicksThrough)
        m_context.letClicksThrough(clicksThroughTime);
    m_store.toggleManually();
    storeChanged();
}

/// The user clicked where the shelf has just appeared, and meant the window below it.
void EdgeSummoner::clickedThrough()
{
    if (m_context.queue.now() - m_summonTime >= clicksThroughTime)
        return;
    wait();
    m_store.toggleManually();
}

void EdgeSummoner::pointerIsInside(bool isInside)
{
    if (m_phase != Phase::Summoned)
        return;
    if (!isInside) {
        dismissLater();
        return;
    }
    m_delayed.restart();
    m_pressWatch.end();
}

void EdgeSummoner::shelfIsUsed()
{
    if (m_phase == Phase::Summoned)
        wait();
}

void EdgeSummoner::dismissLater()
{
    after(leaveDelay, &EdgeSummoner::dismiss);
}

void EdgeSummoner::dismiss()
{
    // The user may be about to drag something here.
    if (m_context.trigger.isButtonHeld()) {
        dismissLater();
        return;
    }
    wait();
    m_store.toggleManually();
}

void EdgeSummoner::storeChanged()
{
    const bool isUsed = m_store.state() != ShelfState::Occupied || m_store.isViewAllOpen()
        || m_store.isDragInFlight() || m_store.isOwnDrag()
        || m_store.items().size() != m_summonedCount;
    if (m_phase == Phase::Summoned && isUsed)
        wait();
    updateWatch();
}

void EdgeSummoner::watchAnew()
{
    // Screen objects may be the same with another geometry, so that equal stretches are elsewhere
    // now.
    m_watched.clear();
    m_context.trigger.watch({});
    giveUp();
    updateWatch();
}

void EdgeSummoner::updateWatch()
{
    auto wanted = stretches();
    if (wanted == m_watched)
        return;
    m_watched = std::move(wanted);
    giveUp();
    m_context.trigger.watch(m_watched);
}

std::vector<EdgeStretch> EdgeSummoner::stretches() const
{
    std::vector<EdgeStretch> result;
    if (m_isStopped || m_store.state() != ShelfState::Idle || m_store.items().isEmpty())
        return result;
    for (const ScreenPointer &screen : m_context.screens.screens()) {
        const double width = std::min(m_context.shelfWidth(screen), screen->frame.width());
        result.push_back({screen, (screen->frame.width() - width) * 0.5, width});
    }
    return result;
}

} // namespace corvane
