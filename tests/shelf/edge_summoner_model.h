#pragma once

#include "core/shelf_state.h"
#include "platform/desktop/edge_trigger.h"

#include <QPointF>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

namespace corvane::test {

/// Told in the plainest words: a store of four numbers, and two pieces of delayed work of which at
/// most one has a date.
class EdgeSummonerModel {
public:
    /// How what happens is written down, here and for the real summoner.
    static QString entry(const char *what, double time)
    {
        return QStringLiteral("%1 at %2").arg(QLatin1String(what)).arg(qRound(time * 1000));
    }
    static QString stateEntry(ShelfState from, ShelfState to, double time)
    {
        return entry("state ", time)
            + QStringLiteral(": %1 to %2").arg(static_cast<int>(from)).arg(static_cast<int>(to));
    }

    /// What the desktop looks like at a moment.
    struct World {
        std::vector<EdgeStretch> stretches;
        std::optional<QPointF> pointer;
        bool isButtonHeld = false;
        const Screen *covered = nullptr;
    };

    // The store.

    void setState(ShelfState to)
    {
        const ShelfState from = std::exchange(state, to);
        if (from != to)
            log << stateEntry(from, to, now);
    }
    void accept(int arrivals)
    {
        count += arrivals;
        setState(ShelfState::Occupied);
        storeChanged();
    }
    void removeAll() { remove(count); }
    void remove(int items)
    {
        count -= items;
        if (count == 0) {
            isBarOpen = false;
            setState(ShelfState::Idle);
        }
        storeChanged();
    }
    void toggle()
    {
        if (state == ShelfState::Occupied)
            setState(ShelfState::Idle);
        else if (count > 0)
            setState(ShelfState::Occupied);
        else
            setState(state == ShelfState::Idle ? ShelfState::Expanded : ShelfState::Idle);
        storeChanged();
    }
    void toggleBar()
    {
        if (!isBarOpen && count < 2)
            return;
        isBarOpen = !isBarOpen;
        storeChanged();
    }
    void dragBegins()
    {
        isDragInFlight = true;
        if (state == ShelfState::Idle)
            setState(ShelfState::Expanded);
        storeChanged();
    }
    void dragEnds()
    {
        isDragInFlight = false;
        if (state == ShelfState::Expanded)
            setState(count > 0 ? ShelfState::Occupied : ShelfState::Idle);
        storeChanged();
    }

    // What the summoner is told.

    void push()
    {
        if (watched.empty() || std::exchange(isAtEdge, true) || isSummoned)
            return;
        approachDate = now + 0.25;
    }
    void leave()
    {
        if (std::exchange(isAtEdge, false))
            approachDate.reset();
    }
    void pressElsewhere()
    {
        approachDate.reset();
        if (!isSummoned || wasReached || now - summonTime >= 0.3)
            return;
        dismiss();
    }
    void pointerIsInside(bool isInside)
    {
        if (!isSummoned)
            return;
        dismissDate.reset();
        if (isInside)
            wasReached = true;
        else
            dismissDate = now + 0.8;
    }
    void used()
    {
        isSummoned = false;
        dismissDate.reset();
    }
    void screensChange()
    {
        watched.clear();
        isAtEdge = false;
        approachDate.reset();
        updateWatch();
    }
    /// Items were published, perhaps for no more than a picture.
    void storeChanged()
    {
        const bool isOtherwiseUsed = state != ShelfState::Occupied || isBarOpen || isDragInFlight
            || isOwnDrag || count != summonedCount;
        if (isSummoned && isOtherwiseUsed)
            used();
        updateWatch();
    }

    void advance(double seconds)
    {
        const double end = now + seconds;
        // At most one of the two has a date.
        while (true) {
            auto &date = approachDate ? approachDate : dismissDate;
            if (!date || *date > end + 1e-9)
                break;
            now = std::max(now, *date);
            const bool isApproach = approachDate.has_value();
            date.reset();
            if (isApproach)
                summonIfWelcome();
            else if (world.isButtonHeld)
                dismissDate = now + 0.8;
            else
                dismiss();
        }
        now = end;
    }

    bool watchesPresses() const { return approachDate || (isSummoned && !wasReached); }

    World world;
    double now = 0;
    int count = 0;
    ShelfState state = ShelfState::Idle;
    bool isBarOpen = false;
    bool isDragInFlight = false;
    bool isOwnDrag = false;
    std::vector<EdgeStretch> watched;
    QStringList log;

private:
    void updateWatch()
    {
        const bool isWanted = state == ShelfState::Idle && count > 0;
        auto wanted = isWanted ? world.stretches : std::vector<EdgeStretch>();
        if (wanted == watched)
            return;
        watched = std::move(wanted);
        isAtEdge = false;
        approachDate.reset();
    }
    bool isWelcome() const
    {
        if (world.isButtonHeld || !world.pointer)
            return false;
        for (const EdgeStretch &stretch : watched) {
            const QRectF &screen = stretch.screen->frame;
            const double x = world.pointer->x() - screen.x() - stretch.left;
            const double below = screen.y() + screen.height() - world.pointer->y();
            if (x >= 0 && x < stretch.width && below > 0 && below <= 3)
                return stretch.screen.get() != world.covered;
        }
        return false;
    }
    void summonIfWelcome()
    {
        if (!isWelcome())
            return;
        isBarOpen = false;
        isSummoned = true;
        wasReached = false;
        summonedCount = count;
        summonTime = now;
        dismissDate = now + 0.8;
        log << entry("clicks go through", now);
        toggle();
    }
    void dismiss()
    {
        used();
        toggle();
    }

    bool isAtEdge = false;
    bool isSummoned = false;
    /// The pointer has been on the shelf since.
    bool wasReached = false;
    int summonedCount = 0;
    double summonTime = 0;
    std::optional<double> approachDate;
    std::optional<double> dismissDate;
};

} // namespace corvane::test
