// Pictures of the shelf in every state, on a light or a dark wallpaper, at several scales.

#include "fakes/shelf_desk.h"
#include "golden/golden.h"
#include "platform/qt/qt_text_measurer.h"

#include <QLinearGradient>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

enum class Wallpaper { Light, Dark };

QImage wallpaper(QSize size, Wallpaper kind)
{
    QImage image(size, QImage::Format_RGB32);
    QLinearGradient gradient(0, 0, size.width(), size.height());
    const bool isLight = kind == Wallpaper::Light;
    gradient.setColorAt(0, isLight ? QColor(0xF3, 0xDA, 0xC6) : QColor(0x1E, 0x26, 0x44));
    gradient.setColorAt(1, isLight ? QColor(0xA3, 0xC6, 0xDB) : QColor(0x5A, 0x33, 0x50));
    QPainter(&image).fillRect(image.rect(), gradient);
    return image;
}

Image picture(const QColor &sky, const QColor &ground, QSize size = {60, 60})
{
    QImage bitmap(size, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&bitmap);
    painter.fillRect(bitmap.rect(), sky);
    painter.fillRect(QRect(0, size.height() * 2 / 3, size.width(), size.height() / 3), ground);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 236, 170));
    painter.drawEllipse(QPointF(size.width() * 0.7, size.height() * 0.28), 8, 8);
    return {bitmap, {30, 30}};
}

DropItem photo(const QString &name, const QColor &sky, const QColor &ground, QSize size = {60, 60})
{
    DropItem item = ShelfDesk::fileItem(name, QStringLiteral("JPG · 2.1 MB"));
    item.setThumbnail(picture(sky, ground, size));
    return item;
}

QList<DropItem> sampleItems()
{
    const QUrl page(QStringLiteral("https://example.org/rust"));
    return {
        photo(QStringLiteral("harbour.jpg"), QColor(0xF3, 0xA9, 0x6B), QColor(0x2C, 0x3E, 0x5C)),
        DropItem(DropItem::Link{page}, QStringLiteral("Rust 2026 edition"),
                 QStringLiteral("example.org"), false),
        ShelfDesk::fileItem(QStringLiteral("cover-v3.png"), QStringLiteral("PNG · 80 KB")),
        ShelfDesk::fileItem(QStringLiteral("Holiday"), QStringLiteral("Folder")),
        ShelfDesk::textItem(QStringLiteral("Remember the milk")),
        photo(QStringLiteral("mast.tiff"), QColor(0x7F, 0xB6, 0xD6), QColor(0x3D, 0x52, 0x40),
              {60, 34}),
    };
}

DropItem beingMade(const QString &name)
{
    return DropItem::beingMade({QUrl::fromLocalFile(QStringLiteral("/nowhere/") + name)}, name,
                               QStringLiteral("Converting to PNG…"), {});
}

ShelfSnapshot occupied(const QList<DropItem> &items, int inView, int focused)
{
    ShelfSnapshot snapshot;
    snapshot.state = ShelfState::Occupied;
    snapshot.inViewCount = inView;
    snapshot.totalCount = static_cast<int>(items.size());
    snapshot.focusedIndex = focused;
    for (int i = 0; i < std::min<int>(inView, snapshot.totalCount); ++i)
        snapshot.visible.emplace_back(i, items[i]);
    snapshot.canScrollForward = snapshot.hasArrows();
    return snapshot;
}

ShelfSnapshot waiting()
{
    ShelfSnapshot snapshot;
    snapshot.state = ShelfState::Expanded;
    snapshot.receptive = true;
    return snapshot;
}

class ShelfImages : public testing::Test {
protected:
    ShelfImages()
        : desk(QFont(QStringLiteral("Inter")), &measurer)
        , view(desk.context())
    {
        view.apply({});
    }

    void show(const ShelfSnapshot &snapshot)
    {
        ShelfDesk::fit(desk.panel, view, snapshot);
        view.apply(snapshot);
        rest();
    }

    /// Lets everything come to where it belongs; what has been painted moves.
    void rest()
    {
        ShelfDesk::paint(view, desk.panel);
        desk.clock.advance(1);
    }

    /// The panel on a piece of desktop, its top at the screen's edge.
    QImage onDesktop(Wallpaper kind, double scale)
    {
        constexpr double margin = 24;
        const QSizeF size = desk.panel.frame().size();
        QImage image = wallpaper(
            (QSizeF(size.width() + 2 * margin, size.height() + margin) * scale).toSize(), kind);
        QPainter painter(&image);
        QImage shelf = ShelfDesk::paint(view, desk.panel, scale);
        shelf.setDevicePixelRatio(1);
        painter.drawImage(QPointF(margin * scale, 0), shelf);
        return image;
    }

    /// Points from the body's lower left corner.
    void hover(QPointF point)
    {
        view.mouseMoved({point});
        rest();
    }

    QtTextMeasurer measurer;
    ShelfDesk desk;
    ShelfView view;
};

} // namespace

TEST_F(ShelfImages, AnEmptyShelfAsksForADrop)
{
    show(waiting());
    EXPECT_TRUE(
        matchesGoldenImage(QStringLiteral("empty-light-2x.png"), onDesktop(Wallpaper::Light, 2)));
    EXPECT_TRUE(
        matchesGoldenImage(QStringLiteral("empty-dark-1x.png"), onDesktop(Wallpaper::Dark, 1)));
}

TEST_F(ShelfImages, TheRingBrightensUnderADrop)
{
    show(waiting());
    FakePasteboard pasteboard;
    pasteboard.offered = QStringList{QStringLiteral("text/plain")};
    pasteboard.text = QStringLiteral("hello");
    view.draggingEntered({pasteboard, {146, 20}, false});
    rest();
    EXPECT_TRUE(
        matchesGoldenImage(QStringLiteral("targeted-dark-2x.png"), onDesktop(Wallpaper::Dark, 2)));
}

TEST_F(ShelfImages, OneItemShowsItsDetailsAndActions)
{
    show(occupied(
        {photo(QStringLiteral("Quarterly report.pdf"), Qt::white, QColor(0xDD, 0xE3, 0xEE))}, 1,
        0));
    hover((*view.look().layout.actionButtons)[1].center());
    EXPECT_TRUE(matchesGoldenImage(QStringLiteral("one-item-copy-hovered-light-2x.png"),
                                   onDesktop(Wallpaper::Light, 2)));
    EXPECT_TRUE(matchesGoldenImage(QStringLiteral("one-item-copy-hovered-dark-1.5x.png"),
                                   onDesktop(Wallpaper::Dark, 1.5)));
    EXPECT_TRUE(matchesGoldenImage(QStringLiteral("one-item-copy-hovered-light-1x.png"),
                                   onDesktop(Wallpaper::Light, 1)));
}

TEST_F(ShelfImages, APictureThatIsBeingMadeSaysSo)
{
    const DropItem page = beingMade(QStringLiteral("contract page 1.png"));
    show(occupied({page}, 1, 0));
    EXPECT_TRUE(matchesGoldenImage(QStringLiteral("being-made-single-dark-2x.png"),
                                   onDesktop(Wallpaper::Dark, 2)));
    const QList<DropItem> items = sampleItems();
    show(occupied({items[0], page, items[2]}, 3, 1));
    EXPECT_TRUE(matchesGoldenImage(QStringLiteral("being-made-carousel-light-1x.png"),
                                   onDesktop(Wallpaper::Light, 1)));
    EXPECT_TRUE(matchesGoldenImage(QStringLiteral("being-made-carousel-light-2x.png"),
                                   onDesktop(Wallpaper::Light, 2)));
}

TEST_F(ShelfImages, ALongTitleEndsInAnEllipsis)
{
    show(occupied(QList<DropItem>{ShelfDesk::fileItem(
                      QStringLiteral("A very long name that no shelf could ever show in full.txt"))}
                      + sampleItems(),
                  1, 0));
    EXPECT_TRUE(matchesGoldenImage(QStringLiteral("long-title-dark-2x.png"),
                                   onDesktop(Wallpaper::Dark, 2)));
}

TEST_F(ShelfImages, FiveItemsWithThreeInView)
{
    show(occupied(sampleItems().first(5), 3, 0));
    const auto &cell = view.look().layout.cells[1];
    hover(cell.root.topLeft() + cell.thumb.center());
    EXPECT_TRUE(matchesGoldenImage(QStringLiteral("five-in-three-dark-2x.png"),
                                   onDesktop(Wallpaper::Dark, 2)));
    EXPECT_TRUE(matchesGoldenImage(QStringLiteral("five-in-three-light-1x.png"),
                                   onDesktop(Wallpaper::Light, 1)));
    EXPECT_TRUE(matchesGoldenImage(QStringLiteral("five-in-three-light-1.5x.png"),
                                   onDesktop(Wallpaper::Light, 1.5)));
}

TEST_F(ShelfImages, SixItemsInView)
{
    show(occupied(sampleItems(), 6, 2));
    EXPECT_TRUE(matchesGoldenImage(QStringLiteral("six-in-view-dark-2x.png"),
                                   onDesktop(Wallpaper::Dark, 2)));
}

TEST_F(ShelfImages, ADragOverAFullShelfKeepsTheCells)
{
    ShelfSnapshot snapshot = occupied(sampleItems(), 6, 2);
    snapshot.receptive = true;
    show(snapshot);
    EXPECT_TRUE(matchesGoldenImage(QStringLiteral("receptive-six-light-2x.png"),
                                   onDesktop(Wallpaper::Light, 2)));
    snapshot = occupied(sampleItems().first(1), 1, 0);
    snapshot.receptive = true;
    show(snapshot);
    EXPECT_TRUE(matchesGoldenImage(QStringLiteral("receptive-one-dark-2x.png"),
                                   onDesktop(Wallpaper::Dark, 2)));
}

TEST_F(ShelfImages, AMessageFlashes)
{
    show(occupied(sampleItems(), 3, 0));
    view.flash(QStringLiteral("Kept on the shelf"));
    desk.clock.advance(0.5);
    EXPECT_TRUE(matchesGoldenImage(QStringLiteral("flash-carousel-dark-2x.png"),
                                   onDesktop(Wallpaper::Dark, 2)));
    show(occupied(sampleItems(), 1, 0));
    view.flash(QStringLiteral("Path copied"));
    desk.clock.advance(0.5);
    EXPECT_TRUE(matchesGoldenImage(QStringLiteral("flash-single-light-2x.png"),
                                   onDesktop(Wallpaper::Light, 2)));
}

TEST_F(ShelfImages, ANotchIsPartOfTheBody)
{
    ShelfSnapshot snapshot = occupied(sampleItems().first(3), 3, 1);
    snapshot.notch = {200, 32};
    show(snapshot);
    EXPECT_TRUE(
        matchesGoldenImage(QStringLiteral("notch-light-1x.png"), onDesktop(Wallpaper::Light, 1)));
}

} // namespace corvane::test
