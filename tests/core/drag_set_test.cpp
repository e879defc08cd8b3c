#include "core/drag_set.h"
#include "core/drag_writer.h"
#include "core/item_preparation.h"
#include "core/saved_pictures.h"
#include "core/temporary_spool.h"
#include "fakes/fake_file_locality.h"
#include "fakes/fake_work_queue.h"
#include "fakes/test_clock.h"
#include "platform/system/file_url.h"

#include <QFile>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

class DragSetTest : public testing::Test {
protected:
    DropItem file(const QString &name)
    {
        const QString path = folder.filePath(name);
        QFile made(path);
        EXPECT_TRUE(made.open(QFile::WriteOnly));
        return {DropItem::File{QUrl::fromLocalFile(path)}, name, QStringLiteral("TXT"), false};
    }
    static DropItem picture(const QByteArray &bytes)
    {
        return {DropItem::ImageBytes{bytes, UTType::png()}, QStringLiteral("Image"),
                QStringLiteral("PNG"), false};
    }
    static DropItem text(const QString &string)
    {
        return {DropItem::Text{string}, string, QStringLiteral("text"), false};
    }
    static QUrl fileUrl(const PasteboardWriter &writer)
    {
        const auto *file = std::get_if<PasteboardWriter::File>(&writer.content);
        return file ? file->url : QUrl();
    }
    static QByteArray bytesOf(const QUrl &url)
    {
        QFile file(QFile::decodeName(file_url::nativePath(url)));
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    }

    FakeFileLocality locality;
    DragWriter writer{Qt::gray, {}, locality};
    QTemporaryDir folder;
    TemporarySpool temporary;
    TestClock clock;
    FakeWorkQueue work;
    ItemPreparation preparation{temporary.spool, clock, work};
    SavedPictures pictures{temporary.spool, preparation};
};

} // namespace

TEST_F(DragSetTest, carriesEveryItemInItsOrder)
{
    const DropItem first = file(QStringLiteral("a.txt"));
    const DropItem second = text(QStringLiteral("hello"));
    const DropItem third = file(QStringLiteral("b.txt"));
    const DragSet set = makeDragSet({first, second, third}, writer, pictures);
    ASSERT_EQ(set.contents.writers.size(), 3U);
    ASSERT_EQ(set.items.size(), 3);
    EXPECT_EQ(set.items[0].id(), first.id());
    EXPECT_EQ(set.items[2].id(), third.id());
    EXPECT_EQ(fileUrl(set.contents.writers[0]).fileName(), QStringLiteral("a.txt"));
    EXPECT_TRUE(std::holds_alternative<PasteboardWriter::Text>(set.contents.writers[1].content));
    EXPECT_EQ(fileUrl(set.contents.writers[2]).fileName(), QStringLiteral("b.txt"));
    EXPECT_EQ(work.pendingCount(), 0U);
}

TEST_F(DragSetTest, aPictureInMemoryThatIsAloneTravelsAsItsBytes)
{
    const DragSet set = makeDragSet({picture("pixels")}, writer, pictures);
    ASSERT_EQ(set.contents.writers.size(), 1U);
    const auto *data = std::get_if<PasteboardWriter::Data>(&set.contents.writers[0].content);
    ASSERT_TRUE(data);
    EXPECT_EQ(data->bytes, QByteArray("pixels"));
    EXPECT_EQ(work.pendingCount(), 0U);
}

TEST_F(DragSetTest, aPictureInMemoryBesideOthersTravelsAsAFile)
{
    const DropItem image = picture("pixels");
    const DragSet set = makeDragSet({file(QStringLiteral("a.txt")), image}, writer, pictures);
    ASSERT_EQ(set.contents.writers.size(), 2U);
    ASSERT_EQ(set.forms.size(), 2);
    EXPECT_EQ(set.items.constLast().id(), image.id());
    EXPECT_TRUE(set.forms[1].isBeingMade());
    work.runAll();
    EXPECT_EQ(bytesOf(fileUrl(set.contents.writers[1])), QByteArray("pixels"));
}

TEST_F(DragSetTest, aPictureInMemoryIsSavedForTheFirstDragOnly)
{
    const QList<DropItem> both{picture("pixels"), picture("more")};
    const DragSet first = makeDragSet(both, writer, pictures);
    work.runAll();
    clock.runPending();
    const DragSet second = makeDragSet(both, writer, pictures);
    EXPECT_EQ(work.pendingCount(), 0U);
    ASSERT_EQ(second.contents.writers.size(), 2U);
    for (std::size_t i = 0; i < 2; ++i)
        EXPECT_EQ(fileUrl(second.contents.writers[i]), fileUrl(first.contents.writers[i]));
    EXPECT_FALSE(second.forms[0].isBeingMade());
}

TEST_F(DragSetTest, whatCannotBeSavedStaysBehind)
{
    temporary.spoil();
    const DropItem kept = file(QStringLiteral("a.txt"));
    const DragSet set = makeDragSet({picture("pixels"), kept, picture("more")}, writer, pictures);
    ASSERT_EQ(set.items.size(), 1);
    EXPECT_EQ(set.items[0].id(), kept.id());
    EXPECT_EQ(set.contents.writers.size(), 1U);
}

TEST_F(DragSetTest, whereNothingElseCanTravelTheFirstGoesAlone)
{
    temporary.spoil();
    const DropItem first = picture("pixels");
    const DragSet set = makeDragSet({first, picture("more")}, writer, pictures);
    ASSERT_EQ(set.items.size(), 1);
    EXPECT_EQ(set.items[0].id(), first.id());
    EXPECT_TRUE(std::holds_alternative<PasteboardWriter::Data>(set.contents.writers[0].content));
}

TEST_F(DragSetTest, aFileThatIsGoneStaysBehind)
{
    const DropItem gone = file(QStringLiteral("gone.txt"));
    ASSERT_TRUE(QFile::remove(folder.filePath(QStringLiteral("gone.txt"))));
    const DropItem image = picture("pixels");
    const DragSet set = makeDragSet({gone, image}, writer, pictures);
    ASSERT_EQ(set.items.size(), 1);
    EXPECT_EQ(set.items[0].id(), image.id());
    EXPECT_TRUE(std::holds_alternative<PasteboardWriter::Data>(set.contents.writers[0].content))
        << "what is left is alone";
    EXPECT_TRUE(makeDragSet({gone}, writer, pictures).items.isEmpty());
    EXPECT_TRUE(makeDragSet({}, writer, pictures).items.isEmpty());
}

} // namespace corvane::test
