// Layouts as text: every number of a state of the shelf, kept in the source tree.

#include "fakes/shelf_desk.h"
#include "golden/golden.h"
#include "shelf/shelf_layout.h"

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

QString text(const QRectF &rect)
{
    return QStringLiteral("%1 %2 %3 x %4")
        .arg(rect.x())
        .arg(rect.y())
        .arg(rect.width())
        .arg(rect.height());
}

QString text(const ShelfLayout &layout)
{
    QString lines;
    const auto add = [&lines](const QString &name, const QRectF &rect) {
        lines += name % u": " % text(rect) % u'\n';
    };
    lines += QStringLiteral("size: %1 x %2, body %3\n")
                 .arg(layout.size.width())
                 .arg(layout.size.height())
                 .arg(layout.bodyHeight);
    add(QStringLiteral("ring"), layout.ring);
    add(QStringLiteral("hint"), layout.hint);
    for (const ShelfLayout::Cell &cell : layout.cells) {
        add(QStringLiteral("cell %1").arg(cell.itemIndex), cell.root);
        add(QStringLiteral("  thumb"), cell.thumb);
        add(QStringLiteral("  title"), cell.title);
        if (cell.subtitle)
            add(QStringLiteral("  subtitle"), *cell.subtitle);
        add(QStringLiteral("  focus ring"), cell.focusRing);
        add(QStringLiteral("  badge"), cell.badge);
    }
    for (std::size_t side = 0; layout.arrows && side < 2; ++side) {
        add(QStringLiteral("arrow"), (*layout.arrows)[side]);
        add(QStringLiteral("  hit"), layout.arrowHits[side]);
    }
    for (std::size_t i = 0; layout.actionButtons && i < 3; ++i) {
        add(QStringLiteral("action"), (*layout.actionButtons)[i]);
        add(QStringLiteral("  hit"), layout.actionHits[i]);
    }
    if (layout.divider)
        add(QStringLiteral("divider"), *layout.divider);
    if (layout.viewAllButton) {
        add(QStringLiteral("view all"), *layout.viewAllButton);
        add(QStringLiteral("  hit"), layout.viewAllHit);
    }
    add(QStringLiteral("flash"), layout.flash);
    lines += layout.overflows ? QStringLiteral("overflows\n") : QString();
    return lines;
}

struct Case {
    const char *name;
    int total;
    int inView;
    bool receptive;
    QSizeF notch;
};

class ShelfLayouts : public testing::TestWithParam<Case> { };

} // namespace

TEST_P(ShelfLayouts, AreAsKept)
{
    const Case &given = GetParam();
    ShelfSnapshot snapshot;
    snapshot.state = given.total > 0 ? ShelfState::Occupied : ShelfState::Expanded;
    snapshot.inViewCount = given.inView;
    snapshot.totalCount = given.total;
    snapshot.receptive = given.receptive;
    snapshot.notch = given.notch;
    for (int i = 0; i < std::min(given.total, given.inView); ++i)
        snapshot.visible.emplace_back(i, ShelfDesk::fileItem(QStringLiteral("a.txt")));
    EXPECT_TRUE(matchesGoldenText(QString::fromLatin1(given.name) + QStringLiteral(".txt"),
                                  text(layoutShelf(snapshot, 120))));
}

INSTANTIATE_TEST_SUITE_P(EveryState, ShelfLayouts,
                         testing::Values(Case{"layout-empty", 0, 1, true, {0, 0}},
                                         Case{"layout-empty-notch-200", 0, 3, true, {200, 32}},
                                         Case{"layout-empty-notch-210", 0, 3, true, {210, 32}},
                                         Case{"layout-1-in-1", 1, 1, false, {0, 0}},
                                         Case{"layout-5-in-1", 5, 1, false, {0, 0}},
                                         Case{"layout-1-in-3", 1, 3, false, {0, 0}},
                                         Case{"layout-3-in-3", 3, 3, false, {0, 0}},
                                         Case{"layout-5-in-3", 5, 3, false, {0, 0}},
                                         Case{"layout-6-in-6", 6, 6, false, {0, 0}},
                                         Case{"layout-7-in-6-notch-210", 7, 6, false, {210, 32}},
                                         Case{"layout-5-in-3-receptive", 5, 3, true, {0, 0}},
                                         Case{"layout-1-in-1-receptive", 1, 1, true, {0, 0}},
                                         Case{"layout-6-in-6-receptive", 6, 6, true, {0, 0}}),
                         [](const auto &given) {
                             std::string name = given.param.name;
                             std::erase(name, '-');
                             return name;
                         });

} // namespace corvane::test
