#include "app/look/focus_ring.h"

#include <QImage>
#include <QPainter>
#include <QPalette>

#include <gtest/gtest.h>

namespace corvane::test {
namespace {

TEST(FocusRing, RunsJustInsideTheRectangleAndLeavesItsMiddleFree)
{
    const QRect rect(5, 6, 40, 24);
    QImage image(60, 40, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    focus_ring::draw(painter, QPalette(), rect, 4);
    painter.end();

    // A line of two, and what its round corners reach further.
    const QRect room = rect.adjusted(3, 3, -3, -3);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (!rect.contains(x, y) || room.contains(x, y)) {
                EXPECT_EQ(qAlpha(image.pixel(x, y)), 0) << x << ' ' << y;
            }
        }
    }
    for (int step = 0; step < 2; ++step) {
        EXPECT_EQ(qAlpha(image.pixel(25, rect.top() + step)), 255);
        EXPECT_EQ(qAlpha(image.pixel(25, rect.bottom() - step)), 255);
        EXPECT_EQ(qAlpha(image.pixel(rect.left() + step, 18)), 255);
        EXPECT_EQ(qAlpha(image.pixel(rect.right() - step, 18)), 255);
    }
    EXPECT_EQ(qAlpha(image.pixel(rect.left(), rect.top())), 0) << "the corners are round";
}

TEST(FocusRing, LeavesThePainterAsItWas)
{
    QImage image(20, 20, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.setPen(QPen(Qt::red, 3));
    painter.setBrush(Qt::green);
    focus_ring::draw(painter, QPalette(), QRectF(0, 0, 20, 20), 4);
    EXPECT_EQ(painter.pen(), QPen(Qt::red, 3));
    EXPECT_EQ(painter.brush(), QBrush(Qt::green));
}

} // namespace
} // namespace corvane::test
