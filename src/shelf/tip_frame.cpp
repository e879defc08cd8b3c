#include "shelf/tip_frame.h"

#include "platform/base/geometry.h"

#include <algorithm>
#include <cmath>

namespace corvane {

namespace {

/// In points, between a tip and the screen's edges.
constexpr double screenMargin = 4;

struct Candidate {
    QPointF place;
    /// What it would touch if it had to be moved far to be inside of the screen.
    QRectF awayFrom;
};

/// The value between the limits, the lower one where they exclude each other.
double within(double value, double lowest, double highest)
{
    return std::round(std::max(lowest, std::min(value, highest)));
}

QRectF insideOf(const QRectF &screen, QPointF place, QSizeF size)
{
    const QRectF room = grown(screen, -screenMargin, -screenMargin);
    return {within(place.x(), minX(room), maxX(room) - size.width()),
            within(place.y(), minY(room), maxY(room) - size.height()), size.width(), size.height()};
}

/// The best one first.
std::vector<Candidate> candidatesFor(QSizeF size, const TipSurroundings &around, double gap)
{
    const QRectF &cell = around.cell;
    const QRectF &panel = around.panel;
    const double centred = midX(cell) - size.width() / 2;
    const double level = midY(cell) - size.height() / 2;
    std::vector<Candidate> candidates{{{centred, minY(cell) - gap - size.height()}, cell},
                                      {{centred, maxY(cell) + gap}, cell}};
    const Candidate left{{minX(panel) - gap - size.width(), level}, panel};
    const Candidate right{{maxX(panel) + gap, level}, panel};
    const bool isRightNearer = midX(cell) > midX(panel);
    candidates.push_back(isRightNearer ? right : left);
    candidates.push_back(isRightNearer ? left : right);
    for (const QRectF &other : around.otherPanels)
        candidates.push_back({{centred, minY(other) - gap - size.height()}, other});
    return candidates;
}

} // namespace

QRectF tipFrame(QSizeF size, const TipSurroundings &around, double gap)
{
    const auto candidates = candidatesFor(size, around, gap);
    for (const Candidate &candidate : candidates) {
        const QRectF frame = insideOf(around.screen, candidate.place, size);
        const auto touches = [&](const QRectF &other) { return frame.intersects(other); };
        if (!touches(candidate.awayFrom) && std::ranges::none_of(around.otherPanels, touches))
            return frame;
    }
    return insideOf(around.screen, candidates.front().place, size);
}

} // namespace corvane
