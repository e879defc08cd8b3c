// The view-all bar's layouts as text: every number of them, kept in the source tree.

#include "golden/golden.h"
#include "shelf/bar/view_all_layout.h"

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

using namespace view_all_layout;

QString text(const QRectF &rect)
{
    return QStringLiteral("%1 %2 %3 x %4")
        .arg(rect.x())
        .arg(rect.y())
        .arg(rect.width())
        .arg(rect.height());
}

QString text(const ViewAllLayout::Arrow &arrow)
{
    const char *const fill = arrow.fill == ViewAllLayout::Fill::Off ? "off"
        : arrow.fill == ViewAllLayout::Fill::Hover                  ? "hover"
                                                                    : "normal";
    return QStringLiteral("%1, opacity %2, fill %3")
        .arg(text(arrow.frame))
        .arg(arrow.opacity)
        .arg(QLatin1String(fill));
}

QString text(const ViewAllLayout::Button &button)
{
    return QStringLiteral("%1, opacity %2").arg(text(button.frame)).arg(button.opacity);
}

QString text(const ViewAllLayout &layout)
{
    QString lines;
    const auto add = [&lines](const char *name, const QString &value) {
        lines += QLatin1String(name) % u": " % value % u'\n';
    };
    add("size", QStringLiteral("%1 x %2").arg(layout.size.width()).arg(layout.size.height()));
    for (const ViewAllLayout::Tile &tile : layout.tiles) {
        add("tile", text(tile.root));
        add("  thumb", text(tile.thumb) % QStringLiteral(", opacity %1").arg(tile.thumbOpacity));
        add("  ring", text(tile.ring) % QStringLiteral(", opacity %1").arg(tile.ringOpacity));
        add("  check", text(tile.check) % (tile.isChecked ? u", checked" : u""));
        add("  caption", text(tile.caption));
    }
    add("left arrow", text(layout.leftArrow));
    add("right arrow", text(layout.rightArrow));
    add("select all",
        text(layout.selectAllBox) % (layout.isEverythingSelected ? u", checked" : u""));
    add("label", text(layout.selectAllLabel) % u' ' % layout.selectionText);
    add("copy", text(layout.copyButton));
    add("trash", text(layout.trashButton));
    for (const QRectF &hit : layout.controlHits)
        add("hit", text(hit));
    return lines;
}

class ViewAllLayouts : public testing::TestWithParam<int> { };

} // namespace

TEST_P(ViewAllLayouts, AreAsKept)
{
    constexpr int items = 40;
    constexpr int offset = 3;
    ViewAllState state;
    state.size = {static_cast<double>(GetParam()), barHeight};
    state.itemCount = items;
    state.selectedCount = 2;
    state.offset = offset;
    const Range range = visibleRange(offset, items, itemsPerPage(state.size.width()));
    state.tiles.resize(static_cast<std::size_t>(range.end - range.first));
    state.tiles.front().isSelected = true;
    state.tiles.back().isHovered = true;
    state.hoveredControl = ViewAllControl::Copy;
    EXPECT_TRUE(
        matchesGoldenText(QStringLiteral("view-all-%1.txt").arg(GetParam()), text(layOut(state))));
}

INSTANTIATE_TEST_SUITE_P(EveryWidth, ViewAllLayouts, testing::Values(92, 600, 1210, 3072));

} // namespace corvane::test
