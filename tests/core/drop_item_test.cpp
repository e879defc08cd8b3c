#include "core/drop_item.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace corvane {
namespace {

DropItem file(const QString &subtitle, bool isFolder = false)
{
    const QUrl url(QStringLiteral("file:///tmp/a"));
    return DropItem(DropItem::File{url, isFolder}, QStringLiteral("a"), subtitle, false);
}

TEST(DropItem, ShowsAFolderAsOneWhateverItIsCalled)
{
    EXPECT_EQ(file(QStringLiteral("Folder"), true).glyph(), PhosphorIcon::Folder);
    EXPECT_EQ(file(QStringLiteral("Ordner"), true).glyph(), PhosphorIcon::Folder);
    EXPECT_EQ(file(QStringLiteral("Folder"), false).glyph(), PhosphorIcon::File);
    EXPECT_EQ(file(QStringLiteral("TXT · 2 KB"), false).glyph(), PhosphorIcon::File);
}

TEST(DropItem, CanTurnOutToBeAFolderLater)
{
    DropItem found = file(QString(), false);
    const DropItem before = found;
    found.setIsFolder(true);
    EXPECT_EQ(found.glyph(), PhosphorIcon::Folder);
    EXPECT_EQ(before.glyph(), PhosphorIcon::File) << "a copy stays what it was";
    DropItem text(DropItem::Text{QStringLiteral("a")}, {}, {}, false);
    text.setIsFolder(true);
    EXPECT_EQ(text.glyph(), PhosphorIcon::TextAlignLeft);
}

TEST(DropItem, HasAGlyphForEachKind)
{
    const QString folder = QStringLiteral("Folder");
    const DropItem image(DropItem::ImageBytes{"x", UTType::png()}, {}, folder, false);
    const DropItem text(DropItem::Text{folder}, {}, folder, false);
    const DropItem link(DropItem::Link{QUrl(QStringLiteral("http://x"))}, {}, folder, false);
    EXPECT_EQ(image.glyph(), PhosphorIcon::Image);
    EXPECT_EQ(text.glyph(), PhosphorIcon::TextAlignLeft);
    EXPECT_EQ(link.glyph(), PhosphorIcon::Link);
}

TEST(DropItem, NamesEveryGlyphAsItsDrawingIsNamed)
{
    QStringList names;
    for (int icon = 0; icon <= static_cast<int>(PhosphorIcon::Folder); ++icon)
        names << rawValue(static_cast<PhosphorIcon>(icon));
    EXPECT_EQ(names.join(u' '),
              QStringLiteral("eye copy x caretLeft caretRight checkSquare square trash squaresFour "
                             "check file image textAlignLeft link folder"));
}

TEST(DropItem, NumbersItsKinds)
{
    EXPECT_EQ(DropItem::Payload(DropItem::File()).index(), 0U);
    EXPECT_EQ(DropItem::Payload(DropItem::ImageBytes()).index(), 1U);
    EXPECT_EQ(DropItem::Payload(DropItem::Text()).index(), 2U);
    EXPECT_EQ(DropItem::Payload(DropItem::Link()).index(), 3U);
}

TEST(DropItem, IsAValue)
{
    const DropItem first = file(QString());
    DropItem copy = first;
    copy.setTitle(QStringLiteral("b"));
    copy.setThumbnail({QImage(1, 1, QImage::Format_RGB32), QSizeF(30, 30)});
    EXPECT_EQ(first.title(), QStringLiteral("a"));
    EXPECT_FALSE(first.thumbnail().has_value());
    EXPECT_EQ(copy.title(), QStringLiteral("b"));
    EXPECT_TRUE(copy.thumbnail().has_value());
    EXPECT_EQ(copy.id(), first.id());
}

TEST(DropItem, ThatIsBeingMadeBecomesWhatWasMadeAndStaysItself)
{
    const QUrl place = QUrl::fromLocalFile(QStringLiteral("/spool/a.png"));
    const QUrl original = QUrl::fromLocalFile(QStringLiteral("/home/a.tiff"));
    DropItem item = DropItem::beingMade({place}, QStringLiteral("a.png"), {}, original);
    EXPECT_TRUE(item.isBeingMade());
    EXPECT_TRUE(item.isSpooled());
    EXPECT_EQ(item.original(), original);
    EXPECT_EQ(std::get<DropItem::File>(item.presentForm()->payload()).url, original);
    EXPECT_FALSE(DropItem::beingMade({place}, {}, {}, {}).presentForm().has_value());
    EXPECT_EQ(item.glyph(), PhosphorIcon::Image);
    const QUuid id = item.id();
    const DropItem before = item;
    item.become(DropItem(DropItem::File{original}, QStringLiteral("a.tiff"), QStringLiteral("TIFF"),
                         false));
    EXPECT_EQ(item.id(), id);
    EXPECT_EQ(item.title(), QStringLiteral("a.tiff"));
    EXPECT_EQ(item.subtitle(), QStringLiteral("TIFF"));
    EXPECT_EQ(std::get<DropItem::File>(item.payload()).url, original);
    EXPECT_FALSE(item.isSpooled());
    EXPECT_FALSE(item.isBeingMade());
    EXPECT_FALSE(item.original().has_value());
    EXPECT_EQ(item.presentForm()->id(), id);
    EXPECT_EQ(item.glyph(), PhosphorIcon::File);
    EXPECT_TRUE(before.isBeingMade());
}

TEST(DropItem, GetsAnIdOfItsOwn)
{
    EXPECT_FALSE(file({}).id().isNull());
    EXPECT_NE(file({}).id(), file({}).id());
    EXPECT_EQ(file({}).id().version(), QUuid::Random);
    EXPECT_EQ(file({}).id().variant(), QUuid::DCE);
}

TEST(DropItem, GetsAnIdWhoseEveryOtherBitIsLeftToChance)
{
    QByteArray everSet(16, '\0');
    QByteArray alwaysSet(16, '\xff');
    for (int i = 0; i < 100; ++i) {
        const QByteArray id = file({}).id().toRfc4122();
        for (int byte = 0; byte < id.size(); ++byte) {
            everSet[byte] = static_cast<char>(everSet[byte] | id[byte]);
            alwaysSet[byte] = static_cast<char>(alwaysSet[byte] & id[byte]);
        }
    }
    EXPECT_EQ(everSet.toHex(), QByteArray("ffffffffffff4fffbfffffffffffffff"));
    EXPECT_EQ(alwaysSet.toHex(), QByteArray("00000000000040008000000000000000"));
}

} // namespace
} // namespace corvane
