#pragma once

#include "shelf/drawing/bitmap_layer.h"
#include "shelf/drawing/glass_background.h"
#include "shelf/drawing/pill_layer.h"
#include "shelf/drawing/ring_layer.h"
#include "shelf/drawing/text_layer.h"

#include <QRectF>
#include <QString>

#include <vector>

namespace corvane::test {

/// A visible layer and its place.
struct SeenLayer {
    Layer *layer = nullptr;
    /// Its kind and number, for messages.
    QString name;
    /// In the coordinates of the roots.
    QRectF frame;
    /// Its text; empty if it is no text layer.
    QString text;
};

template<typename Kind>
const Kind *asKind(const Layer &layer)
{
    return dynamic_cast<const Kind *>(&layer);
}

inline const QString fadeKind = QStringLiteral("fade");

/// "text", "bitmap", "ring" and so on.
inline QString kindOf(const Layer &layer)
{
    if (asKind<TextLayer>(layer))
        return QStringLiteral("text");
    if (asKind<BitmapLayer>(layer))
        return QStringLiteral("bitmap");
    if (asKind<PillLayer>(layer))
        return QStringLiteral("pill");
    if (asKind<RingLayer>(layer))
        return QStringLiteral("ring");
    if (asKind<ShapeLayer>(layer))
        return QStringLiteral("shape");
    if (asKind<GlassBackground>(layer))
        return QStringLiteral("glass");
    return typeid(layer) == typeid(Layer) ? QStringLiteral("layer") : fadeKind;
}

namespace layer_walk {

constexpr double invisibleOpacity = 0.002;

/// Whether the layer itself paints something, apart from its sublayers.
inline bool paintsSomething(const Layer &layer)
{
    if (layer.bounds().isEmpty())
        return false;
    if (const auto *text = asKind<TextLayer>(layer))
        return !text->string().isEmpty();
    if (const auto *bitmap = asKind<BitmapLayer>(layer))
        return bitmap->contents() != nullptr;
    // All kinds derived from `Layer` draw something.
    return typeid(layer) != typeid(Layer) || layer.backgroundColor().alpha() > 0;
}

struct Place {
    QPointF origin;
    /// What is outside is not visible; null without a limit.
    QRectF clip;
};

inline void walk(Layer &layer, const Place &place, const QString &path,
                 std::vector<SeenLayer> &seen)
{
    const QRectF frame = layer.presentedFrame().translated(place.origin);
    if (layer.presentedOpacity() <= invisibleOpacity
        || (!place.clip.isNull() && !frame.intersects(place.clip)))
        return;
    const auto *text = asKind<TextLayer>(layer);
    const Place inside{frame.topLeft(), layer.clipsSublayers() ? frame : place.clip};
    const QString name = path % kindOf(layer);
    const std::size_t at = seen.size();
    seen.push_back({&layer, name, frame, text ? text->string() : QString()});
    int index = 0;
    for (Layer *sublayer : layer.sublayers())
        walk(*sublayer, inside, name % u'/' % QString::number(index++) % u' ', seen);
    if (seen.size() == at + 1 && !paintsSomething(layer))
        seen.pop_back();
}

} // namespace layer_walk

/// All visible layers from the bottom to the top, containers before their sublayers. A container is
/// listed if it contains a visible layer.
inline std::vector<SeenLayer> seenLayers(const std::vector<Layer *> &roots)
{
    std::vector<SeenLayer> seen;
    for (Layer *root : roots)
        layer_walk::walk(*root, {}, {}, seen);
    return seen;
}

} // namespace corvane::test
