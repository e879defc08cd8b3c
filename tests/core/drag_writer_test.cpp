#include "core/drag_writer.h"
#include "core/temporary_spool.h"
#include "fakes/fake_file_locality.h"
#include "platform/base/geometry.h"

#include <QPainter>

#include <gtest/gtest.h>
#include <unistd.h>

namespace corvane {
namespace {

constexpr QRgb gray = 0xff808080;

struct DragWriterTest : testing::Test {
    static DropItem text() { return DropItem(DropItem::Text{QStringLiteral("x")}, {}, {}, false); }
    static DropItem withThumbnail(int width, int height)
    {
        DropItem item = text();
        QImage bitmap(width, height, QImage::Format_RGB32);
        bitmap.fill(Qt::red);
        item.setThumbnail({bitmap, QSizeF(30, 30)});
        return item;
    }
    static QRgb at(const Image &image, int x, int y) { return image.bitmap.pixel(x, y); }

    test::FakeFileLocality locality;
    DragWriter writer{QColor::fromRgba(gray), {}, locality};
};

TEST_F(DragWriterTest, WritesEachKindAsWhatItIs)
{
    const QUrl fileUrl(QStringLiteral("file:///a"));
    const QUrl webUrl(QStringLiteral("http://x/"));
    const auto written = [](DropItem::Payload payload) {
        return DragWriter::pasteboardWriter(DropItem(std::move(payload), {}, {}, false)).content;
    };
    EXPECT_EQ(std::get<PasteboardWriter::File>(written(DropItem::File{fileUrl})).url, fileUrl);
    EXPECT_EQ(std::get<PasteboardWriter::Link>(written(DropItem::Link{webUrl})).url, webUrl);
    EXPECT_EQ(std::get<PasteboardWriter::Text>(written(DropItem::Text{QStringLiteral("x")})).string,
              QStringLiteral("x"));
    const auto image = written(DropItem::ImageBytes{"bytes", UTType::png()});
    EXPECT_EQ(std::get<PasteboardWriter::Data>(image).bytes, "bytes");
    EXPECT_EQ(std::get<PasteboardWriter::Data>(image).type, UTType::png());
}

TEST_F(DragWriterTest, HasNothingToCarryOfAFileThatIsGone)
{
    const test::TemporaryFolder temporary;
    const auto file = [](const QUrl &url) { return DropItem(DropItem::File{url}, {}, {}, false); };
    const DropItem there = file(temporary.write("caf #1", "x"));
    const DropItem note = text();
    const DropItem soon = DropItem::beingMade({temporary.url("soon.png")}, {}, {}, {});
    const auto left = writer.available({file(temporary.url("gone")), there, note, soon});
    ASSERT_EQ(left.size(), 3);
    EXPECT_EQ(left[0].id(), there.id());
    EXPECT_EQ(left[1].id(), note.id());
    EXPECT_EQ(left[2].id(), soon.id());
}

TEST_F(DragWriterTest, ALinkThatLeadsNowhereIsThere)
{
    const test::TemporaryFolder temporary;
    ASSERT_EQ(::symlink("/nowhere/at/all", temporary.path("link").constData()), 0);
    EXPECT_EQ(
        writer.available({DropItem(DropItem::File{temporary.url("link")}, {}, {}, false)}).size(),
        1);
}

TEST_F(DragWriterTest, AFileBehindANetworkIsNotTouchedAndCountsAsBeingThere)
{
    locality.remoteFolder = "/nowhere/remote";
    const DropItem remote(DropItem::File{QUrl(QStringLiteral("file:///nowhere/remote/a"))}, {}, {},
                          false);
    EXPECT_EQ(writer.available({remote}).size(), 1);
}

TEST_F(DragWriterTest, MakesTheImageAtTheScale)
{
    const Image image = writer.dragImage(text(), 30, 1.5);
    EXPECT_EQ(image.bitmap.size(), QSize(45, 45));
    EXPECT_EQ(image.size, QSizeF(30, 30));
}

TEST_F(DragWriterTest, DrawsARoundedTile)
{
    const Image image = writer.dragImage(text(), 40, 2);
    EXPECT_EQ(at(image, 40, 40), gray);
    EXPECT_EQ(at(image, 0, 40), gray);
    EXPECT_EQ(qAlpha(at(image, 0, 0)), 0);
    EXPECT_EQ(qAlpha(at(image, 79, 79)), 0);
    // The corner's arc, of five points, crosses the diagonal 1.46 points from each edge.
    EXPECT_EQ(at(image, 4, 4), gray);
    EXPECT_EQ(qAlpha(at(image, 1, 1)), 0);
}

TEST_F(DragWriterTest, FitsTheThumbnailIntoTheTile)
{
    const Image image = writer.dragImage(withThumbnail(60, 30), 40, 1);
    EXPECT_EQ(at(image, 20, 20), qRgb(255, 0, 0));
    EXPECT_EQ(at(image, 1, 20), qRgb(255, 0, 0));
    EXPECT_EQ(at(image, 20, 5), gray);
    EXPECT_EQ(at(image, 20, 35), gray);
    const Image square = writer.dragImage(withThumbnail(9, 9), 40, 1);
    EXPECT_EQ(qAlpha(at(square, 0, 0)), 0) << "cut to the tile";
}

TEST_F(DragWriterTest, DrawsTheGlyphWithYUpwardWhereThereIsNoThumbnail)
{
    std::optional<PhosphorIcon> drawn;
    QRectF place;
    const DragWriter withGlyphs(
        QColor::fromRgba(gray),
        [&](QPainter &painter, PhosphorIcon icon, const QRectF &rect) {
            drawn = icon;
            place = rect;
            painter.fillRect(QRectF(rect.x(), midY(rect), rect.width(), rect.height() / 2),
                             Qt::blue);
        },
        locality);
    const Image image = withGlyphs.dragImage(text(), 40, 1);
    EXPECT_EQ(drawn, PhosphorIcon::TextAlignLeft);
    EXPECT_EQ(place, QRectF(8, 8, 24, 24)) << "a fifth of the side is left free all around";
    EXPECT_EQ(at(image, 20, 15), qRgb(0, 0, 255)) << "the upper half";
    EXPECT_EQ(at(image, 20, 25), gray);
    drawn.reset();
    withGlyphs.dragImage(withThumbnail(3, 3), 40, 1);
    EXPECT_FALSE(drawn.has_value());
}

} // namespace
} // namespace corvane
