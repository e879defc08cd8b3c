// Where the shelf answers is where something is drawn that says so. What each point has to answer
// is found out from the layers that are painted, not from the layout.

#include "fakes/random_steps.h"
#include "fakes/shelf_desk.h"
#include "golden/drawn_shelf.h"
#include "platform/base/geometry.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

namespace corvane::test {

namespace {

struct Control {
    ControlRank rank = ControlRank::Cell;
    QString promise;
    /// What looks different while the pointer is on it.
    QStringList signs;
    /// Where it answers, in the panel's coordinates.
    QRectF area;
    /// A part of the row, of which nothing is seen beyond the body.
    bool isInRow = false;
};

/// A shelf with anything in it, and what came of the last press.
class PressedShelf {
public:
    explicit PressedShelf(RandomSteps &steps)
    {
        desk.theme.direction = steps.oneOf({Qt::LeftToRight, Qt::RightToLeft});
        if (desk.theme.direction == Qt::RightToLeft)
            steps.note(QStringLiteral("mirrored"));
        desk.motion.reduces = true;
        view.onScroll = [this](int step) { answer << QStringLiteral("scroll %1").arg(step); };
        view.onViewAll = [this] { answer << QStringLiteral("view all"); };
        view.onRemove = [this](int index) { answer << QStringLiteral("remove %1").arg(index); };
        view.onFocus = [this](int index) { answer << QStringLiteral("focus %1").arg(index); };
        view.onQuickLook = [this] { answer << QStringLiteral("preview"); };
        view.onCopy = [this] { answer << QStringLiteral("copy"); };
        view.apply({});
    }

    void step(RandomSteps &steps);

private:
    static ShelfSnapshot anySnapshot(RandomSteps &steps);
    void show(const ShelfSnapshot &snapshot, RandomSteps &steps);
    void findControls();
    std::optional<QRectF> findBadge(const DrawnCell &cell);
    std::optional<QRectF> badgeOf(int itemIndex) const;
    QString promiseOf(const IconKind &kind) const;
    const Control *controlAt(QPointF point) const;

    void pressAroundControls();
    void pressEverywhere();
    void pressAt(QPointF point);
    void hoverAt(QPointF point);
    void pressWhenClosed();

    DrawnShelf drawn() const { return {view, desk.panel.frame().size(), desk.theme.direction}; }
    const ShelfSnapshot &snapshot() const { return view.look().snapshot; }

    ShelfDesk desk;
    QStringList answer;
    ShelfView view{desk.context()};
    std::vector<Control> controls;
    QRectF body;
    QRectF row;
    QPainterPath outline;
};

ShelfSnapshot PressedShelf::anySnapshot(RandomSteps &steps)
{
    const int total = steps.below(10);
    ShelfSnapshot snapshot;
    snapshot.state = total == 0 ? ShelfState::Expanded : ShelfState::Occupied;
    snapshot.inViewCount = steps.oneOf({1, 2, 3, 5, 6});
    snapshot.totalCount = total;
    snapshot.receptive = total == 0 || steps.oneIn(4);
    if (steps.oneIn(4))
        snapshot.notch = {steps.oneOf({200.0, 340.0}), 32};
    const int first = std::max(0, steps.below(1 + std::max(0, total - snapshot.inViewCount)));
    for (int i = first; i < std::min(total, first + snapshot.inViewCount); ++i)
        snapshot.visible.emplace_back(
            i, ShelfDesk::textItem(DrawnShelf::namePrefix + QString::number(i)));
    const bool isFocusInView = !snapshot.visible.empty() && !steps.oneIn(3);
    snapshot.focusedIndex
        = isFocusInView ? steps.oneOf(snapshot.visible).first : steps.below(total + 1);
    snapshot.canScrollBack = first > 0;
    snapshot.canScrollForward = first + snapshot.inViewCount < total;
    steps.note(QStringLiteral("%1 items from %2 on, %3 in view, %4 focused%5, notch %6")
                   .arg(total)
                   .arg(first)
                   .arg(snapshot.inViewCount)
                   .arg(snapshot.focusedIndex)
                   .arg(snapshot.receptive ? u", receptive" : u"")
                   .arg(snapshot.notch.width()));
    return snapshot;
}

/// The panel may be larger than the body, which hangs from the middle of its upper edge.
void PressedShelf::show(const ShelfSnapshot &snapshot, RandomSteps &steps)
{
    const QSizeF more = steps.oneIn(3) ? QSizeF(86, 18) : QSizeF(0, 0);
    desk.panel.setFrame({{100, 500}, view.preferredSize(snapshot) + more});
    view.draggingExited();
    view.mouseExited();
    desk.clock.advance(2 * ShelfView::flashDuration);
    view.apply(snapshot);
    if (steps.oneIn(4)) {
        steps.note(QStringLiteral("flash"));
        view.flash(QStringLiteral("Message"));
    }
    if (steps.oneIn(4)) {
        steps.note(QStringLiteral("a drag enters"));
        FakePasteboard pasteboard;
        pasteboard.offered = QStringList{QStringLiteral("text/plain")};
        pasteboard.text = QStringLiteral("hello");
        view.draggingEntered({pasteboard, {60, 20}, false});
    }
}

QString PressedShelf::promiseOf(const IconKind &kind) const
{
    QString promise = kind.promise;
    if (kind.rank != ControlRank::Action)
        return promise;
    // An action is for the item that is shown, which is focused for that.
    const int shown = snapshot().visible.front().first;
    if (kind.icon == u"trash")
        promise += u' ' % QString::number(shown);
    return shown == snapshot().focusedIndex ? promise
                                            : QStringLiteral("focus %1, ").arg(shown) % promise;
}

void PressedShelf::findControls()
{
    const DrawnShelf shelf = drawn();
    controls.clear();
    body = shelf.body;
    row = shelf.row;
    outline = shelf.outline;
    for (const DrawnIcon &icon : shelf.icons) {
        const bool isArrow = icon.kind.rank == ControlRank::Arrow;
        QStringList signs{icon.kind.icon};
        if (isArrow && icon.opacity < 1)
            signs.clear();
        else if (!isArrow)
            signs << QStringLiteral("plate");
        controls.push_back({icon.kind.rank, promiseOf(icon.kind), signs,
                            grown(icon.frame, icon.kind.dx, icon.kind.dy), false});
    }
    for (const DrawnCell &cell : shelf.cells) {
        const QString focus = cell.itemIndex == snapshot().focusedIndex
            ? QString()
            : QStringLiteral("focus %1").arg(cell.itemIndex);
        QStringList signs;
        if (const auto badge = findBadge(cell)) {
            signs << QStringLiteral("badge %1").arg(cell.itemIndex);
            controls.push_back({ControlRank::Badge, QStringLiteral("remove %1").arg(cell.itemIndex),
                                signs, *badge, true});
        }
        const bool isWhole = row.contains(cell.frame);
        EXPECT_TRUE(!snapshot().isCarousel() || !isWhole || !signs.isEmpty())
            << "no badge in cell " << cell.itemIndex;
        controls.push_back({ControlRank::Cell, focus, signs, cell.frame, true});
    }
    std::ranges::stable_sort(controls, {}, &Control::rank);
}

/// A badge shows while the pointer is on its cell, wherever that is not beneath something else.
std::optional<QRectF> PressedShelf::findBadge(const DrawnCell &cell)
{
    std::optional<QRectF> badge;
    for (double x = minX(cell.frame) + 1; x < maxX(cell.frame) && !badge; x += 4) {
        view.mouseMoved({{x, minY(cell.frame) + 2}});
        badge = badgeOf(cell.itemIndex);
    }
    view.mouseExited();
    return badge;
}

std::optional<QRectF> PressedShelf::badgeOf(int itemIndex) const
{
    for (const DrawnCell &cell : drawn().cells) {
        if (cell.itemIndex == itemIndex)
            return cell.badge;
    }
    return std::nullopt;
}

const Control *PressedShelf::controlAt(QPointF point) const
{
    const auto found = std::ranges::find_if(controls, [&](const Control &control) {
        return contains(control.area, point)
            && (!control.isInRow || (contains(row, point) && outline.contains(point)));
    });
    return found == controls.end() ? nullptr : &*found;
}

void PressedShelf::pressAt(QPointF point)
{
    answer.clear();
    view.mouseDown({point});
    view.mouseUp({point});
    const Control *control = controlAt(point);
    EXPECT_EQ(answer.join(u", ").toStdString(),
              (control ? control->promise : QString()).toStdString())
        << "pressed at " << point.x() << ", " << point.y();
}

/// What looks as if the pointer was on it is what answers there.
void PressedShelf::hoverAt(QPointF point)
{
    constexpr double overShelf = 0.85;
    constexpr double elsewhere = 0.7;
    view.mouseMoved({point});
    const DrawnShelf shelf = drawn();
    const Control *control = controlAt(point);
    QStringList signs;
    for (const DrawnIcon &icon : shelf.icons) {
        const bool isArrow = icon.kind.rank == ControlRank::Arrow;
        const bool isLit
            = isArrow ? icon.ground == desk.theme.palette.buttonFillHover : icon.opacity == 1;
        if (isLit)
            signs << icon.kind.icon;
        if (isLit && !isArrow && shelf.hoverPlate == grown(icon.frame, 4, 4))
            signs << QStringLiteral("plate");
        if (!isLit && !isArrow) {
            EXPECT_EQ(icon.opacity, contains(body, point) ? overShelf : elsewhere);
        }
    }
    if (shelf.hoverPlate && !signs.contains(QStringLiteral("plate")))
        signs << QStringLiteral("a plate elsewhere");
    for (const DrawnCell &cell : shelf.cells) {
        if (cell.badge)
            signs << QStringLiteral("badge %1").arg(cell.itemIndex);
    }
    EXPECT_EQ(lines(signs), lines(control ? control->signs : QStringList()))
        << "hovered at " << point.x() << ", " << point.y();
}

/// The middle of each control, and both sides of its edges and corners.
void PressedShelf::pressAroundControls()
{
    constexpr double near = 0.2;
    for (const Control &control : controls) {
        const QRectF area = control.area;
        for (const double x : {minX(area) - near, minX(area) + near, midX(area), maxX(area) - near,
                               maxX(area) + near}) {
            for (const double y : {minY(area) - near, minY(area) + near, midY(area),
                                   maxY(area) - near, maxY(area) + near}) {
                if (testing::Test::HasFailure())
                    return;
                pressAt({x, y});
                hoverAt({x, y});
            }
        }
    }
}

void PressedShelf::pressEverywhere()
{
    const QSizeF size = desk.panel.frame().size();
    for (double y = 0.7; y < size.height(); y += 3) {
        for (double x = 0.7; x < size.width() && !testing::Test::HasFailure(); x += 4) {
            pressAt({x, y});
            EXPECT_EQ(view.hitTest({x, y}), contains(body, {x, y})) << x << ", " << y;
        }
    }
}

void PressedShelf::pressWhenClosed()
{
    ShelfSnapshot closed = snapshot();
    closed.state = ShelfState::Idle;
    view.apply(closed);
    answer.clear();
    for (const Control &control : controls) {
        view.mouseDown({control.area.center()});
        view.mouseUp({control.area.center()});
    }
    EXPECT_EQ(lines(answer), "");
}

void PressedShelf::step(RandomSteps &steps)
{
    show(anySnapshot(steps), steps);
    findControls();
    pressAroundControls();
    pressEverywhere();
    if (steps.oneIn(4))
        pressWhenClosed();
}

} // namespace

TEST(DrawnControls, OfTheShelfAnswerWhereTheyAreDrawnAndNothingElseDoes)
{
    playAtRandom<PressedShelf>(25, 4);
}

} // namespace corvane::test
