#pragma once

#include <QRectF>
#include <QSizeF>

#include <vector>

namespace corvane {

/// What a tip keeps away from, in global points.
struct TipSurroundings {
    /// What the tip is about.
    QRectF cell;
    /// The panel that the cell is on.
    QRectF panel;
    /// Panels that the tip must not touch. Above or below them it would hide, or be hidden: some
    /// compositors have the oldest of our windows on top.
    std::vector<QRectF> otherPanels;
    QRectF screen;
};

/// Where a tip of that size is placed: centred below the cell; where there is no room, above it,
/// beside its panel, or beyond the others; always inside of the screen. The place is a whole one.
QRectF tipFrame(QSizeF size, const TipSurroundings &around, double gap);

} // namespace corvane
