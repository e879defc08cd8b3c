// Shapes as they are painted while they change their size, beside the paths that they stand for.

#include "fakes/fake_motion_preference.h"
#include "fakes/shelf_desk.h"
#include "fakes/test_clock.h"
#include "shelf/drawing/drawing.h"
#include "shelf/drawing/layer_tree.h"
#include "shelf/drawing/pill_path.h"
#include "shelf/drawing/ring_layer.h"
#include "shelf/drawing/sliced_picture.h"

#include <QPainter>

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

namespace corvane::test {

namespace {

QImage painted(QSizeF size, double scale, const std::function<void(QPainter &)> &paint)
{
    QImage image = transparentBitmap(size, scale);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(0, size.height());
    painter.scale(1, -1);
    paint(painter);
    return image;
}

/// How much of what one picture shows is not in the other, pixel by pixel.
double difference(const QImage &left, const QImage &right)
{
    double all = 0;
    double different = 0;
    for (int y = 0; y < left.height(); ++y) {
        for (int x = 0; x < left.width(); ++x) {
            const double there = left.pixelColor(x, y).alphaF();
            all += there;
            different += std::abs(there - right.pixelColor(x, y).alphaF());
        }
    }
    return different / all;
}

QSizeF wholePixels(QSizeF size, double scale)
{
    return {std::round(size.width() * scale) / scale, std::round(size.height() * scale) / scale};
}

void drawPill(QPainter &painter, QSizeF size, const QPen &pen, const QBrush &brush)
{
    painter.setPen(pen);
    painter.setBrush(brush);
    painter.drawPath(pillPath(size, bodyCornerRadius));
}

constexpr double side = bodyFlareRadius + bodyCornerRadius;
const QMarginsF corners(side, bodyFlareRadius, side, bodyCornerRadius);

} // namespace

TEST(SlicedPicture, isThePathItselfOnWholePixels)
{
    for (const double scale : {1.0, 1.5, 2.0}) {
        for (const QSizeF wanted : {QSizeF(292, 56), QSizeF(104, 62), QSizeF(357.4, 44.7)}) {
            const QSizeF size = wholePixels(wanted, scale);
            for (const bool isFilled : {true, false}) {
                const QPen pen = isFilled ? QPen(Qt::NoPen) : QPen(QColor(255, 255, 255, 28), 1);
                const QBrush brush = isFilled ? QBrush(Qt::black) : QBrush(Qt::NoBrush);
                const auto draw
                    = [&](QPainter &painter, QSizeF pill) { drawPill(painter, pill, pen, brush); };
                SlicedPicture sliced(corners, draw);
                const QImage put = painted(size, scale, [&](QPainter &painter) {
                    EXPECT_TRUE(sliced.draw(painter, size, scale));
                });
                const QImage path
                    = painted(size, scale, [&](QPainter &painter) { draw(painter, size); });
                EXPECT_LT(difference(path, put), isFilled ? 1e-4 : 0.01)
                    << scale << ' ' << size.width() << ' ' << isFilled;
            }
        }
    }
}

TEST(SlicedPicture, leavesThePainterAsItWas)
{
    SlicedPicture sliced(corners, [](QPainter &painter, QSizeF size) {
        drawPill(painter, size, Qt::NoPen, Qt::black);
    });
    painted({292, 56}, 2, [&](QPainter &painter) {
        const QTransform before = painter.worldTransform();
        EXPECT_TRUE(sliced.draw(painter, {292, 56}, 2));
        EXPECT_EQ(painter.worldTransform(), before);
        EXPECT_TRUE(painter.testRenderHint(QPainter::Antialiasing));
    });
}

TEST(SlicedPicture, isNotDrawnWhereItsCornersHaveNoRoom)
{
    SlicedPicture sliced(corners, [](QPainter &painter, QSizeF size) {
        drawPill(painter, size, Qt::NoPen, Qt::black);
    });
    const QImage nothing = painted({40, 56}, 1, [&](QPainter &painter) {
        EXPECT_FALSE(sliced.draw(painter, {40, 56}, 1));
    });
    EXPECT_EQ(nothing, transparentBitmap({40, 56}, 1));
}

TEST(RingLayer, hasTheDashesOfItsPath)
{
    TestClock clock;
    const FakeMotionPreference motion;
    LayerTree tree(clock, motion);
    RingLayer ring(tree);
    // Where a line is one pixel wide, Qt begins its dashes anew behind each corner.
    constexpr double scale = 2;
    for (const QSizeF size : {QSizeF(268, 44), QSizeF(331, 40)}) {
        ring.setBounds(size);
        ring.setPosition({size.width() / 2, size.height() / 2});
        ring.setRing(14, QColor(255, 255, 255, 87));
        const QImage path = painted(size, scale, [&](QPainter &painter) {
            QPainterPath line;
            line.addRoundedRect(QRectF({0, 0}, size).adjusted(0.5, 0.5, -0.5, -0.5), 14, 14);
            QPen pen(QColor(255, 255, 255, 87), 1);
            pen.setDashPattern({RingLayer::dash, RingLayer::gap});
            pen.setCapStyle(Qt::FlatCap);
            painter.strokePath(line, pen);
        });
        const QImage dashes
            = painted(size, scale, [&](QPainter &painter) { ring.render(painter, scale); });
        // Where dashes end between two pixels, the one has half of one and the other one or
        // none, a fifth of a dash at most; dashes in other places would make it 1.
        EXPECT_LT(difference(path, dashes), 0.25) << size.width();
    }
}

TEST(MovingShelf, showsNothingOfItsRowBeyondItsEdge)
{
    ShelfDesk desk;
    desk.panel.setFrame({0, 0, 620, 120});
    ShelfView view(desk.context());
    ShelfSnapshot snapshot;
    snapshot.state = ShelfState::Occupied;
    const auto show = [&](int count) {
        snapshot.inViewCount = count;
        snapshot.totalCount = count;
        for (int i = static_cast<int>(snapshot.visible.size()); i < count; ++i)
            snapshot.visible.emplace_back(i, ShelfDesk::fileItem(QStringLiteral("f")));
        view.apply(snapshot);
        ShelfDesk::paint(view, desk.panel);
    };
    show(3);
    desk.clock.advance(3);
    ShelfDesk::paint(view, desk.panel);
    // More than there is room for in a drop target, whose end is faded.
    snapshot.receptive = true;
    show(6);
    for (int frame = 0; frame < 6; ++frame) {
        desk.clock.advance(0.02);
        const QImage picture = ShelfDesk::paint(view, desk.panel);
        int translucent = 0;
        constexpr int middle = 28;
        for (int x = 0; x < picture.width(); ++x) {
            const int alpha = picture.pixelColor(x, middle).alpha();
            translucent += alpha > 40 && alpha < 230 ? 1 : 0;
        }
        EXPECT_LE(translucent, 4) << "the body's own edges alone, in frame " << frame;
    }
}

} // namespace corvane::test
