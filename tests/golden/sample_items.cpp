#include "golden/sample_items.h"

#include "fakes/shelf_desk.h"

#include <QPainter>

namespace corvane::test {

namespace {

const QColor evening(0xF3, 0xA9, 0x6B);
const QColor harbour(0x2C, 0x3E, 0x5C);
const QColor morning(0x7F, 0xB6, 0xD6);
const QColor meadow(0x3D, 0x52, 0x40);

DropItem link(const QString &title)
{
    const QUrl page(QStringLiteral("https://example.org/rust"));
    return {DropItem::Link{page}, title, QStringLiteral("example.org"), false};
}

} // namespace

DropItem samplePhoto(const QString &name, const QColor &sky, const QColor &ground, QSize size,
                     double sun)
{
    QImage bitmap(size, QImage::Format_ARGB32_Premultiplied);
    {
        QPainter painter(&bitmap);
        painter.fillRect(bitmap.rect(), sky);
        painter.fillRect(QRect(0, size.height() * 2 / 3, size.width(), size.height()), ground);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(255, 236, 170));
        painter.drawEllipse(QPointF(size.width() * 0.7, size.height() * 0.28), sun, sun);
    }
    DropItem item = ShelfDesk::fileItem(name, QStringLiteral("JPG · 2.1 MB"));
    item.setThumbnail({bitmap, {30, 30}});
    return item;
}

DropItem sampleBeingMade(const QString &name, const QString &subtitle)
{
    return DropItem::beingMade({QUrl::fromLocalFile(QStringLiteral("/nowhere/") + name)}, name,
                               subtitle, {});
}

QList<DropItem> sampleItems()
{
    return {
        samplePhoto(QStringLiteral("harbour.jpg"), evening, harbour),
        link(QStringLiteral("Rust 2026 edition")),
        ShelfDesk::fileItem(QStringLiteral("cover-v3.png"), QStringLiteral("PNG · 80 KB")),
        ShelfDesk::folderItem(QStringLiteral("Holiday")),
        ShelfDesk::textItem(QStringLiteral("Remember the milk")),
        samplePhoto(QStringLiteral("mast.tiff"), morning, meadow, {60, 34}),
    };
}

QList<DropItem> largeSampleItems()
{
    constexpr double sun = 16;
    return {
        samplePhoto(QStringLiteral("harbour in the evening.jpeg"), evening, harbour, {128, 128},
                    sun),
        link(QStringLiteral("Rust 2026 edition guide")),
        ShelfDesk::fileItem(QStringLiteral("cover-v3.png"), QStringLiteral("PNG · 80 KB")),
        ShelfDesk::folderItem(QStringLiteral("Holiday")),
        ShelfDesk::textItem(QStringLiteral("Remember the milk and the bread")),
        samplePhoto(QStringLiteral("mast.tiff"), morning, meadow, {128, 72}, sun),
        samplePhoto(QStringLiteral("tower.png"), Qt::white, QColor(0xDD, 0xE3, 0xEE), {72, 128},
                    sun),
    };
}

} // namespace corvane::test
