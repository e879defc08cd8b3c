#include "platform/pictures/fitted_size.h"
#include "preview/preview_geometry.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace corvane::test {
namespace {

using namespace preview_geometry;

constexpr QSize available{1500, 1000};
constexpr int lineHeight = 20;
constexpr int columnWidth = 8;

PreviewContent picture(QSize pixels, bool isVector = false)
{
    PreviewContent content;
    PreviewContent::Picture body;
    body.pixelSize = pixels;
    body.isVector = isVector;
    content.body = body;
    return content;
}

PreviewContent text(const QString &string, bool isMonospaced = false)
{
    PreviewContent content;
    content.body = PreviewContent::Text{string, isMonospaced, false};
    return content;
}

QSize sizeOf(const PreviewContent &content, double scale = 1)
{
    return windowSize(content, available, scale, {lineHeight, columnWidth});
}

TEST(PreviewSize, GivesAPictureItsOwnPixelsWhereTheyFit)
{
    EXPECT_EQ(sizeOf(picture({800, 600})), QSize(800, 600 + barHeight));
    EXPECT_EQ(sizeOf(picture({800, 600}), 2), QSize(400, 300 + barHeight));
    EXPECT_EQ(sizeOf(picture({900, 600}), 1.5), QSize(600, 400 + barHeight));
}

TEST(PreviewSize, ScalesALargePictureIntoFourFifthsOfTheScreen)
{
    const QSize size = sizeOf(picture({4000, 3000}));
    EXPECT_EQ(size.height(), 800);
    EXPECT_NEAR(size.width(), (800 - barHeight) * 4.0 / 3, 1);
    EXPECT_EQ(sizeOf(picture({30000, 100})).width(), 1200);
}

TEST(PreviewSize, IsNeverSmallerThanAWindowThatCanBeRead)
{
    EXPECT_EQ(sizeOf(picture({1, 1})), smallestWindow);
    EXPECT_EQ(sizeOf(text(QStringLiteral("a"))).height(), smallestWindow.height());
}

TEST(PreviewSize, CountsALineThatIsFullAsOne)
{
    const QString rest(30, QLatin1Char('\n'));
    const int full = sizeOf(text(QString(80, QLatin1Char('x')) + rest)).height();
    EXPECT_EQ(full, sizeOf(text(QStringLiteral("x") + rest)).height());
    EXPECT_EQ(sizeOf(text(QString(81, QLatin1Char('x')) + rest)).height(), full + lineHeight);
}

TEST(PreviewSize, ShowsASmallDrawingLarge)
{
    EXPECT_EQ(sizeOf(picture({16, 16}, true)), QSize(384, 384 + barHeight));
}

TEST(PreviewSize, GrowsWithTheLinesOfAText)
{
    const int ten = sizeOf(text(QStringLiteral("a\n").repeated(15))).height();
    const int twenty = sizeOf(text(QStringLiteral("a\n").repeated(25))).height();
    EXPECT_EQ(twenty - ten, 10 * lineHeight);
    EXPECT_EQ(sizeOf(text(QStringLiteral("a\n").repeated(100'000))).height(), 800);
    EXPECT_GT(sizeOf(text(QString(1600, QLatin1Char('x')))).height(), 400) << "it wraps";
}

TEST(PreviewSize, GivesCodeUpToAHundredColumns)
{
    const auto lineOf = [](int columns, bool isMonospaced) {
        const QString line = QStringLiteral("a\n") + QString(columns, QLatin1Char('x'));
        return sizeOf(text(line + QStringLiteral("\nb"), isMonospaced)).width();
    };
    EXPECT_GE(lineOf(90, true), 90 * columnWidth);
    EXPECT_EQ(lineOf(100, true) - lineOf(90, true), 10 * columnWidth);
    EXPECT_EQ(lineOf(5000, true), lineOf(100, true));
    EXPECT_EQ(lineOf(10, true), lineOf(80, true));
    EXPECT_EQ(lineOf(5000, false), lineOf(10, false)) << "prose wraps";
    const QString late = QStringLiteral("a\n").repeated(1000) + QString(100, QLatin1Char('x'));
    EXPECT_EQ(sizeOf(text(late, true)).width(), lineOf(80, true)) << "nobody sees that line yet";
}

TEST(PreviewSize, FitsAScreenThatIsSmallerThanTheSmallestWindow)
{
    EXPECT_EQ(windowSize(picture({4000, 3000}), {400, 200}, 1, {lineHeight, columnWidth}),
              QSize(320, 160));
}

TEST(PreviewSize, ShowsAWholePage)
{
    PreviewContent content;
    PreviewContent::Pages pages;
    pages.sizes = {QSize(600, 800)};
    content.body = pages;
    EXPECT_EQ(sizeOf(content).height(), 800);
    EXPECT_LT(sizeOf(content).width(), 700);
    pages.sizes.clear();
    content.body = pages;
    EXPECT_FALSE(sizeOf(content).isEmpty());
}

TEST(PreviewSize, StandsInTheMiddleOfTheRoom)
{
    EXPECT_EQ(centred({200, 100}, QRect(1000, 30, 500, 400)), QRect(1150, 180, 200, 100));
}

TEST(PreviewPages, StandBelowEachOtherAsWideAsTheRoomLetsTheWidest)
{
    const QList<QRectF> rects = pageRects({QSize(100, 200), QSize(200, 100)}, 432);
    ASSERT_EQ(rects.size(), 2);
    EXPECT_EQ(rects[0], QRectF(116, 16, 200, 400));
    EXPECT_EQ(rects[1], QRectF(16, 432, 400, 200));
    EXPECT_TRUE(pageRects({}, 432).isEmpty());
    EXPECT_GE(pageRects({QSize(100, 200)}, 0)[0].width(), 1);
    EXPECT_EQ(pageRects({QSize(1, 2)}, 132)[0].size(), QSizeF(100, 200));
}

struct PictureZoomTest : testing::Test {
    PictureZoomTest()
    {
        zoom.setPicture({800, 400}, false);
        zoom.setView({400, 400});
    }
    PictureZoom zoom;
};

TEST_F(PictureZoomTest, FitsThePictureIntoTheView)
{
    EXPECT_EQ(zoom.rect(), QRectF(0, 100, 400, 200));
    zoom.setView({1000, 1000});
    EXPECT_EQ(zoom.rect(), QRectF(100, 300, 800, 400)) << "but makes it no larger than it is";
    zoom.setPicture({100, 100}, true);
    EXPECT_EQ(zoom.rect(), QRectF(0, 0, 1000, 1000)) << "unless it is drawn";
}

TEST_F(PictureZoomTest, KeepsWhatIsUnderThePointer)
{
    const QPointF anchor(100, 200);
    const double part = (anchor.x() - zoom.rect().x()) / zoom.rect().width();
    zoom.zoom(3, anchor);
    EXPECT_FALSE(zoom.isFitted());
    EXPECT_DOUBLE_EQ(zoom.scale(), 1.5);
    EXPECT_NEAR((anchor.x() - zoom.rect().x()) / zoom.rect().width(), part, 1e-9);
}

TEST_F(PictureZoomTest, ShowsEveryPixelOnceAndGoesBack)
{
    zoom.actualSize({200, 200});
    EXPECT_EQ(zoom.rect().size(), QSizeF(800, 400));
    zoom.zoom(0.01, {200, 200});
    EXPECT_TRUE(zoom.isFitted()) << "smaller than the view it needs not be";
    EXPECT_EQ(zoom.rect(), QRectF(0, 100, 400, 200));
}

TEST_F(PictureZoomTest, StopsAtAScaleBeyondWhichThereIsNothingToSee)
{
    for (int i = 0; i < 100; ++i)
        zoom.zoom(2, {10, 10});
    EXPECT_DOUBLE_EQ(zoom.scale(), 16);
}

TEST_F(PictureZoomTest, MovesNoFurtherThanThePictureReaches)
{
    zoom.moveBy({50, 50});
    EXPECT_EQ(zoom.rect(), QRectF(0, 100, 400, 200)) << "a fitted picture stays";
    zoom.actualSize({200, 200});
    zoom.moveBy({-10'000, -10'000});
    EXPECT_EQ(zoom.rect(), QRectF(-400, 0, 800, 400));
    zoom.moveBy({10'000, 10'000});
    EXPECT_EQ(zoom.rect(), QRectF(0, 0, 800, 400));
}

TEST(PictureZoomPixels, AreThoseThatAPictureWasFittedIntoOrOneMoreOrLess)
{
    for (const QSize screen :
         {QSize(1512, 982), QSize(982, 1512), QSize(1920, 1080), QSize(1367, 767)}) {
        for (const double scale : {1.0, 1.25, 1.5, 5.0 / 3, 2.0}) {
            for (const QSize pixels :
                 {QSize(4000, 3000), QSize(3000, 4000), QSize(6001, 3999), QSize(20'000, 701),
                  QSize(701, 20'000), QSize(9000, 1), QSize(30, 20), QSize(5000, 5000)}) {
                const QSize room = (QSizeF(pictureRoom(screen)) * scale).toSize();
                const bool isLarger
                    = pixels.width() > room.width() || pixels.height() > room.height();
                const QSize fitted = isLarger ? fittedSize(pixels, room) : pixels;
                const QSize window
                    = windowSize(picture(pixels), screen, scale, {lineHeight, columnWidth});
                PictureZoom zoom;
                zoom.setPicture(QSizeF(pixels) / scale, false);
                zoom.setView(window - QSize(0, barHeight));
                const QSize missing = zoom.pixels(scale) - fitted;
                EXPECT_LE(std::abs(missing.width()), 1)
                    << scale << ' ' << pixels.width() << 'x' << pixels.height();
                EXPECT_LE(std::abs(missing.height()), 1)
                    << scale << ' ' << pixels.width() << 'x' << pixels.height();
            }
        }
    }
}

TEST_F(PictureZoomTest, AnEmptyViewOrPictureDividesNothing)
{
    zoom.setView({});
    EXPECT_TRUE(std::isfinite(zoom.scale()));
    zoom.setPicture({}, true);
    zoom.zoom(2, {});
    EXPECT_TRUE(std::isfinite(zoom.rect().width()));
}

} // namespace
} // namespace corvane::test
