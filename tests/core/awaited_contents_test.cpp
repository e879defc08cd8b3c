#include "core/awaited_contents.h"
#include "core/drag_writer.h"
#include "core/item_preparation.h"
#include "core/spool_place.h"
#include "core/temporary_spool.h"
#include "fakes/fake_work_queue.h"
#include "fakes/test_clock.h"

#include <gtest/gtest.h>

namespace corvane {
namespace {

struct AwaitedContentsTest : testing::Test, test::TemporarySpool {
    /// An item of its own file, or of what `becomes` says.
    DropItem pending(std::optional<DropItem> becomes = {})
    {
        const auto place = spool.keepPlace(QStringLiteral("a"), QStringLiteral("png"));
        const DropItem::File file{place->url()};
        return preparation.begin(
            {DropItem::beingMade(file, {}, {}, {}),
             {place},
             [file, becomes] { return becomes.value_or(DropItem(file, {}, {}, true)); },
             {}});
    }
    static DropItem text() { return {DropItem::Text{QStringLiteral("text")}, {}, {}, false}; }
    static QUrl urlOf(const DropItem &item) { return std::get<DropItem::File>(item.payload()).url; }

    void dragOut(const QList<DropItem> &items)
    {
        PasteboardContents contents;
        for (const DropItem &item : items)
            contents.writers.push_back(DragWriter::pasteboardWriter(item));
        const auto whenReady = awaitedContents(contents, items, preparation);
        ASSERT_TRUE(whenReady);
        whenReady([this](const std::optional<PasteboardContents> &ready) {
            ++answers;
            handedOver = ready;
        });
    }
    void finishWork()
    {
        work.runAll();
        clock.runPending();
    }

    test::TestClock clock;
    test::FakeWorkQueue work;
    ItemPreparation preparation{spool, clock, work};
    int answers = 0;
    std::optional<PasteboardContents> handedOver;
};

TEST_F(AwaitedContentsTest, NeedNoWaitingWhereEverythingIsReady)
{
    EXPECT_FALSE(
        awaitedContents({{DragWriter::pasteboardWriter(text())}, {}}, {text()}, preparation));
}

TEST_F(AwaitedContentsTest, AreHandedOverOnceTheLastItemIsReady)
{
    const QUrl original = temporary.write("scan.tiff", "broken");
    const DropItem made = pending();
    const DropItem unconverted = pending(DropItem(DropItem::File{original}, {}, {}, false));
    dragOut({made, text(), unconverted});
    work.runOne();
    clock.runPending();
    EXPECT_EQ(answers, 0);
    finishWork();
    ASSERT_TRUE(handedOver);
    ASSERT_EQ(handedOver->writers.size(), 3U);
    EXPECT_EQ(std::get<PasteboardWriter::File>(handedOver->writers[0].content).url, urlOf(made));
    EXPECT_TRUE(std::holds_alternative<PasteboardWriter::Text>(handedOver->writers[1].content));
    EXPECT_EQ(std::get<PasteboardWriter::File>(handedOver->writers[2].content).url, original);
    EXPECT_EQ(answers, 1);
}

TEST_F(AwaitedContentsTest, AreNoneWhereAnItemIsRemovedMeanwhile)
{
    const DropItem item = pending();
    dragOut({item, text()});
    spool.discard(urlOf(item));
    finishWork();
    EXPECT_EQ(answers, 1);
    EXPECT_FALSE(handedOver);
}

TEST_F(AwaitedContentsTest, LeaveOutOfTheFilesWhatCouldNotBeWritten)
{
    const DropItem inMemory(DropItem::ImageBytes{"png", UTType::png()}, {}, {}, false);
    const DropItem made = pending();
    dragOut({pending(inMemory), made});
    finishWork();
    EXPECT_EQ(answers, 1);
    ASSERT_TRUE(handedOver);
    ASSERT_EQ(handedOver->writers.size(), 2U);
    EXPECT_FALSE(std::holds_alternative<PasteboardWriter::File>(handedOver->writers[0].content));
    EXPECT_EQ(std::get<PasteboardWriter::File>(handedOver->writers[1].content).url, urlOf(made));
}

} // namespace
} // namespace corvane
