#pragma once

#include "platform/desktop/accessible_node.h"
#include "shelf/shelf_hit_test.h"
#include "shelf/shelf_layers.h"

#include <QPointF>
#include <QString>

#include <optional>

/// The shelf as assistive technologies are told of it.
namespace corvane::accessible_shelf {

/// Names of an item's actions beside `AccessibleNode::press`, which focuses it. `moveOut` copies it
/// and takes it off the shelf: a drag-out by the clipboard.
QString preview();
QString copy();
QString remove();
QString moveOut();

/// The tree of a shelf that looks like that; empty while it is closed. `body` is the body's bottom
/// left in the panel.
AccessibleNode describe(const ShelfLook &look, QPointF body);

/// Where a click would have to go that does what pressing the control with that key means; none if
/// the shelf has no such control now.
std::optional<ShelfHit> controlOf(const QString &key, const ShelfLook &look);

/// What is to be said when one snapshot follows another: what came and what left. Empty for
/// nothing.
QString newsOf(const ShelfSnapshot &before, const ShelfSnapshot &now);

/// What is to be said when the user has paged from one snapshot to another: the items that came
/// into view. Empty for none.
QString newsOfPage(const ShelfSnapshot &before, const ShelfSnapshot &now);

/// What is to be said when the user has hidden the shelf, of which nothing else tells who does not
/// see it.
QString hiddenNews();

} // namespace corvane::accessible_shelf
