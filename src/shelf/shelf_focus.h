#pragma once

#include "shelf/shelf_hit_test.h"
#include "shelf/shelf_snapshot.h"

#include <QRectF>

#include <optional>
#include <vector>

/// Where the keyboard can be on the shelf.
namespace corvane::shelf_focus {

/// What Tab goes through, in this order: the items in view, their buttons, the button for all
/// items, and the arrows that lead somewhere.
std::vector<ShelfHit> stops(const ShelfLayout &layout, const ShelfSnapshot &snapshot);

/// The stop after `current`, or before it, around the ends. If `current` is none of them, the first
/// or the last one; none without stops.
std::optional<ShelfHit> neighbour(const std::vector<ShelfHit> &stops, const ShelfHit &current,
                                  bool isBackward);

/// The ring around a control, in the body's coordinates; none for items, which have one of their
/// own.
std::optional<QRectF> ringAround(const ShelfHit &stop, const ShelfLayout &layout);

} // namespace corvane::shelf_focus
