#include "shelf/shelf_focus.h"

#include "platform/base/geometry.h"

#include <algorithm>

namespace corvane::shelf_focus {

namespace {

/// In points, between a control and the ring around it.
constexpr double room = 3;

std::optional<QRectF> frameOf(const ShelfHit &stop, const ShelfLayout &layout)
{
    if (const auto *arrow = std::get_if<shelf_hit::Arrow>(&stop); arrow && layout.arrows)
        return layout.arrows->at(arrow->side == ArrowSide::Left ? 0 : 1);
    if (std::holds_alternative<shelf_hit::ViewAll>(stop))
        return layout.viewAllButton;
    if (const auto *button = std::get_if<shelf_hit::Button>(&stop); button && layout.actionButtons)
        return layout.actionButtons->at(static_cast<std::size_t>(button->action));
    return std::nullopt;
}

} // namespace

std::vector<ShelfHit> stops(const ShelfLayout &layout, const ShelfSnapshot &snapshot)
{
    std::vector<ShelfHit> stops;
    for (const auto &[index, item] : snapshot.visible)
        stops.emplace_back(shelf_hit::Cell{index});
    if (layout.actionButtons) {
        for (const ShelfAction action : allShelfActions)
            stops.emplace_back(shelf_hit::Button{action});
    }
    if (layout.viewAllButton)
        stops.emplace_back(shelf_hit::ViewAll{});
    if (layout.arrows && snapshot.canScrollBack)
        stops.emplace_back(shelf_hit::Arrow{ArrowSide::Left});
    if (layout.arrows && snapshot.canScrollForward)
        stops.emplace_back(shelf_hit::Arrow{ArrowSide::Right});
    return stops;
}

std::optional<ShelfHit> neighbour(const std::vector<ShelfHit> &stops, const ShelfHit &current,
                                  bool isBackward)
{
    if (stops.empty())
        return std::nullopt;
    const auto found = std::ranges::find(stops, current);
    if (found == stops.end())
        return isBackward ? stops.back() : stops.front();
    if (isBackward)
        return found == stops.begin() ? stops.back() : *std::prev(found);
    return std::next(found) == stops.end() ? stops.front() : *std::next(found);
}

std::optional<QRectF> ringAround(const ShelfHit &stop, const ShelfLayout &layout)
{
    const auto frame = frameOf(stop, layout);
    return frame ? std::optional(grown(*frame, room, room)) : std::nullopt;
}

} // namespace corvane::shelf_focus
