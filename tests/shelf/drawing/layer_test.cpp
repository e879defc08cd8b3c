#include "fakes/fake_motion_preference.h"
#include "fakes/test_clock.h"
#include "shelf/drawing/layer_animator.h"
#include "shelf/drawing/shape_layer.h"
#include "shelf/drawing/text_layer.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

class Layers : public testing::Test {
protected:
    Layers()
    {
        layer.setDelegate(&animator);
        tree.onNeedsDisplay = [this] { ++displayRequests; };
    }

    QImage paint()
    {
        QImage image(100, 100, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.translate(0, 100);
        painter.scale(1, -1);
        layer.render(painter, 1);
        return image;
    }

    TestClock clock;
    FakeMotionPreference preference;
    LayerAnimator animator;
    LayerTree tree{clock, preference};
    Layer layer{tree};
    int displayRequests = 0;
};

} // namespace

TEST_F(Layers, AChangeBeforeAnythingWasPaintedAppliesAtOnce)
{
    layer.setFrame({10, 10, 20, 20});
    EXPECT_EQ(layer.presentedFrame(), QRectF(10, 10, 20, 20));
    EXPECT_FALSE(tree.isMoving());
    EXPECT_GT(displayRequests, 0);
}

TEST_F(Layers, AChangeAfterPaintingMovesThereAndComesToRest)
{
    layer.setFrame({0, 0, 20, 20});
    paint();
    layer.setPosition({60, 10});
    EXPECT_EQ(layer.position(), QPointF(60, 10)) << "the model value is there at once";
    EXPECT_LT(layer.presentedFrame().x(), 25);
    EXPECT_TRUE(tree.isMoving());
    clock.advance(2);
    EXPECT_EQ(layer.presentedFrame(), QRectF(50, 0, 20, 20));
    EXPECT_FALSE(tree.isMoving());
    EXPECT_EQ(clock.pendingCount(), 0U) << "nothing may wake up at rest";
}

TEST_F(Layers, TheFirstPictureOfAMotionHasAlreadyMoved)
{
    layer.setFrame({0, 0, 20, 20});
    paint();
    layer.setTransform({0, 40});
    EXPECT_GT(layer.presentedTransform().dy, 0.5);
}

TEST_F(Layers, ARetargetedMotionGoesOnFromWhereItIs)
{
    layer.setFrame({0, 0, 20, 20});
    paint();
    layer.setPosition({90, 10});
    clock.advance(0.06);
    const double x = layer.presentedFrame().x();
    EXPECT_GT(x, 5);
    layer.setPosition({10, 10});
    EXPECT_NEAR(layer.presentedFrame().x(), x, 0.01);
    clock.advance(1.0 / 60);
    EXPECT_GT(layer.presentedFrame().x(), x) << "its velocity carries it on for a moment";
    clock.advance(2);
    EXPECT_EQ(layer.presentedFrame().x(), 0);
}

TEST_F(Layers, AskingForAFrameStopsWhenNothingMoves)
{
    layer.setFrame({0, 0, 20, 20});
    paint();
    layer.setOpacity(0.5);
    clock.advance(1);
    const int requests = displayRequests;
    clock.advance(20);
    EXPECT_EQ(displayRequests, requests);
}

TEST_F(Layers, ReducedMotionMeansNone)
{
    layer.setFrame({0, 0, 20, 20});
    paint();
    preference.reduces = true;
    layer.setFrame({50, 50, 20, 20});
    layer.setTransform({0, 9});
    layer.setOpacity(0.3);
    EXPECT_EQ(layer.presentedFrame(), QRectF(50, 59, 20, 20));
    EXPECT_DOUBLE_EQ(layer.presentedOpacity(), 0.3);
    EXPECT_FALSE(tree.isMoving());
}

TEST_F(Layers, MotionCanBeSwitchedOffForAMoment)
{
    layer.setFrame({0, 0, 20, 20});
    paint();
    {
        const LayerTree::WithoutMotion still(tree);
        layer.setPosition({60, 10});
    }
    EXPECT_EQ(layer.presentedFrame().x(), 50);
    layer.setPosition({10, 10});
    EXPECT_TRUE(tree.isMoving());
}

TEST_F(Layers, AMotionEndsWhereAChangeAppliesAtOnce)
{
    layer.setFrame({0, 0, 20, 20});
    paint();
    layer.setPosition({60, 10});
    clock.advance(0.05);
    {
        const LayerTree::WithoutMotion still(tree);
        layer.setPosition({90, 10});
    }
    EXPECT_EQ(layer.presentedFrame().x(), 80);
    clock.advance(0.05);
    EXPECT_EQ(layer.presentedFrame().x(), 80);
    EXPECT_FALSE(tree.isMoving());
}

TEST_F(Layers, WhatCannotBeSeenDoesNotMove)
{
    layer.setFrame({0, 0, 20, 20});
    layer.setOpacity(0);
    paint();
    layer.setPosition({60, 10});
    EXPECT_EQ(layer.presentedFrame().x(), 50);
    layer.setOpacity(1);
    EXPECT_TRUE(tree.isMoving()) << "but it fades in";
}

TEST_F(Layers, AColourChangesAtOnce)
{
    layer.setFrame({0, 0, 100, 100});
    layer.setBackgroundColor(Qt::red);
    EXPECT_EQ(paint().pixelColor(50, 50), QColor(Qt::red));
    layer.setBackgroundColor(Qt::blue);
    EXPECT_FALSE(tree.isMoving());
    EXPECT_EQ(paint().pixelColor(50, 50), QColor(Qt::blue));
}

TEST_F(Layers, ALayerThatEndsInMidFlightLeavesTheTreeAtRest)
{
    {
        Layer child(tree);
        child.setDelegate(&animator);
        layer.addSublayer(child);
        layer.setFrame({0, 0, 100, 100});
        paint();
        child.setPosition({50, 50});
        EXPECT_TRUE(tree.isMoving());
    }
    clock.advance(1);
    EXPECT_FALSE(tree.isMoving());
    paint();
}

TEST_F(Layers, FramesFollowTheDisplaysRate)
{
    tree.setFrameInterval(0.1);
    layer.setFrame({0, 0, 20, 20});
    paint();
    layer.setPosition({60, 10});
    const int before = displayRequests;
    clock.advance(0.25);
    EXPECT_EQ(displayRequests - before, 2);
}

TEST_F(Layers, PathsOfOneBuildMoveIntoEachOther)
{
    ShapeLayer shape(tree);
    shape.setDelegate(&animator);
    layer.addSublayer(shape);
    QPainterPath narrow;
    narrow.addRect(0, 0, 10, 10);
    QPainterPath wide;
    wide.addRect(0, 0, 50, 10);
    shape.setPath(narrow);
    paint();
    shape.setPath(wide);
    EXPECT_LT(shape.presentedPath().boundingRect().width(), 40);
    clock.advance(2);
    EXPECT_EQ(shape.presentedPath(), wide);
    QPainterPath ellipse;
    ellipse.addEllipse(0, 0, 9, 9);
    shape.setPath(ellipse);
    EXPECT_EQ(shape.presentedPath(), ellipse) << "another build changes at once";
}

TEST_F(Layers, TextIsPaintedInsideItsFrameOnly)
{
    TextLayer text(tree);
    layer.setFrame({0, 0, 100, 100});
    layer.addSublayer(text);
    text.setFrame({10, 40, 40, 14});
    text.setString(QStringLiteral("<b>A name that is much too long</b>"));
    const QImage image = paint();
    int inside = 0;
    for (int y = 0; y < 100; ++y) {
        for (int x = 0; x < 100; ++x) {
            const bool isInside = x >= 10 && x < 50 && y >= 46 && y < 60;
            inside += isInside && qAlpha(image.pixel(x, y)) > 0 ? 1 : 0;
            ASSERT_TRUE(isInside || qAlpha(image.pixel(x, y)) == 0) << x << ',' << y;
        }
    }
    EXPECT_GT(inside, 10);
}

TEST_F(Layers, ReadFromRightToLeftANumberStaysWithItsUnit)
{
    TextLayer text(tree);
    layer.setFrame({0, 0, 100, 100});
    layer.addSublayer(text);
    text.setFrame({0, 40, 100, 20});
    QFont font;
    font.setPixelSize(8);
    text.setFont(font);
    text.setTextDirection(Qt::RightToLeft);
    const QString size = QStringLiteral("992 כ");
    const QRect whereItStands(0, 0, QFontMetrics(font).horizontalAdvance(size) - 1, 100);
    text.setString(size);
    const QImage alone = paint().copy(whereItStands);
    text.setString(QStringLiteral("A · ") + size);
    EXPECT_EQ(paint().copy(whereItStands), alone) << "what is read first stands on the right";
}

} // namespace corvane::test
