#include "app/status/status_icon.h"

#include <QPainter>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

/// The template, ten pixels a point.
QImage drawn(int cards)
{
    constexpr double scale = 10;
    QImage image((status_icon::canvas * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.translate(0, image.height());
    painter.scale(scale, -scale);
    status_icon::draw(painter, cards);
    return image;
}

QColor at(const QImage &image, double x, double y)
{
    return image.pixelColor(static_cast<int>(x * 10),
                            image.height() - 1 - static_cast<int>(y * 10));
}

int covered(const QImage &image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += qAlpha(image.pixel(x, y)) > 127 ? 1 : 0;
    }
    return count;
}

/// How many cards are apart from each other and from the bar along a line of that height.
int runsAt(const QImage &image, double y)
{
    int runs = 0;
    bool inside = false;
    constexpr int perPoint = 10;
    const int steps = static_cast<int>(status_icon::canvas.width() * perPoint);
    for (int step = 0; step < steps; ++step) {
        const double x = static_cast<double>(step) / perPoint;
        const bool covers = at(image, x, y).alpha() > 127;
        runs += covers && !inside ? 1 : 0;
        inside = covers;
    }
    return runs;
}

/// How far apart two colours are in brightness.
float contrast(const QColor &one, const QColor &other)
{
    return std::abs(one.lightnessF() - other.lightnessF());
}

} // namespace

TEST(StatusIcon, TheBaseBarStandsAtItsPlace)
{
    const QImage image = drawn(0);
    EXPECT_EQ(at(image, 10.5, 5), QColor(Qt::black));
    EXPECT_EQ(at(image, 0.7, 5), QColor(Qt::black)) << "the stroke goes half a point beyond";
    EXPECT_EQ(at(image, 20.3, 5), QColor(Qt::black));
    EXPECT_EQ(at(image, 10.5, 9.4), QColor(Qt::black));
    EXPECT_EQ(at(image, 10.5, 9.8).alpha(), 0);
    EXPECT_EQ(at(image, 10.5, 0.6).alpha(), 0);
    EXPECT_EQ(at(image, 0.6, 1.0).alpha(), 0) << "its corners are round";
}

TEST(StatusIcon, EveryCardRisesAboveTheBar)
{
    for (int cards = 0; cards <= status_icon::mostCards; ++cards)
        EXPECT_EQ(runsAt(drawn(cards), 11.5), cards) << cards;
}

TEST(StatusIcon, AHaloKeepsACardApartFromTheBar)
{
    EXPECT_EQ(runsAt(drawn(0), 7.5), 1);
    EXPECT_EQ(runsAt(drawn(1), 7.5), 3);
    EXPECT_LT(covered(drawn(1)), covered(drawn(0)) + 64 * 86);
}

TEST(StatusIcon, MoreThanThreeCardsLookLikeThree)
{
    EXPECT_EQ(drawn(4), drawn(3));
    EXPECT_EQ(status_icon::image(9, 22, Qt::white), status_icon::image(3, 22, Qt::white));
}

TEST(StatusIcon, TakesTheForegroundAndKeepsWithinItsSquare)
{
    for (const int side : {16, 22, 24, 44, 48}) {
        const QImage image = status_icon::image(3, side, Qt::green);
        ASSERT_EQ(image.size(), QSize(side, side));
        const QColor middle = image.pixelColor(side / 2, side / 2);
        EXPECT_EQ(middle, QColor(Qt::green)) << side;
        for (int i = 0; i < side; ++i) {
            EXPECT_LT(image.pixelColor(i, 0).alpha(), 60) << side;
            EXPECT_LT(image.pixelColor(i, side - 1).alpha(), 60) << side;
        }
    }
}

TEST(StatusIcon, StaysLegibleOnAPanelOfItsOwnColour)
{
    for (const QColor &foreground : {QColor(Qt::white), QColor(Qt::black)}) {
        QImage panel(22, 22, QImage::Format_RGB32);
        panel.fill(foreground);
        QPainter(&panel).drawImage(0, 0, status_icon::image(0, 22, foreground));
        float most = 0;
        for (int y = 0; y < panel.height(); ++y)
            most = std::max(most, contrast(panel.pixelColor(11, y), foreground));
        EXPECT_GT(most, 0.25F);
    }
}

TEST(StatusIcon, TakesMostPanelsForDarkWhateverThePaletteIs)
{
    for (const QString &desktop : {QString(), QStringLiteral("XFCE"), QStringLiteral("GNOME"),
                                   QStringLiteral("ubuntu:GNOME")})
        EXPECT_GT(status_icon::likelyForeground(desktop, Qt::black).lightnessF(), 0.9F);
}

TEST(StatusIcon, FollowsThePaletteWhereThePanelDoes)
{
    for (const QString &desktop :
         {QStringLiteral("KDE"), QStringLiteral("LXQt"), QStringLiteral("MATE")}) {
        EXPECT_LT(status_icon::likelyForeground(desktop, Qt::black).lightnessF(), 0.3F);
        EXPECT_GT(status_icon::likelyForeground(desktop, Qt::white).lightnessF(), 0.9F);
    }
}

} // namespace corvane::test
