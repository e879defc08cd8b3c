#include "shelf/bar/view_all_focus.h"

#include "platform/base/checked_math.h"
#include "platform/base/geometry.h"

#include <algorithm>

namespace corvane::view_all_focus {

namespace {

/// In points, between a control or a picture and the ring around it.
constexpr double aroundControl = 3;
constexpr double aroundThumb = 4;

QRectF frameOf(ViewAllControl control, const ViewAllLayout &layout)
{
    switch (control) {
    case ViewAllControl::Back:
        return layout.leftArrow.frame;
    case ViewAllControl::Forward:
        return layout.rightArrow.frame;
    case ViewAllControl::SelectAll:
        return layout.selectAllBox.frame;
    case ViewAllControl::Copy:
        return layout.copyButton.frame;
    case ViewAllControl::Trash:
        return layout.trashButton.frame;
    }
    return {};
}

} // namespace

Stops stops(const ViewAllState &state)
{
    Stops stops{std::nullopt, ViewAllControl::SelectAll};
    if (state.selectedCount > 0) {
        stops.emplace_back(ViewAllControl::Copy);
        stops.emplace_back(ViewAllControl::Trash);
    }
    if (state.offset > 0)
        stops.emplace_back(ViewAllControl::Back);
    const int perPage = view_all_layout::itemsPerPage(state.size.width());
    if (checkedAdd(state.offset, perPage) < state.itemCount)
        stops.emplace_back(ViewAllControl::Forward);
    return stops;
}

std::optional<ViewAllControl> neighbour(const Stops &stops, std::optional<ViewAllControl> current,
                                        bool isBackward)
{
    const auto found = std::ranges::find(stops, current);
    if (found == stops.end())
        return std::nullopt;
    if (isBackward)
        return found == stops.begin() ? stops.back() : *std::prev(found);
    return std::next(found) == stops.end() ? stops.front() : *std::next(found);
}

std::optional<QRectF> ringAround(const ViewAllFocus &focus, const ViewAllLayout &layout, int offset)
{
    if (!focus.isVisible)
        return std::nullopt;
    if (focus.control)
        return grown(frameOf(*focus.control, layout), aroundControl, aroundControl);
    const int place = focus.index - offset;
    if (place < 0 || place >= static_cast<int>(layout.tiles.size()))
        return std::nullopt;
    const ViewAllLayout::Tile &tile = layout.tiles[static_cast<std::size_t>(place)];
    return grown(tile.thumb.translated(tile.root.topLeft()), aroundThumb, aroundThumb);
}

} // namespace corvane::view_all_focus
