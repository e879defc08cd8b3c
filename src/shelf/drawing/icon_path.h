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
    /// `Move` and `Line` use one point, `Quad` two, `Curve` three, `Close` none. The last used one
    /// is the end point; control points stand before it.
    std::array<QPointF, 3> points{};
};

/// Builds the outline of a filled icon, in unit coordinates. Shapes that are added unite; a shape
/// that is cut is removed from them.
class IconPath {
public:
    IconPath &roundedRect(const QRectF &rect, double radius);
    IconPath &cutRoundedRect(const QRectF &rect, double radius);
    IconPath &circle(QPointF centre, double radius);
    /// A line of `width` with round ends through all points.
    IconPath &line(const std::vector<QPointF> &points, double width);
    IconPath &polygon(const std::vector<QPointF> &points);
    IconPath &cutPolygon(const std::vector<QPointF> &points);
    /// A lens shape with its points left and right of the centre, 2 `halfWidth` wide and 2
    /// `halfHeight` high.
    IconPath &lens(QPointF centre, double halfWidth, double halfHeight);
    IconPath &cutLens(QPointF centre, double halfWidth, double halfHeight);

    const std::vector<PathCommand> &commands() const { return m_commands; }

private:
    enum class Turn { Added, Cut };
    void append(const QPainterPath &outline, Turn turn);

    std::vector<PathCommand> m_commands;
};

/// The commands as a path in `rect`: unit point (u, v) becomes (minX + u width, minY + v height).
QPainterPath pathFromCommands(const std::vector<PathCommand> &commands, const QRectF &rect);

} // namespace corvane
