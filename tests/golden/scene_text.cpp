#include "golden/scene_text.h"

#include "fakes/layer_walk.h"

#include <QPen>

#include <cmath>

namespace corvane::test {

namespace {

QString text(double number)
{
    constexpr double precision = 1000;
    // Adding 0 turns -0 into 0.
    return QString::number(std::round(number * precision) / precision + 0);
}

QString text(const QRectF &rect)
{
    return text(rect.x()) % u' ' % text(rect.y()) % u' ' % text(rect.width()) % u" x "
        % text(rect.height());
}

QString text(const QColor &color)
{
    return color.name(QColor::HexArgb);
}

QString text(const QPen &pen)
{
    QString result = text(pen.color()) % u' ' % text(pen.widthF());
    if (pen.style() == Qt::CustomDashLine) {
        result += QStringLiteral(" dashed");
        for (const double length : pen.dashPattern())
            result += u' ' % text(length);
    }
    return result;
}

QString text(const QPainterPath &path)
{
    return QStringLiteral("%1 elements in %2, %3 long")
        .arg(path.elementCount())
        .arg(text(path.boundingRect()), text(path.length()));
}

QString text(const QFont &font)
{
    return QStringLiteral("%1 %2 weight %3")
        .arg(font.family(), text(font.pointSizeF()))
        .arg(font.weight());
}

QString text(Qt::TextElideMode mode)
{
    return mode == Qt::ElideMiddle ? QStringLiteral("cut in the middle")
        : mode == Qt::ElideRight   ? QStringLiteral("cut at the end")
                                   : QStringLiteral("cut elsewhere");
}

QString textLayer(const TextLayer &layer)
{
    const QString side = layer.alignment() & Qt::AlignHCenter ? QStringLiteral("centred")
        : layer.alignment() & Qt::AlignRight                  ? QStringLiteral("right")
                                                              : QStringLiteral("left");
    const QString direction = layer.textDirection() == Qt::RightToLeft
        ? QStringLiteral(" from right")
        : layer.textDirection() == Qt::LeftToRight ? QString()
                                                   : QStringLiteral(" from its first letter");
    return QStringLiteral(", \"%1\", %2, %3, %4%5, %6")
        .arg(layer.string(), text(layer.color()), text(layer.font()), side, direction,
             text(layer.elideMode()));
}

QString shapeLayer(const ShapeLayer &layer)
{
    QString result;
    if (layer.fillColor().alpha() > 0)
        result += u", filled " % text(layer.fillColor());
    if (layer.stroke().style() != Qt::NoPen)
        result += u", line " % text(layer.stroke());
    return result % u", " % text(layer.path());
}

QString own(const Layer &layer, const PanelStage &stage)
{
    QString result;
    if (layer.opacity() != 1)
        result += u", opacity " % text(layer.opacity());
    if (layer.transform() != Layer::Transform{})
        result += u", shifted " % text(layer.transform().dx) % u' ' % text(layer.transform().dy);
    if (layer.backgroundColor().alpha() > 0)
        result += u", ground " % text(layer.backgroundColor());
    if (layer.cornerRadius() > 0)
        result += u", radius " % text(layer.cornerRadius());
    if (const Layer::Border border = layer.border(); border.color.alpha() > 0)
        result += u", border " % text(border.color) % u' ' % text(border.radius) % u' '
            % text(border.outset);
    if (layer.clipsSublayers())
        result += QStringLiteral(", clips");
    if (const auto *letters = asKind<TextLayer>(layer))
        result += textLayer(*letters);
    if (const auto *shape = asKind<ShapeLayer>(layer))
        result += shapeLayer(*shape);
    if (const auto *bitmap = asKind<BitmapLayer>(layer))
        result += u", " % stage.nameOfPicture(bitmap->key());
    return result;
}

void add(const Layer &layer, const PanelStage &stage, int depth, QString &lines)
{
    if (layer.opacity() <= layer_walk::invisibleOpacity)
        return;
    lines += QString(2 * depth, u' ') % kindOf(layer) % u' ' % text(layer.frame())
        % own(layer, stage) % u'\n';
    for (const Layer *sublayer : layer.sublayers())
        add(*sublayer, stage, depth + 1, lines);
}

} // namespace

QString sceneText(PanelStage &stage)
{
    QString lines;
    for (const Layer *root : stage.roots())
        add(*root, stage, 0, lines);
    return lines;
}

} // namespace corvane::test
