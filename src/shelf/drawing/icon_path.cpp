#include "shelf/drawing/icon_path.h"

#include <cmath>

namespace corvane {

namespace {

QPainterPath roundedRectOutline(const QRectF &rect, double radius)
{
    QPainterPath path;
    path.addRoundedRect(rect, radius, radius);
    return path;
}

QPainterPath circleOutline(QPointF centre, double radius)
{
    QPainterPath path;
    path.addEllipse(centre, radius, radius);
    return path;
}

QPainterPath polygonOutline(const std::vector<QPointF> &points)
{
    QPainterPath path(points.front());
    for (std::size_t i = 1; i < points.size(); ++i)
        path.lineTo(points[i]);
    path.closeSubpath();
    return path;
}

QPainterPath lensOutline(QPointF centre, double halfWidth, double halfHeight)
{
    const QPointF left(centre.x() - halfWidth, centre.y());
    const QPointF right(centre.x() + halfWidth, centre.y());
    // A symmetric cubic rises to three quarters of the height of its control points.
    const double reach = halfHeight / 0.75;
    const double along = halfWidth * 0.42;
    QPainterPath path(left);
    path.cubicTo({centre.x() - along, centre.y() + reach}, {centre.x() + along, centre.y() + reach},
                 right);
    path.cubicTo({centre.x() + along, centre.y() - reach}, {centre.x() - along, centre.y() - reach},
                 left);
    path.closeSubpath();
    return path;
}

QPainterPath capsuleOutline(QPointF from, QPointF to, double width)
{
    const QPointF way = to - from;
    const double length = std::hypot(way.x(), way.y());
    QPainterPath capsule;
    capsule.addRoundedRect(QRectF(-width / 2, -width / 2, length + width, width), width / 2,
                           width / 2);
    QTransform turn = QTransform::fromTranslate(from.x(), from.y());
    turn.rotateRadians(std::atan2(way.y(), way.x()));
    return turn.map(capsule);
}

// Twice the signed area of the outline's corner points; its sign is the direction of turning.
double turning(const QPainterPath &path)
{
    double sum = 0;
    const QPolygonF polygon = path.toFillPolygon();
    for (int i = 0; i + 1 < polygon.size(); ++i)
        sum += polygon[i].x() * polygon[i + 1].y() - polygon[i + 1].x() * polygon[i].y();
    return sum;
}

} // namespace

void IconPath::append(const QPainterPath &outline, Turn turn)
{
    // The path is filled by the winding rule: outlines that turn one way add, those that turn the
    // other way cut out.
    const bool turnsLeft = turning(outline) > 0;
    const QPainterPath path = turnsLeft == (turn == Turn::Added) ? outline : outline.toReversed();
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element &element = path.elementAt(i);
        if (element.type == QPainterPath::MoveToElement) {
            m_commands.push_back({PathCommand::Kind::Move, {element}});
        } else if (element.type == QPainterPath::LineToElement) {
            m_commands.push_back({PathCommand::Kind::Line, {element}});
        } else {
            m_commands.push_back({PathCommand::Kind::Curve,
                                  {element, path.elementAt(i + 1), path.elementAt(i + 2)}});
            i += 2;
        }
    }
    m_commands.push_back({PathCommand::Kind::Close, {}});
}

IconPath &IconPath::roundedRect(const QRectF &rect, double radius)
{
    append(roundedRectOutline(rect, radius), Turn::Added);
    return *this;
}

IconPath &IconPath::cutRoundedRect(const QRectF &rect, double radius)
{
    append(roundedRectOutline(rect, radius), Turn::Cut);
    return *this;
}

IconPath &IconPath::circle(QPointF centre, double radius)
{
    append(circleOutline(centre, radius), Turn::Added);
    return *this;
}

IconPath &IconPath::line(const std::vector<QPointF> &points, double width)
{
    for (std::size_t i = 0; i + 1 < points.size(); ++i)
        append(capsuleOutline(points[i], points[i + 1], width), Turn::Added);
    return *this;
}

IconPath &IconPath::polygon(const std::vector<QPointF> &points)
{
    append(polygonOutline(points), Turn::Added);
    return *this;
}

IconPath &IconPath::cutPolygon(const std::vector<QPointF> &points)
{
    append(polygonOutline(points), Turn::Cut);
    return *this;
}

IconPath &IconPath::lens(QPointF centre, double halfWidth, double halfHeight)
{
    append(lensOutline(centre, halfWidth, halfHeight), Turn::Added);
    return *this;
}

IconPath &IconPath::cutLens(QPointF centre, double halfWidth, double halfHeight)
{
    append(lensOutline(centre, halfWidth, halfHeight), Turn::Cut);
    return *this;
}

QPainterPath pathFromCommands(const std::vector<PathCommand> &commands, const QRectF &rect)
{
    const auto at = [&rect](QPointF unit) {
        return QPointF(rect.x() + unit.x() * rect.width(), rect.y() + unit.y() * rect.height());
    };
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    for (const PathCommand &command : commands) {
        const auto &points = command.points;
        switch (command.kind) {
        case PathCommand::Kind::Move:
            path.moveTo(at(points[0]));
            break;
        case PathCommand::Kind::Line:
            path.lineTo(at(points[0]));
            break;
        case PathCommand::Kind::Quad:
            path.quadTo(at(points[0]), at(points[1]));
            break;
        case PathCommand::Kind::Curve:
            path.cubicTo(at(points[0]), at(points[1]), at(points[2]));
            break;
        case PathCommand::Kind::Close:
            path.closeSubpath();
            break;
        }
    }
    return path;
}

} // namespace corvane
