#pragma once

#include "e2e/desktop/gtk_peer.h"
#include "e2e/desktop_test.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace corvane::e2e {

inline DesktopKind sessionOf(WindowManager compositor, const NestedCompositor::Kind &kind = {})
{
    return {.windowManager = compositor,
            .compositor = Compositor::None,
            .size = {1512, 982},
            .nested = kind};
}

/// A test in a Wayland session, whatever the program uses of it.
class WaylandSessionTest : public DesktopTest {
protected:
    explicit WaylandSessionTest(const DesktopKind &kind)
        : DesktopTest(kind)
    {
    }

    static QRect leftPlace() { return {60, 400, 400, 200}; }
    static QRect rightPlace() { return {900, 400, 400, 200}; }

    /// In the middle of the top edge, and next to it.
    QPoint edge() { return {server().size().width() / 2, 0}; }
    QPoint belowEdge() { return edge() + QPoint(0, 200); }
    /// On the wallpaper, with nothing on the way there from the shelf.
    QPoint besideTheShelf() { return edge() + QPoint(400, 100); }

    /// With a drag in the hand, away from where the shelf opens.
    void dropWhereTheShelfOpens(GtkPeer &source)
    {
        ASSERT_NO_FATAL_FAILURE(holdOverShelf());
        dropWhenWelcome(source);
    }

    /// With a drag in the hand under which the shelf opens: the pointer enters nothing, so that no
    /// change of the picture shows what the shelf thinks of it.
    void dropOnTheShelfBelowThePointer(GtkPeer &source)
    {
        ASSERT_NO_FATAL_FAILURE(awaitDropTarget());
        hands().glideTo(dropPoint());
        hands().aim(dropPoint());
        dropWhenWelcome(source);
    }

    void dropWhenWelcome(GtkPeer &source)
    {
        EXPECT_TRUE(wiggleUntil([&] { return source.isSourceWelcome(); })) << source.output();
        hands().release();
    }

    /// Drags a text to the top and away again.
    void expectThatItOpensForADrag()
    {
        GtkPeer source(m_desktop, {.text = QStringLiteral("text")}, leftPlace());
        ASSERT_EQ(source.problem(), QString());
        hands().beginDrag(source.source(), belowEdge());
        EXPECT_TRUE(corvane().waitForHeight(CorvaneProgram::empty.height()));
        hands().glideTo(besideTheShelf());
        hands().release();
    }

    void dragOut(GtkPeer &target)
    {
        const QPoint item = corvane().at(38, 22);
        hands().beginDrag(item, target.target());
        carryTo(target);
    }

    /// With the button held.
    void carryTo(GtkPeer &target)
    {
        hands().glideTo(target.target());
        EXPECT_TRUE(wiggleUntil([&] { return target.isTargetReady(); })) << target.output();
        hands().release();
    }

    /// Only moves are told of. They come as slowly as a hand's: whoever is slower to answer one
    /// than the next one comes would have ever more to do.
    template<class Condition>
    bool wiggleUntil(Condition condition)
    {
        constexpr std::chrono::milliseconds betweenMoves{50};
        int step = 1;
        return eventually([&] {
            hands().moveBy(QPoint(step = -step, 0));
            return eventually(condition, betweenMoves);
        });
    }

    struct Halves {
        QRect left;
        QRect right;
    };
    /// Two outputs side by side.
    Halves halves()
    {
        const QSize half(server().size().width() / 2, server().size().height());
        return {QRect({}, half), QRect({half.width(), 0}, half)};
    }

    /// Tells on which of two outputs the shelf is, neither of which shows it now. Most of it is far
    /// darker than all wallpapers, one of which is not the same in each frame; its texts, and what
    /// is dragged over it, are not.
    auto lookAtOutputs(const QRect &left, const QRect &right)
    {
        const auto grey = [this](const QRect &output) {
            const QImage picture = server().picture({output.center().x() - 50, 8, 100, 30});
            std::vector<int> greys;
            for (int y = 0; y < picture.height(); ++y) {
                for (int x = 0; x < picture.width(); ++x)
                    greys.push_back(qGray(picture.pixel(x, y)));
            }
            const auto middle = greys.begin() + std::ssize(greys) / 2;
            std::ranges::nth_element(greys, middle);
            return *middle;
        };
        return [=, bareLeft = grey(left), bareRight = grey(right)](const QRect &output) {
            return grey(output) * 2 < (output == left ? bareLeft : bareRight);
        };
    }

    enum class Drags { Cross, StayOnAnOutput };
    /// On a desktop of these two outputs side by side. As windows of an X server, a button that is
    /// held may keep the pointer on the one where it was pressed.
    void expectTheShelfOnTheOutputOfTheDrag(const QRect &left, const QRect &right, Drags drags)
    {
        start();
        const auto isShownOn = lookAtOutputs(left, right);
        const auto expectOnlyOn = [&](const QRect &output, const QRect &other) {
            const QRect &last = drags == Drags::Cross ? other : output;
            GtkPeer source(m_desktop, {.text = QStringLiteral("text")},
                           {output.left() + 60, 400, 400, 200});
            ASSERT_EQ(source.problem(), QString());
            hands().beginDrag(source.source(), output.center());
            // Nobody tells where the drag is until it moves.
            ASSERT_TRUE(wiggleUntil([&] { return isShownOn(left) || isShownOn(right); }));
            EXPECT_TRUE(isShownOn(output));
            EXPECT_FALSE(isShownOn(other));
            // The end of the drag is assumed, so that there is a strip on each output.
            ASSERT_TRUE(eventually([&] { return !isShownOn(left) && !isShownOn(right); }));
            hands().glideTo({last.center().x(), 0});
            EXPECT_TRUE(wiggleUntil([&] { return isShownOn(last); }));
            EXPECT_FALSE(isShownOn(drags == Drags::Cross ? output : other));
            hands().glideTo({last.center().x(), 30});
            EXPECT_TRUE(wiggleUntil([&] { return source.isSourceWelcome(); }));
            hands().glideTo(last.center());
            hands().release();
            ASSERT_TRUE(eventually([&] { return !isShownOn(left) && !isShownOn(right); }));
        };
        expectOnlyOn(right, left);
        // Neither the main screen nor the last one where anything came to an edge.
        expectOnlyOn(right, left);
        expectOnlyOn(left, right);
    }

    /// On a desktop of these two outputs side by side, whichever of them was told of last. The user
    /// is where the pointer is, in a window that was clicked.
    void expectTheShelfByHandOnTheOutputOfThePointer(const QRect &left, const QRect &right)
    {
        const auto isShownOn = lookAtOutputs(left, right);
        const auto expectOnlyOn = [&](const QRect &output, const QRect &other) {
            GtkPeer used(m_desktop, {}, {output.left() + 60, 400, 400, 200});
            ASSERT_EQ(used.problem(), QString());
            hands().click(used.target());
            ASSERT_EQ(corvane().startAgain(), 0);
            ASSERT_TRUE(eventually([&] { return isShownOn(left) || isShownOn(right); }));
            EXPECT_TRUE(isShownOn(output));
            EXPECT_FALSE(isShownOn(other));
            ASSERT_EQ(corvane().startAgain(), 0);
            ASSERT_TRUE(eventually([&] { return !isShownOn(left) && !isShownOn(right); }));
        };
        start();
        expectOnlyOn(right, left);
        expectOnlyOn(left, right);
        expectOnlyOn(right, left);
    }

    void keep(const QString &file)
    {
        GtkPeer source(m_desktop, {.files = {file}}, leftPlace());
        ASSERT_EQ(source.problem(), QString());
        hands().beginDrag(source.source(), edge());
        dropWhereTheShelfOpens(source);
        ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    }
};

/// The same in several.
class WaylandSession : public WaylandSessionTest, public testing::WithParamInterface<DesktopKind> {
protected:
    WaylandSession()
        : WaylandSessionTest(GetParam())
    {
    }
};

} // namespace corvane::e2e
