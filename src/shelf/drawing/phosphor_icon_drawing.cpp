#include "shelf/drawing/phosphor_icon_drawing.h"

#include "shelf/drawing/icon_cache.h"

#include <QPainter>

#include <cmath>
#include <map>
#include <numbers>

namespace corvane::phosphor_icon {

namespace {

constexpr double line = 0.085;

IconPath ring(const QRectF &rect, double radius)
{
    IconPath path;
    path.roundedRect(rect, radius);
    path.cutRoundedRect(rect.adjusted(line, line, -line, -line), std::fmax(0.01, radius - line));
    return path;
}

IconPath eye()
{
    IconPath path;
    path.lens({0.5, 0.5}, 0.46, 0.30).cutLens({0.5, 0.5}, 0.36, 0.215).circle({0.5, 0.5}, 0.135);
    return path;
}

IconPath copy()
{
    IconPath path = ring({0.10, 0.10, 0.58, 0.58}, 0.1);
    path.line({{0.34, 0.86}, {0.86, 0.86}, {0.86, 0.34}}, line);
    return path;
}

IconPath squares()
{
    IconPath path;
    for (const double x : {0.11, 0.54}) {
        for (const double y : {0.11, 0.54}) {
            const QRectF outer(x, y, 0.35, 0.35);
            path.roundedRect(outer, 0.08);
            path.cutRoundedRect(outer.adjusted(line, line, -line, -line), 0.03);
        }
    }
    return path;
}

IconPath checkSquare()
{
    IconPath path = ring({0.12, 0.12, 0.76, 0.76}, 0.14);
    path.line({{0.32, 0.50}, {0.45, 0.37}, {0.69, 0.62}}, line);
    return path;
}

IconPath trash()
{
    IconPath path;
    path.line({{0.14, 0.78}, {0.86, 0.78}}, line);
    path.line({{0.37, 0.78}, {0.37, 0.90}, {0.63, 0.90}, {0.63, 0.78}}, line);
    path.line({{0.22, 0.78}, {0.25, 0.12}, {0.75, 0.12}, {0.78, 0.78}}, line);
    path.line({{0.42, 0.62}, {0.42, 0.30}}, line).line({{0.58, 0.62}, {0.58, 0.30}}, line);
    return path;
}

IconPath file()
{
    IconPath path;
    // A page with its corner turned down, and lines of writing.
    path.polygon({{0.20, 0.08}, {0.80, 0.08}, {0.80, 0.66}, {0.57, 0.92}, {0.20, 0.92}});
    path.cutPolygon({{0.56, 0.84}, {0.56, 0.65}, {0.73, 0.65}});
    path.cutRoundedRect({0.31, 0.44, 0.38, 0.07}, 0.03)
        .cutRoundedRect({0.31, 0.27, 0.38, 0.07}, 0.03);
    return path;
}

IconPath picture()
{
    IconPath path = ring({0.09, 0.15, 0.82, 0.70}, 0.12);
    path.circle({0.34, 0.62}, 0.075);
    path.polygon(
        {{0.17, 0.24}, {0.40, 0.48}, {0.52, 0.36}, {0.66, 0.54}, {0.83, 0.33}, {0.83, 0.24}});
    return path;
}

IconPath textLines()
{
    IconPath path;
    path.line({{0.16, 0.80}, {0.84, 0.80}}, line).line({{0.16, 0.60}, {0.62, 0.60}}, line);
    path.line({{0.16, 0.40}, {0.84, 0.40}}, line).line({{0.16, 0.20}, {0.62, 0.20}}, line);
    return path;
}

IconPath chain()
{
    // On the diagonal: two hooks that open towards each other, and the bar between them.
    const auto onDiagonal = [](double along, double across) {
        const double c = std::numbers::sqrt2 / 2;
        return QPointF(0.5 + c * (along - across), 0.5 + c * (along + across));
    };
    IconPath path;
    for (const double side : {-1.0, 1.0}) {
        std::vector<QPointF> hook{onDiagonal(side * 0.12, 0.17)};
        for (int i = 0; i <= 10; ++i) {
            const double angle = std::numbers::pi * (0.5 - i / 10.0);
            hook.push_back(
                onDiagonal(side * (0.28 + 0.17 * std::cos(angle)), 0.17 * std::sin(angle)));
        }
        hook.push_back(onDiagonal(side * 0.12, -0.17));
        path.line(hook, line);
    }
    path.line({onDiagonal(-0.19, 0), onDiagonal(0.19, 0)}, line);
    return path;
}

IconPath folder()
{
    IconPath path;
    path.roundedRect({0.07, 0.16, 0.86, 0.58}, 0.09).roundedRect({0.07, 0.40, 0.40, 0.46}, 0.09);
    path.polygon({{0.40, 0.70}, {0.43, 0.845}, {0.56, 0.735}, {0.56, 0.70}});
    return path;
}

IconPath drawing(PhosphorIcon icon)
{
    switch (icon) {
    case PhosphorIcon::Eye:
        return eye();
    case PhosphorIcon::Copy:
        return copy();
    case PhosphorIcon::X:
        return IconPath()
            .line({{0.22, 0.22}, {0.78, 0.78}}, line)
            .line({{0.22, 0.78}, {0.78, 0.22}}, line);
    case PhosphorIcon::CaretLeft:
        return IconPath().line({{0.62, 0.82}, {0.32, 0.5}, {0.62, 0.18}}, line);
    case PhosphorIcon::CaretRight:
        return IconPath().line({{0.38, 0.82}, {0.68, 0.5}, {0.38, 0.18}}, line);
    case PhosphorIcon::CheckSquare:
        return checkSquare();
    case PhosphorIcon::Square:
        return ring({0.12, 0.12, 0.76, 0.76}, 0.14);
    case PhosphorIcon::Trash:
        return trash();
    case PhosphorIcon::SquaresFour:
        return squares();
    case PhosphorIcon::Check:
        return IconPath().line({{0.16, 0.48}, {0.40, 0.25}, {0.84, 0.74}}, line);
    case PhosphorIcon::File:
        return file();
    case PhosphorIcon::Image:
        return picture();
    case PhosphorIcon::TextAlignLeft:
        return textLines();
    case PhosphorIcon::Link:
        return chain();
    case PhosphorIcon::Folder:
        return folder();
    }
    return {};
}

} // namespace

const std::vector<PathCommand> &commands(PhosphorIcon icon)
{
    static std::map<PhosphorIcon, IconPath> drawings;
    auto found = drawings.find(icon);
    if (found == drawings.end())
        found = drawings.emplace(icon, drawing(icon)).first;
    return found->second.commands();
}

QPainterPath cgPath(PhosphorIcon icon, const QRectF &fitting)
{
    return pathFromCommands(commands(icon), fitting);
}

QImage image(PhosphorIcon icon, double pointSize, const QColor &tint, double inset, double scale)
{
    static IconCache cache;
    const IconCache::Key key{static_cast<int>(icon), pointSize, tint.rgba64(), inset, 0, scale};
    return cache.image(key, [&](QPainter &painter, const QRectF &square) {
        painter.fillPath(cgPath(icon, square), tint);
    });
}

} // namespace corvane::phosphor_icon
