// Where the bar answers a press is where something is drawn that says so: every control that can be
// seen does at its middle what its icon says, and nothing answers elsewhere.

#include "fakes/layer_walk.h"
#include "fakes/random_steps.h"
#include "fakes/shelf_desk.h"
#include "platform/base/geometry.h"
#include "shelf/bar/view_all_view.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace corvane::test {

namespace {

/// What a press on an icon has to come to, by the first word of the icon's name. A caret goes to
/// where it points.
QString promiseOf(const QString &iconKey, Qt::LayoutDirection direction)
{
    const bool isMirrored = direction == Qt::RightToLeft;
    const QString icon = iconKey.section(u' ', 0, 0);
    if (icon == u"trash")
        return QStringLiteral("remove");
    if (icon == u"copy")
        return QStringLiteral("copy");
    if (icon == u"caretLeft")
        return isMirrored ? QStringLiteral("scroll 1") : QStringLiteral("scroll -1");
    if (icon == u"caretRight")
        return isMirrored ? QStringLiteral("scroll -1") : QStringLiteral("scroll 1");
    return QStringLiteral("toggle");
}

struct Control {
    QString name;
    QString promise;
    /// In the panel's coordinates.
    QRectF frame;
};

std::vector<Control> controlsOf(const std::vector<Layer *> &roots, Qt::LayoutDirection direction)
{
    std::vector<Control> controls;
    for (const SeenLayer &seen : seenLayers(roots)) {
        const auto *bitmap = dynamic_cast<const BitmapLayer *>(seen.layer);
        const QString promise = bitmap ? promiseOf(bitmap->key(), direction) : QString();
        if (!promise.isEmpty())
            controls.push_back({seen.name % u' ' % bitmap->key(), promise, seen.frame});
    }
    return controls;
}

/// A bar with anything in it, and what came of the last press.
class PressedBar {
public:
    explicit PressedBar(RandomSteps &steps)
    {
        desk.theme.direction = steps.oneOf({Qt::LeftToRight, Qt::RightToLeft});
        if (isMirrored())
            steps.note(QStringLiteral("mirrored"));
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
            const double atSide = isMirrored() ? width - maxX(control.frame) : control.frame.x();
            const bool isAll = atSide < 30 && control.frame.y() < 20;
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
        return controlsOf(roots, desk.theme.direction);
    }
    bool isMirrored() const { return desk.theme.direction == Qt::RightToLeft; }

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

TEST(DrawnControls, DoInTheBarWhatTheirIconsSayAndNothingElseAnswers)
{
    playAtRandom<PressedBar>(12, 4);
}

} // namespace corvane::test
