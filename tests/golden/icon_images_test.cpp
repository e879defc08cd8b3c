// Every icon large enough for each of its lines to count.

#include "golden/golden.h"
#include "shelf/drawing/phosphor_icon_drawing.h"
#include "shelf/drawing/stroke_icon.h"

#include <QPainter>

#include <gtest/gtest.h>

#include <functional>

namespace corvane::test {

namespace {

constexpr double side = 40;

/// Eight in a row, from the top.
QImage sheetOf(int count, const std::function<QImage(int index, double scale)> &icon)
{
    constexpr int columns = 8;
    constexpr int cell = 48;
    constexpr int scale = 2;
    const int rows = (count + columns - 1) / columns;
    QImage sheet(QSize(columns * cell, rows * cell) * scale, QImage::Format_RGB32);
    sheet.setDevicePixelRatio(scale);
    sheet.fill(QColor(0x20, 0x24, 0x2C));
    QPainter painter(&sheet);
    for (int i = 0; i < count; ++i)
        painter.drawImage(QPointF(i % columns * cell + 4, i / columns * cell + 4), icon(i, scale));
    return sheet;
}

} // namespace

TEST(IconImages, OfControlsAreAsKept)
{
    const int count = static_cast<int>(StrokeIcon::Check) + 1;
    const QImage sheet = sheetOf(count, [](int index, double scale) {
        return stroke_icon::image(static_cast<StrokeIcon>(index), side, Qt::white, 2, 2, scale);
    });
    EXPECT_TRUE(matchesGoldenImage(QStringLiteral("icons-of-controls.png"), {sheet, 2, {}}));
}

TEST(IconImages, OfItemsAreAsKept)
{
    const int count = static_cast<int>(PhosphorIcon::Folder) + 1;
    const QImage sheet = sheetOf(count, [](int index, double scale) {
        return phosphor_icon::image(static_cast<PhosphorIcon>(index), side, Qt::white, 2, scale);
    });
    EXPECT_TRUE(matchesGoldenImage(QStringLiteral("icons-of-items.png"), {sheet, 2, {}}));
}

} // namespace corvane::test
