// Where panels answer a press is where something is drawn that says so: every control that can be
// seen does at its middle what its icon says, and nothing answers elsewhere.

#include "fakes/layer_walk.h"
#include "fakes/random_steps.h"
#include "fakes/shelf_desk.h"
#include "shelf/view_all_view.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace corvane::test {

namespace {

/// What a press on an icon has to come to, by the first word of the icon's name.
QString promiseOf(const QString &iconKey, bool isBar)
{
    const QString icon = iconKey.section(u' ', 0, 0);
    if (icon == u"trash")
        return QStringLiteral("remove");
    if (icon == u"cross")
        return QStringLiteral("remove");
    if (icon == u"copy")
        return QStringLiteral("copy");
    if (icon == u"eye")
        return QStringLiteral("preview");
    if (icon == u"squaresFour")
        return QStringLiteral("view all");
    if (icon == u"caretLeft")
        return QStringLiteral("scroll -1");
    if (icon == u"caretRight")
        return QStringLiteral("scroll 1");
    return isBar ? QStringLiteral("toggle") : QString();
}

struct Control {
    QString name;
    QString promise;
    /// In the panel's coordinates.
    QRectF frame;
};

std::vector<Control> controlsOf(const std::vector<Layer *> &roots, QPointF origin, bool isBar)
{
    std::vector<Control> controls;
    for (const SeenLayer &seen : seenLayers(roots)) {
        const auto *bitmap = dynamic_cast<const BitmapLayer *>(seen.layer);
        const QString promise = bitmap ? promiseOf(bitmap->key(), isBar) : QString();
        if (!promise.isEmpty())
            controls.push_back(
                {seen.name % u' ' % bitmap->key(), promise, seen.frame.translated(origin)});
    }
    return controls;
}

/// A shelf with anything on it, and what came of the last press.
class PressedShelf {
public:
    explicit PressedShelf(RandomSteps & /*steps*/)
    {
        view.onRemove = [this](int) { answer = QStringLiteral("remove"); };
        view.onCopy = [this] { answer = QStringLiteral("copy"); };
        view.onQuickLook = [this] { answer = QStringLiteral("preview"); };
        view.onViewAll = [this] { answer = QStringLiteral("view all"); };
        view.onScroll = [this](int steps) { answer = QStringLiteral("scroll %1").arg(steps); };
        view.onFocus = [this](int) { answer = QStringLiteral("focus"); };
        desk.motion.reduces = true;
    }

    void step(RandomSteps &steps)
    {
        const ShelfSnapshot snapshot = any(steps);
        ShelfDesk::fit(desk.panel, view, snapshot);
        view.apply(snapshot);
        const QSizeF size = desk.panel.frame().size();
        view.mouseMoved({QPointF(steps.below(static_cast<int>(size.width())),
                                 steps.below(static_cast<int>(size.height())))});
        for (const Control &control : controls())
            EXPECT_EQ(answerAt(control.frame.center()).toStdString(), control.promise.toStdString())
                << control.name.toStdString();
        pressEverywhere();
    }

private:
    ShelfSnapshot any(RandomSteps &steps)
    {
        const int total = steps.below(9);
        ShelfSnapshot snapshot;
        snapshot.state = total > 0 ? ShelfState::Occupied : ShelfState::Expanded;
        snapshot.totalCount = total;
        snapshot.inViewCount = 1 + steps.below(6);
        snapshot.receptive = steps.oneIn(4);
        const int last = std::max(total - snapshot.inViewCount, 0);
        const int first = steps.below(last + 1);
        for (int i = first; i < std::min(first + snapshot.inViewCount, total); ++i)
            snapshot.visible.emplace_back(i, ShelfDesk::textItem(QStringLiteral("item")));
        snapshot.focusedIndex = first;
        snapshot.canScrollBack = first > 0;
        snapshot.canScrollForward = first < last;
        if (steps.oneIn(4))
            snapshot.notch = {200, 32};
        steps.note(QStringLiteral("%1 items, %2 in view from %3 on, receptive %4, notch %5")
                       .arg(total)
                       .arg(snapshot.inViewCount)
                       .arg(first)
                       .arg(snapshot.receptive)
                       .arg(snapshot.notch.width()));
        return snapshot;
    }

    std::vector<Control> controls()
    {
        const QSizeF size = desk.panel.frame().size();
        return controlsOf({const_cast<Layer *>(&view.layers().root())},
                          {size.width() / 2, size.height()}, false);
    }

    QString answerAt(QPointF point)
    {
        answer.clear();
        view.mouseDown({point});
        view.mouseUp({point});
        return answer;
    }

    /// Every few points: what answers is drawn there, or close by.
    void pressEverywhere()
    {
        constexpr double reach = 14;
        const QImage image = ShelfDesk::paint(view, desk.panel);
        std::vector<Control> drawn = controls();
        for (int y = 1; y < image.height(); y += 3) {
            for (int x = 1; x < image.width(); x += 3) {
                const QPointF point(x + 0.5, image.height() - y - 0.5);
                const QString done = answerAt(point);
                // A cell answers in all of its rectangle.
                if (done.isEmpty() || done == u"focus")
                    continue;
                if (done == u"remove") {
                    // A badge shows itself to the pointer.
                    view.mouseMoved({point});
                    drawn = controls();
                }
                EXPECT_TRUE(std::any_of(
                    drawn.begin(), drawn.end(),
                    [&](const Control &control) {
                        return control.promise == done
                            && control.frame.adjusted(-reach, -reach, reach, reach).contains(point);
                    }))
                    << done.toStdString() << " without a sign of it at " << x << ", " << y;
            }
        }
    }

    ShelfDesk desk;
    QString answer;
    ShelfView view{desk.context()};
};

/// The same for the bar.
class PressedBar {
public:
    explicit PressedBar(RandomSteps & /*steps*/)
    {
        view.onToggleItem = [this](const DropItem &) { answer = QStringLiteral("toggle"); };
        view.onToggleSelectAll = [this] { answer = QStringLiteral("toggle all"); };
        view.onCopySelected = [this] { answer = QStringLiteral("copy"); };
        view.onRemoveSelected = [this] { answer = QStringLiteral("remove"); };
        view.onScroll = [this](int step) { answer = QStringLiteral("scroll %1").arg(step); };
    }

    void step(RandomSteps &steps)
    {
        items.clear();
        selection.clear();
        const int total = 2 + steps.below(20);
        for (int i = 0; i < total; ++i)
            items << ShelfDesk::textItem(QStringLiteral("item %1").arg(i));
        for (int i = 0; i < total; ++i) {
            if (steps.oneIn(3))
                selection.insert(items[i].id());
        }
        const int width = 400 + steps.below(900);
        const int offset = steps.below(total);
        steps.note(QStringLiteral("%1 items from %2 on in %3").arg(total).arg(offset).arg(width));
        desk.panel.setFrame({0, 0, static_cast<double>(width), view_all_layout::barHeight});
        view.apply(items, selection, offset);
        for (const Control &control : controls()) {
            const bool isAll = control.frame.x() < 30 && control.frame.y() < 20;
            const QString promise = control.promise == u"toggle" && isAll
                ? QStringLiteral("toggle all")
                : control.promise;
            EXPECT_EQ(answerAt(control.frame.center()).toStdString(), promise.toStdString())
                << control.name.toStdString();
        }
        pressEverywhere(width);
    }

private:
    std::vector<Control> controls()
    {
        std::vector<Layer *> roots;
        for (const Layer *root : view.layers().roots())
            roots.push_back(const_cast<Layer *>(root));
        return controlsOf(roots, {}, true);
    }

    QString answerAt(QPointF point)
    {
        answer.clear();
        view.mouseDown({point});
        view.mouseUp({point});
        return answer;
    }

    /// A tile answers in its whole column, and box and label are one control.
    void pressEverywhere(int width)
    {
        constexpr double reach = 9;
        const std::vector<Control> drawn = controls();
        for (int y = 1; y < static_cast<int>(view_all_layout::barHeight); y += 4) {
            for (int x = 1; x < width; x += 4) {
                const QPointF point(x + 0.5, y + 0.5);
                const QString done = answerAt(point);
                const bool isIcon = done == u"copy" || done == u"remove" || done.startsWith(u's');
                EXPECT_TRUE(!isIcon
                            || std::any_of(drawn.begin(), drawn.end(),
                                           [&](const Control &control) {
                                               return control.promise == done
                                                   && control.frame
                                                          .adjusted(-reach, -reach, reach, reach)
                                                          .contains(point);
                                           }))
                    << done.toStdString() << " without a sign of it at " << x << ", " << y;
            }
        }
    }

    ShelfDesk desk;
    QString answer;
    QList<DropItem> items;
    QSet<QUuid> selection;
    ViewAllView view{{desk.panel, desk.clock, desk.motion, desk.theme, desk.keyboard,
                      desk.dragWriter, desk.savedPictures, desk.preparation}};
};

} // namespace

TEST(DrawnControls, DoOnTheShelfWhatTheirIconsSayAndNothingElseAnswers)
{
    playAtRandom<PressedShelf>(20, 4);
}

TEST(DrawnControls, DoInTheBarWhatTheirIconsSayAndNothingElseAnswers)
{
    playAtRandom<PressedBar>(12, 4);
}

} // namespace corvane::test
