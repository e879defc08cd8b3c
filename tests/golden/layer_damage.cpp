#include "fakes/layer_walk.h"
#include "golden/another_word.h"
#include "golden/damage.h"
#include "shelf/drawing/bitmap_layer.h"
#include "shelf/drawing/phosphor_icon_drawing.h"
#include "shelf/drawing/stroke_icon.h"
#include "shelf/drawing/text_layer.h"

namespace corvane::test {

namespace {

constexpr double opacityStep = 0.1;

/// As large as `original`, and no picture that is shown anywhere.
QImage anotherIcon(const QImage &original, const QString &key)
{
    const double scale = original.devicePixelRatio();
    const double side = original.deviceIndependentSize().width();
    const QColor tint = QColor::fromRgbF(1, 1, 1, 0.92F);
    if (key == rawValue(PhosphorIcon::Image))
        return phosphor_icon::image(PhosphorIcon::File, side, tint, 0.15, scale);
    const StrokeIcon icon = key.startsWith(stroke_icon::name(StrokeIcon::CaretLeft))
        ? StrokeIcon::CaretRight
        : key.startsWith(stroke_icon::name(StrokeIcon::Copy)) ? StrokeIcon::Trash
                                                              : StrokeIcon::Copy;
    return stroke_icon::image(icon, side, tint, 1, 1.3, scale);
}

void addMoves(const SeenLayer &seen, std::vector<Damage> &damages)
{
    Layer *layer = seen.layer;
    const double opacity = layer->opacity();
    const auto setOpacity = [layer](double value) { return [=] { layer->setOpacity(value); }; };
    damages.push_back({seen.name % u" erased", setOpacity(0), setOpacity(opacity)});
    damages.push_back(
        {seen.name % u" at another opacity",
         setOpacity(opacity > opacityStep ? opacity - opacityStep : opacity + opacityStep),
         setOpacity(opacity)});
    const Layer::Transform there = layer->transform();
    for (const auto &[dx, dy, way] :
         {std::tuple(1, 0, u" to the right"), {-1, 0, u" to the left"}, {0, 1, u" up"}}) {
        damages.push_back({seen.name % way,
                           [=] {
                               layer->setTransform({there.dx + dx, there.dy + dy});
                           },
                           [=] { layer->setTransform(there); }});
    }
}

void addContents(const SeenLayer &seen, std::vector<Damage> &damages)
{
    if (auto *text = dynamic_cast<TextLayer *>(seen.layer)) {
        const QString says = text->string();
        const auto say = [text](const QString &string) { return [=] { text->setString(string); }; };
        damages.push_back({seen.name % u" with another word", say(anotherWord(says)), say(says)});
        damages.push_back(
            {seen.name % u" with another letter", say(anotherLetter(says)), say(says)});
    }
    if (auto *bitmap = dynamic_cast<BitmapLayer *>(seen.layer)) {
        const QString key = bitmap->key();
        const BitmapLayer::Contents contents = bitmap->contents();
        damages.push_back({seen.name % u" with another icon",
                           [=] {
                               bitmap->setContents(QStringLiteral("another"), [=](double scale) {
                                   return anotherIcon(contents(scale), key);
                               });
                           },
                           [=] { bitmap->setContents(key, contents); }});
    }
}

} // namespace

std::vector<Damage> damagesOf(const std::vector<Layer *> &roots)
{
    std::vector<Damage> damages;
    for (const SeenLayer &seen : seenLayers(roots)) {
        // What fades a row is seen by what it covers alone, which may be nothing.
        if (kindOf(*seen.layer) == fadeKind)
            continue;
        addMoves(seen, damages);
        addContents(seen, damages);
    }
    return damages;
}

} // namespace corvane::test
