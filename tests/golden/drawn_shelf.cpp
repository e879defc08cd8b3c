#include "golden/drawn_shelf.h"

#include "fakes/layer_walk.h"

#include <algorithm>
#include <array>

namespace corvane::test {

namespace {

constexpr QLatin1String back("scroll -1");
constexpr QLatin1String forward("scroll 1");
constexpr std::array<IconKind, 6> iconKinds{{
    {QLatin1String("caretLeft"), back, 3, 3, ControlRank::Arrow},
    {QLatin1String("caretRight"), forward, 3, 3, ControlRank::Arrow},
    {QLatin1String("squaresFour"), QLatin1String("view all"), 4, 5, ControlRank::ViewAll},
    {QLatin1String("eye"), QLatin1String("preview"), 1.5, 4, ControlRank::Action},
    {QLatin1String("copy"), QLatin1String("copy"), 1.5, 4, ControlRank::Action},
    {QLatin1String("trash"), QLatin1String("remove"), 1.5, 4, ControlRank::Action},
}};

} // namespace

DrawnShelf::DrawnShelf(const ShelfView &view, QSizeF panel, Qt::LayoutDirection direction)
    : m_direction(direction)
{
    // Its layers are there to be looked at.
    auto seen = seenLayers({const_cast<Layer *>(&view.layers().root())});
    for (SeenLayer &one : seen) {
        one.frame.translate(panel.width() / 2, panel.height());
        const auto container = std::find_if(seen.begin(), seen.end(), [&](const SeenLayer &other) {
            return other.name == one.name.left(one.name.lastIndexOf(u'/'));
        });
        add(one, *container);
    }
}

void DrawnShelf::add(const SeenLayer &seen, const SeenLayer &container)
{
    constexpr double hoverPlateRadius = 7;
    constexpr double badgeRadius = 6.5;
    const bool isPlain = kindOf(*seen.layer) == u"layer";
    if (seen.layer == container.layer)
        body = seen.frame;
    else if (const auto *pill = asKind<PillLayer>(*seen.layer))
        outline = pill->path().translated(seen.frame.topLeft());
    else if (seen.layer->clipsSublayers())
        row = seen.frame;
    else if (seen.text.startsWith(namePrefix))
        cells.push_back({seen.text.mid(namePrefix.size()).toInt(), container.frame, std::nullopt});
    else if (isPlain && seen.layer->cornerRadius() == hoverPlateRadius)
        hoverPlate = seen.frame;
    else if (isPlain && seen.layer->cornerRadius() == badgeRadius)
        cells.back().badge = seen.frame;

    const auto *bitmap = asKind<BitmapLayer>(*seen.layer);
    const QString icon = bitmap ? bitmap->key().section(u' ', 0, 0) : QString();
    for (IconKind kind : iconKinds) {
        if (icon != kind.icon)
            continue;
        if (m_direction == Qt::RightToLeft && kind.rank == ControlRank::Arrow)
            kind.promise = kind.promise == back ? forward : back;
        icons.push_back(
            {kind, seen.frame, seen.layer->opacity(), container.layer->backgroundColor()});
    }
}

} // namespace corvane::test
