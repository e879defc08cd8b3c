// The view-all bar: every number of its layout as text, and pictures of it on a light or a dark
// wallpaper.

#include "fakes/shelf_desk.h"
#include "golden/golden.h"
#include "shelf/view_all_view.h"

#include <QLinearGradient>
#include <QPainterPath>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

using namespace view_all_layout;

QString text(const QRectF &rect)
{
    return QStringLiteral("%1 %2 %3 x %4")
        .arg(rect.x())
        .arg(rect.y())
        .arg(rect.width())
        .arg(rect.height());
}

QString text(const ViewAllLayout::Arrow &arrow)
{
    const char *const fill = arrow.fill == ViewAllLayout::Fill::Off ? "off"
        : arrow.fill == ViewAllLayout::Fill::Hover                  ? "hover"
                                                                    : "normal";
    return QStringLiteral("%1, opacity %2, fill %3")
        .arg(text(arrow.frame))
        .arg(arrow.opacity)
        .arg(QLatin1String(fill));
}

QString text(const ViewAllLayout::Button &button)
{
    return QStringLiteral("%1, opacity %2").arg(text(button.frame)).arg(button.opacity);
}

QString text(const ViewAllLayout &layout)
{
    QString lines;
    const auto add = [&lines](const char *name, const QString &value) {
        lines += QLatin1String(name) % u": " % value % u'\n';
    };
    add("size", QStringLiteral("%1 x %2").arg(layout.size.width()).arg(layout.size.height()));
    for (const ViewAllLayout::Tile &tile : layout.tiles) {
        add("tile", text(tile.root));
        add("  thumb", text(tile.thumb) % QStringLiteral(", opacity %1").arg(tile.thumbOpacity));
        add("  ring", text(tile.ring) % QStringLiteral(", opacity %1").arg(tile.ringOpacity));
        add("  check", text(tile.check) % (tile.isChecked ? u", checked" : u""));
        add("  caption", text(tile.caption));
    }
    add("left arrow", text(layout.leftArrow));
    add("right arrow", text(layout.rightArrow));
    add("select all",
        text(layout.selectAllBox) % (layout.isEverythingSelected ? u", checked" : u""));
    add("label", text(layout.selectAllLabel) % u' ' % layout.selectionText);
    add("copy", text(layout.copyButton));
    add("trash", text(layout.trashButton));
    for (const QRectF &hit : layout.controlHits)
        add("hit", text(hit));
    return lines;
}

class ViewAllLayouts : public testing::TestWithParam<int> { };

enum class Wallpaper { Light, Dark };

/// A busy one: what lies below a bar is seldom plain.
QImage wallpaper(QSize size, double scale, Wallpaper kind)
{
    QImage image(size, QImage::Format_RGB32);
    QLinearGradient gradient(0, 0, size.width(), size.height());
    const bool isLight = kind == Wallpaper::Light;
    gradient.setColorAt(0, isLight ? QColor(0xF3, 0xDA, 0xC6) : QColor(0x1E, 0x26, 0x44));
    gradient.setColorAt(1, isLight ? QColor(0xA3, 0xC6, 0xDB) : QColor(0x5A, 0x33, 0x50));
    QPainter painter(&image);
    painter.fillRect(image.rect(), gradient);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(isLight ? Qt::white : Qt::black, 9 * scale));
    for (int x = -size.height(); x < size.width(); x += static_cast<int>(70 * scale))
        painter.drawLine(x, size.height(), x + size.height(), 0);
    return image;
}

DropItem photo(const QString &name, const QColor &sky, const QColor &ground, QSize size)
{
    QImage bitmap(size, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&bitmap);
    painter.fillRect(bitmap.rect(), sky);
    painter.fillRect(QRect(0, size.height() * 2 / 3, size.width(), size.height()), ground);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 236, 170));
    painter.drawEllipse(QPointF(size.width() * 0.7, size.height() * 0.28), 16, 16);
    painter.end();
    DropItem item = ShelfDesk::fileItem(name, QStringLiteral("JPG · 2.1 MB"));
    item.setThumbnail({bitmap, {30, 30}});
    return item;
}

QList<DropItem> sampleItems()
{
    const QUrl page(QStringLiteral("https://example.org/rust"));
    return {
        photo(QStringLiteral("harbour in the evening.jpeg"), QColor(0xF3, 0xA9, 0x6B),
              QColor(0x2C, 0x3E, 0x5C), {128, 128}),
        DropItem(DropItem::Link{page}, QStringLiteral("Rust 2026 edition guide"),
                 QStringLiteral("example.org"), false),
        ShelfDesk::fileItem(QStringLiteral("cover-v3.png"), QStringLiteral("PNG · 80 KB")),
        ShelfDesk::fileItem(QStringLiteral("Holiday"), QStringLiteral("Folder")),
        ShelfDesk::textItem(QStringLiteral("Remember the milk and the bread")),
        photo(QStringLiteral("mast.tiff"), QColor(0x7F, 0xB6, 0xD6), QColor(0x3D, 0x52, 0x40),
              {128, 72}),
        photo(QStringLiteral("tower.png"), Qt::white, QColor(0xDD, 0xE3, 0xEE), {72, 128}),
    };
}

class ViewAllImages : public testing::Test {
protected:
    ViewAllImages() { desk.panel.setFrame({0, 0, 760, barHeight}); }

    void show(int offset = 0) { view.apply(items, selection, offset); }
    void select(std::initializer_list<int> indices)
    {
        for (const int index : indices)
            selection.insert(items[index].id());
    }
    QImage onDesktop(Wallpaper kind, double scale)
    {
        constexpr double margin = 20;
        const QSizeF size = desk.panel.frame().size();
        QImage image = wallpaper(
            (QSizeF(size.width() + 2 * margin, size.height() + 2 * margin) * scale).toSize(), scale,
            kind);
        QImage bar((size * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
        bar.setDevicePixelRatio(scale);
        bar.fill(Qt::transparent);
        {
            QPainter painter(&bar);
            painter.translate(0, size.height());
            painter.scale(1, -1);
            view.paint(painter, size, scale);
        }
        bar.setDevicePixelRatio(1);
        QPainter(&image).drawImage(QPointF(margin, margin) * scale, bar);
        return image;
    }

    ShelfDesk desk{QFont(QStringLiteral("Inter"))};
    QList<DropItem> items = sampleItems();
    QSet<QUuid> selection;
    ViewAllView view{{desk.panel, desk.clock, desk.motion, desk.theme, desk.keyboard,
                      desk.dragWriter, desk.savedPictures, desk.preparation}};
};

} // namespace

TEST_P(ViewAllLayouts, AreAsKept)
{
    constexpr int items = 40;
    constexpr int offset = 3;
    ViewAllState state;
    state.size = {static_cast<double>(GetParam()), barHeight};
    state.itemCount = items;
    state.selectedCount = 2;
    state.offset = offset;
    const Range range = visibleRange(offset, items, itemsPerPage(state.size.width()));
    state.tiles.resize(static_cast<std::size_t>(range.end - range.first));
    state.tiles.front().isSelected = true;
    state.tiles.back().isHovered = true;
    state.hoveredControl = ViewAllControl::Copy;
    EXPECT_TRUE(
        matchesGoldenText(QStringLiteral("view-all-%1.txt").arg(GetParam()), text(layOut(state))));
}

INSTANTIATE_TEST_SUITE_P(EveryWidth, ViewAllLayouts, testing::Values(92, 600, 1210, 3072));

TEST_F(ViewAllImages, APageOfItemsSomeOfThemTicked)
{
    select({0, 3, 5});
    show();
    view.mouseMoved({view.layout().tiles[4].root.center()});
    for (const auto &[kind, name] :
         {std::pair(Wallpaper::Light, "light"), std::pair(Wallpaper::Dark, "dark")}) {
        for (const int scale : {1, 2}) {
            EXPECT_TRUE(matchesGoldenImage(
                QStringLiteral("view-all-%1-%2x.png").arg(QLatin1String(name)).arg(scale),
                onDesktop(kind, scale)));
        }
    }
}

TEST_F(ViewAllImages, PicturesThatAreBeingMade)
{
    const auto beingMade = [](const QString &name) {
        return DropItem::beingMade({QUrl::fromLocalFile(QStringLiteral("/nowhere/") + name)}, name,
                                   {}, {});
    };
    items = items.first(2);
    items << beingMade(QStringLiteral("page 1.png")) << beingMade(QStringLiteral("page 2.png"));
    select({0, 2});
    show();
    EXPECT_TRUE(matchesGoldenImage(QStringLiteral("view-all-being-made-light-2x.png"),
                                   onDesktop(Wallpaper::Light, 2)));
    EXPECT_TRUE(matchesGoldenImage(QStringLiteral("view-all-being-made-dark-1x.png"),
                                   onDesktop(Wallpaper::Dark, 1)));
}

TEST_F(ViewAllImages, TwoItemsAllTickedWithAButtonHovered)
{
    items = items.first(2);
    select({0, 1});
    show();
    view.mouseMoved(
        {view.layout().controlHits[static_cast<std::size_t>(ViewAllControl::Trash)].center()});
    EXPECT_TRUE(matchesGoldenImage(QStringLiteral("view-all-two-dark-2x.png"),
                                   onDesktop(Wallpaper::Dark, 2)));
}

TEST_F(ViewAllImages, TheLastPageWithAnArrowHoveredAndNothingTicked)
{
    desk.panel.setFrame({0, 0, 420, barHeight});
    show(100);
    view.mouseMoved(
        {view.layout().controlHits[static_cast<std::size_t>(ViewAllControl::Back)].center()});
    EXPECT_TRUE(matchesGoldenImage(QStringLiteral("view-all-last-page-light-2x.png"),
                                   onDesktop(Wallpaper::Light, 2)));
}

TEST_F(ViewAllImages, SeveralItemsAreDraggedAsAStackWithTheirCount)
{
    for (const DropItem &item : std::as_const(items))
        selection.insert(item.id());
    items.removeIf([](const DropItem &item) {
        return std::holds_alternative<DropItem::File>(item.payload());
    });
    items << ShelfDesk::textItem(QStringLiteral("a third"));
    selection.insert(items.constLast().id());
    items[0].setThumbnail(*sampleItems()[0].thumbnail());
    show();
    const QPointF at = view.layout().tiles[0].root.center();
    view.mouseDown({at});
    view.mouseDragged({at + QPointF(9, 0)});
    ASSERT_TRUE(desk.panel.dragOut);
    const QImage stack = desk.panel.dragOut->image.bitmap;
    QImage image = wallpaper(stack.size(), 1, Wallpaper::Light);
    QPainter(&image).drawImage(0, 0, stack);
    EXPECT_TRUE(matchesGoldenImage(QStringLiteral("view-all-stack-light-1x.png"), image));
}

} // namespace corvane::test
