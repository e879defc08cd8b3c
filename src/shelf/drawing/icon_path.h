#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QRectF>

#include <array>
#include <vector>

namespace corvane {

/// One step of an icon's outline, in unit coordinates: 0 to 1 on both axes, y upward.
struct PathCommand {
    enum class Kind { Move, Line, Quad, Curve, Close };

    Kind kind = Kind::Close;
    /// The end point is the last one used; control points stand before it.
    std::array<QPointF, 3> points{};
};

/// Builds the outline of a filled icon. What is added overlaps into one shape, what is cut is taken
/// out of it once.
class IconPath {
public:
    IconPath &roundedRect(const QRectF &rect, double radius);
    IconPath &cutRoundedRect(const QRectF &rect, double radius);
    IconPath &circle(QPointF centre, double radius);
    /// A line of `width` with round ends through all points.
    IconPath &line(const std::vector<QPointF> &points, double width);
    IconPath &polygon(const std::vector<QPointF> &points);
    IconPath &cutPolygon(const std::vector<QPointF> &points);
    /// A lens with its points left and right of the centre, as wide as twice `halfWidth`.
    IconPath &lens(QPointF centre, double halfWidth, double halfHeight);
    IconPath &cutLens(QPointF centre, double halfWidth, double halfHeight);

    const std::vector<PathCommand> &commands() const { return m_commands; }

private:
    enum class Turn { Added, Cut };
    void append(const QPainterPath &outline, Turn turn);

    std::vector<PathCommand> m_commands;
};

/// The commands with every unit point (u, v) at (minX + u width, minY + v height) of `rect`.
QPainterPath pathFromCommands(const std::vector<PathCommand> &commands, const QRectF &rect);

} // namespace corvane
