#include "core/display_text.h"
#include "shelf/drawing/checkbox_renderer.h"
#include "shelf/drawing/drawing.h"
#include "shelf/drawing/phosphor_icon_drawing.h"
#include "shelf/drawing/stroke_icon.h"
#include "shelf/drawing/theme.h"

#include <QPainter>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

constexpr int iconCount = 15;

int opaquePixels(const QImage &image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += qAlpha(image.pixel(x, y)) > 128 ? 1 : 0;
    }
    return count;
}

} // namespace

TEST(PhosphorIconDrawing, EveryIconFillsPartOfItsSquareAndStaysInside)
{
    for (int i = 0; i < iconCount; ++i) {
        const auto icon = static_cast<PhosphorIcon>(i);
        const QRectF square(10, 20, 30, 30);
        const QPainterPath path = phosphor_icon::cgPath(icon, square);
        EXPECT_TRUE(square.contains(path.boundingRect())) << i;
        const int pixels = opaquePixels(phosphor_icon::image(icon, 30, Qt::white, 0, 1));
        EXPECT_GT(pixels, 40) << i;
        EXPECT_LT(pixels, 750) << i;
    }
}

TEST(PhosphorIconDrawing, PointsAreFittedIntoTheRectangle)
{
    const auto &commands = phosphor_icon::commands(PhosphorIcon::Square);
    const QPainterPath path = phosphor_icon::cgPath(PhosphorIcon::Square, {100, 200, 10, 40});
    const QPointF unit = commands.front().points[0];
    EXPECT_EQ(QPointF(path.elementAt(0)), QPointF(100 + unit.x() * 10, 200 + unit.y() * 40));
}

TEST(PhosphorIconDrawing, TheSameArgumentsGiveTheSameBitmap)
{
    const QImage first = phosphor_icon::image(PhosphorIcon::Eye, 19, Qt::white, 1, 2);
    EXPECT_EQ(first.cacheKey(),
              phosphor_icon::image(PhosphorIcon::Eye, 19, Qt::white, 1, 2).cacheKey());
    EXPECT_NE(first.cacheKey(),
              phosphor_icon::image(PhosphorIcon::Eye, 19, Qt::white, 2, 2).cacheKey());
    EXPECT_NE(first.cacheKey(),
              phosphor_icon::image(PhosphorIcon::Eye, 19, Qt::black, 1, 2).cacheKey());
    EXPECT_EQ(first.size(), QSize(38, 38));
    EXPECT_EQ(first.devicePixelRatio(), 2);
}

TEST(PhosphorIconDrawing, AFolderHasItsTabAtTheUpperLeft)
{
    const QPainterPath folder = phosphor_icon::cgPath(PhosphorIcon::Folder, {0, 0, 1, 1});
    EXPECT_TRUE(folder.contains(QPointF(0.25, 0.82)));
    EXPECT_FALSE(folder.contains(QPointF(0.8, 0.82)));
}

TEST(StrokeIconDrawing, EveryIconIsDrawnAndCached)
{
    for (int i = 0; i <= static_cast<int>(StrokeIcon::Check); ++i) {
        const auto icon = static_cast<StrokeIcon>(i);
        QPainterPath path;
        stroke_icon::appendPath(icon, path);
        EXPECT_TRUE(QRectF(0, 0, 1, 1).contains(path.boundingRect())) << i;
        const QImage image = stroke_icon::image(icon, 19, Qt::white, 2, 1.3, 1.5);
        EXPECT_EQ(image.size(), QSize(29, 29));
        EXPECT_GT(opaquePixels(image), 20) << i;
        EXPECT_EQ(image.cacheKey(),
                  stroke_icon::image(icon, 19, Qt::white, 2, 1.3, 1.5).cacheKey());
        EXPECT_NE(image.cacheKey(),
                  stroke_icon::image(icon, 19, Qt::white, 2, 1.6, 1.5).cacheKey());
    }
}

TEST(CheckboxRenderer, CheckedAndUncheckedLookDifferentAndAreCached)
{
    const QImage checked = checkbox_renderer::image(true, 16, 2);
    const QImage unchecked = checkbox_renderer::image(false, 16, 2);
    EXPECT_NE(checked, unchecked);
    EXPECT_EQ(checked.cacheKey(), checkbox_renderer::image(true, 16, 2).cacheKey());
    EXPECT_NE(checked.cacheKey(), checkbox_renderer::image(true, 17, 2).cacheKey());
}

TEST(Theme, FontsHaveTheirSizesInPixelsWhateverTheResolution)
{
    for (const double dotsPerInch : {72.0, 96.0, 144.0}) {
        const Theme theme(QFont(), dotsPerInch);
        EXPECT_NEAR(theme.typography.primary.pointSizeF() * dotsPerInch / 72, 11, 1e-6);
        EXPECT_NEAR(theme.typography.secondary.pointSizeF() * dotsPerInch / 72, 10, 1e-6);
        EXPECT_NEAR(theme.typography.hint.pointSizeF() * dotsPerInch / 72, 11.5, 1e-6);
        EXPECT_NEAR(theme.typography.tile.pointSizeF() * dotsPerInch / 72, 9.5, 1e-6);
        EXPECT_EQ(theme.typography.primary.weight(), QFont::Medium);
        EXPECT_EQ(theme.typography.tile.weight(), QFont::Normal);
    }
}

TEST(Theme, ThePaletteIsBlackAndWhiteAtDifferentOpacities)
{
    const Theme::Palette palette = Theme(QFont(), 96).palette;
    EXPECT_EQ(palette.fill, QColor(Qt::black));
    EXPECT_NEAR(palette.hairline.alphaF(), 0.11, 1e-3);
    EXPECT_NEAR(palette.primary.alphaF(), 0.92, 1e-3);
    EXPECT_NEAR(palette.secondary.alphaF(), 0.5, 1e-3);
    EXPECT_NEAR(palette.control.alphaF(), 0.72, 1e-3);
    EXPECT_NEAR(palette.controlPlate.alphaF(), 0.12, 1e-3);
    EXPECT_NEAR(palette.buttonFill.alphaF(), 0.1, 1e-3);
    EXPECT_NEAR(palette.buttonFillHover.alphaF(), 0.2, 1e-3);
    EXPECT_NEAR(palette.buttonFillOff.alphaF(), 0.05, 1e-3);
    EXPECT_NEAR(palette.divider.alphaF(), 0.12, 1e-3);
    EXPECT_NEAR(palette.thumbRing.alphaF(), 0.16, 1e-3);
    EXPECT_NEAR(palette.emphasis.alphaF(), 0.92, 1e-3);
    EXPECT_NEAR(palette.dropRingActive.alphaF(), 0.34, 1e-3);
    for (const QColor &color : {palette.hairline, palette.dropRingActive})
        EXPECT_EQ(color.rgb() & 0xFFFFFF, 0xFFFFFFU);
}

TEST(DisplayText, ControlCharactersBecomeSpaces)
{
    EXPECT_EQ(displayText(QStringLiteral("a\nb\tc\u0007d\u0085e\u2028f")),
              QStringLiteral("a b c d e f"));
}

TEST(DisplayText, DirectionOverridesCannotForgeAName)
{
    EXPECT_EQ(displayText(QStringLiteral("photo\u202Egpj.exe")),
              QStringLiteral("photo\uFFFDgpj.exe"));
    for (const char16_t mark :
         {u'\u200E', u'\u200F', u'\u061C', u'\u202A', u'\u202D', u'\u2066', u'\u2069', u'\u200B'})
        EXPECT_EQ(displayText(QString(QChar(mark))), QStringLiteral("\uFFFD"));
}

TEST(DisplayText, LettersOfEveryScriptStay)
{
    const QString text = QStringLiteral("שלום مرحبا 日本 👩‍👧 é");
    EXPECT_EQ(displayText(text), text);
}

TEST(DisplayText, ATextFarBeyondAnyLineIsCut)
{
    EXPECT_LE(displayText(QString(5'000'000, u'x')).size(), 1024);
}

TEST(Drawing, ABitmapIsFittedIntoItsPlaceInItsOwnProportions)
{
    QImage wide(400, 100, QImage::Format_RGB32);
    wide.fill(Qt::red);
    const QImage tile = fitted(wide, {30, 30}, 0, 2);
    EXPECT_EQ(tile.size(), QSize(60, 60));
    EXPECT_EQ(qAlpha(tile.pixel(30, 10)), 0);
    EXPECT_EQ(tile.pixelColor(30, 30), QColor(Qt::red));
    EXPECT_EQ(qAlpha(tile.pixel(30, 50)), 0);
    EXPECT_EQ(qAlpha(fitted(QImage(), {30, 30}, 0, 1).pixel(3, 3)), 0);
}

TEST(Drawing, ABitmapIsDrawnUprightOnWholePixels)
{
    QImage canvas(20, 20, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    QImage bitmap(4, 4, QImage::Format_ARGB32_Premultiplied);
    bitmap.fill(Qt::blue);
    bitmap.setPixelColor(0, 0, Qt::red);
    {
        QPainter painter(&canvas);
        painter.translate(0, 20);
        painter.scale(1, -1);
        drawOnPixels(painter, bitmap, {3.4, 5.4});
    }
    // Lower left at (3, 5): rows 11 to 14 from the top.
    EXPECT_EQ(canvas.pixelColor(3, 11), QColor(Qt::red));
    EXPECT_EQ(canvas.pixelColor(6, 14), QColor(Qt::blue));
    EXPECT_EQ(qAlpha(canvas.pixel(7, 14)), 0);
    EXPECT_EQ(qAlpha(canvas.pixel(3, 10)), 0);
}

} // namespace corvane::test
