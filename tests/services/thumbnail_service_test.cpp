#include "fakes/fake_file_icons.h"
#include "fakes/fake_image_codec.h"
#include "fakes/fake_screens.h"
#include "fakes/fake_thumbnail_generator.h"
#include "fakes/fake_work_queue.h"
#include "fakes/test_clock.h"
#include "services/thumbnail_service.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <thread>

namespace corvane {
namespace {

const QUrl url(QStringLiteral("file:///tmp/a.xyz"));

QImage bitmap(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::green);
    return image;
}

struct ThumbnailServiceTest : testing::Test {
    ThumbnailSource::Completion completion()
    {
        return [this](const std::optional<Image> &image) {
            ++completions;
            result = image;
            EXPECT_EQ(std::this_thread::get_id(), mainThread);
        };
    }

    const std::thread::id mainThread = std::this_thread::get_id();
    const QUuid item = QUuid::createUuid();
    test::FakeThumbnailGenerator generator;
    test::FakeThumbnailGenerator remote;
    test::FakeFileIcons icons;
    test::FakeImageCodec codec;
    test::FakeScreens screens;
    test::TestClock clock;
    test::FakeWorkQueue work;
    std::unique_ptr<ThumbnailService> service
        = std::make_unique<ThumbnailService>(generator, remote, icons, codec, screens, clock, work);
    int completions = 0;
    std::optional<Image> result;
};

TEST_F(ThumbnailServiceTest, AsksForAFileAtTheSizeThatIsShown)
{
    screens.attach(QRectF(0, 0, 100, 100), 1.5);
    service->generateForFile(item, url, completion());
    EXPECT_TRUE(generator.requests.empty()) << "the drop is not accepted yet";
    clock.runPending();
    ASSERT_EQ(generator.requests.size(), 1U);
    EXPECT_EQ(generator.requests[0].url, url);
    EXPECT_EQ(generator.requests[0].size, QSizeF(30, 30));
    EXPECT_EQ(generator.requests[0].scale, 1.5);
}

TEST_F(ThumbnailServiceTest, TakesAScaleOfTwoWithoutAScreen)
{
    service->generateForFile(item, url, completion());
    clock.runPending();
    EXPECT_EQ(generator.requests[0].scale, 2);
    codec.teach("large", {4000, 1000});
    service->generateForImageData(item, "large", completion());
    clock.runPending();
    work.runAll();
    clock.runPending();
    ASSERT_TRUE(result.has_value());
    EXPECT_EQ(result->bitmap.size(), QSize(60, 15));
}

TEST_F(ThumbnailServiceTest, GivesAFilesPictureLaterOnTheMainThread)
{
    service->generateForFile(item, url, completion());
    clock.runPending();
    generator.answer(0, {bitmap(60, 40)});
    EXPECT_EQ(completions, 0);
    clock.runPending();
    EXPECT_EQ(completions, 1);
    ASSERT_TRUE(result.has_value());
    EXPECT_EQ(result->bitmap.size(), QSize(60, 40));
    EXPECT_EQ(result->size, QSizeF(30, 30));
    EXPECT_TRUE(icons.asked.isEmpty());
}

TEST_F(ThumbnailServiceTest, GivesEachOfManyFilesItsOwnPicture)
{
    std::vector<ThumbnailSource::File> files;
    for (int i = 0; i < 3; ++i)
        files.push_back({QUuid::createUuid(), QUrl(QStringLiteral("file:///%1").arg(i))});
    QList<QUuid> answered;
    service->generateForFiles(files, [&](const QUuid &of, const std::optional<Image> &image) {
        answered << of;
        EXPECT_TRUE(image.has_value());
    });
    service->cancel(files[1].item);
    clock.runPending();
    ASSERT_EQ(generator.requests.size(), 2U);
    EXPECT_EQ(generator.requests[0].url, files[2].url) << "the newest first";
    EXPECT_EQ(generator.requests[1].url, files[0].url);
    generator.answer(1, {bitmap(60, 40)});
    generator.answer(0, {});
    clock.runPending();
    EXPECT_EQ(answered, (QList<QUuid>{files[0].item, files[2].item}));
    EXPECT_EQ(icons.asked, QList<QUrl>{files[2].url});
}

TEST_F(ThumbnailServiceTest, GivesAFileWithoutAPictureItsIcon)
{
    screens.attach(QRectF(0, 0, 100, 100), 2);
    service->generateForFile(item, url, completion());
    clock.runPending();
    generator.answer(0, {});
    EXPECT_TRUE(icons.asked.isEmpty()) << "icons belong to the main thread";
    clock.runPending();
    EXPECT_EQ(completions, 1);
    ASSERT_TRUE(result.has_value());
    EXPECT_EQ(result->size, QSizeF(30, 30));
    EXPECT_EQ(result->bitmap.size(), QSize(60, 60));
    EXPECT_EQ(icons.asked, QList<QUrl>{url});
}

TEST_F(ThumbnailServiceTest, TakesAnEmptyPictureForNone)
{
    service->generateForFile(item, url, completion());
    clock.runPending();
    generator.answer(0, {QImage()});
    clock.runPending();
    ASSERT_TRUE(result.has_value());
    EXPECT_FALSE(result->isNull());
}

TEST_F(ThumbnailServiceTest, ShowsAWidePictureSquare)
{
    screens.attach(QRectF(0, 0, 100, 100), 2);
    codec.teach("wide", {4000, 1000});
    service->generateForImageData(item, "wide", completion());
    clock.runPending();
    work.runAll();
    clock.runPending();
    ASSERT_TRUE(result.has_value());
    EXPECT_EQ(result->bitmap.size(), QSize(60, 15));
    EXPECT_EQ(result->size, QSizeF(30, 30));
}

TEST_F(ThumbnailServiceTest, RoundsPixelsAtAFractionalScale)
{
    screens.attach(QRectF(0, 0, 100, 100), 1.25);
    codec.teach("large", {1000, 1000});
    service->generateForImageData(item, "large", completion());
    clock.runPending();
    work.runAll();
    clock.runPending();
    EXPECT_EQ(result->bitmap.size(), QSize(38, 38));
}

TEST_F(ThumbnailServiceTest, KeepsASmallPictureSmall)
{
    codec.teach("small", {8, 8});
    service->generateForImageData(item, "small", completion());
    clock.runPending();
    work.runAll();
    clock.runPending();
    EXPECT_EQ(result->bitmap.size(), QSize(8, 8));
    EXPECT_EQ(result->size, QSizeF(30, 30));
}

TEST_F(ThumbnailServiceTest, GivesNoneForBrokenBytesOnceOnTheMainThread)
{
    service->generateForImageData(item, "broken", completion());
    clock.runPending();
    EXPECT_EQ(completions, 0);
    work.runAll();
    EXPECT_EQ(completions, 0);
    clock.advance(1);
    EXPECT_EQ(completions, 1);
    EXPECT_FALSE(result.has_value());
}

TEST_F(ThumbnailServiceTest, GivesAFolderBehindALinkItsIcon)
{
    service->generateForFile(item, url, completion());
    clock.runPending();
    generator.answer(0, {std::nullopt, true});
    clock.runPending();
    EXPECT_EQ(completions, 1);
    EXPECT_EQ(icons.foldersAsked, 1);
    EXPECT_TRUE(icons.asked.isEmpty());
}

TEST_F(ThumbnailServiceTest, MakesAtMostTwoPicturesAtOnceOfFilesAndBytesTogether)
{
    codec.teach("bytes", {8, 8});
    service->generateForImageData(QUuid::createUuid(), "bytes", completion());
    for (int i = 0; i < 5; ++i)
        service->generateForFile(QUuid::createUuid(), url, completion());
    clock.runPending();
    EXPECT_EQ(generator.requests.size(), 2U);
    EXPECT_EQ(work.pendingCount(), 0U);
    for (std::size_t i = 0; i < 4; ++i)
        generator.answer(i, {}), clock.runPending();
    EXPECT_EQ(generator.requests.size(), 5U);
    EXPECT_EQ(work.pendingCount(), 1U) << "the oldest comes last";
    generator.answer(4, {});
    work.runAll();
    clock.runPending();
    EXPECT_EQ(completions, 6);
}

TEST_F(ThumbnailServiceTest, AFileThatAServerKeepsToItselfKeepsNoOther)
{
    for (int i = 0; i < 3; ++i)
        service->generateForFile(QUuid::createUuid(), url, completion());
    clock.runPending();
    generator.answer(0, {std::nullopt, false, true});
    clock.runPending();
    EXPECT_EQ(completions, 0);
    ASSERT_EQ(remote.requests.size(), 1U);
    EXPECT_EQ(remote.requests[0].url, url);
    ASSERT_EQ(generator.requests.size(), 3U) << "its place is free for the next";
    generator.answer(1, {bitmap(1, 1)});
    generator.answer(2, {std::nullopt, false, true});
    clock.runPending();
    EXPECT_EQ(completions, 1);
    EXPECT_EQ(remote.requests.size(), 1U) << "one remote file at a time";
    remote.answer(0, {bitmap(1, 1)});
    clock.runPending();
    EXPECT_EQ(completions, 2);
    EXPECT_EQ(remote.requests.size(), 2U);
    remote.answer(1, {});
    clock.runPending();
    EXPECT_EQ(completions, 3);
    EXPECT_EQ(icons.asked.size(), 1);
}

TEST_F(ThumbnailServiceTest, PicturesThatNeedLongAreMadeOneAtATimeAndKeepNoOther)
{
    for (int i = 0; i < 4; ++i)
        service->generateForFile(QUuid::createUuid(), url, completion());
    clock.runPending();
    ASSERT_EQ(generator.requests.size(), 2U);
    EXPECT_FALSE(generator.requests[0].isPatient);
    const ThumbnailAnswer slow = {.picture = std::nullopt, .isSlow = true};
    generator.answer(0, slow);
    generator.answer(1, slow);
    clock.runPending();
    ASSERT_EQ(generator.requests.size(), 5U) << "two quick ones, and one that is patient";
    EXPECT_TRUE(generator.requests[4].isPatient != generator.requests[2].isPatient);
    const auto isPatient = [](const ThumbnailRequest &request) { return request.isPatient; };
    EXPECT_EQ(std::ranges::count_if(generator.requests, isPatient), 1);
    EXPECT_EQ(completions, 0);
    const auto patient = static_cast<std::size_t>(
        std::ranges::find_if(generator.requests, isPatient) - generator.requests.begin());
    generator.answer(patient, slow);
    clock.runPending();
    EXPECT_EQ(completions, 1) << "it has its icon, and is not tried for ever";
    EXPECT_EQ(std::ranges::count_if(generator.requests, isPatient), 2);
}

TEST_F(ThumbnailServiceTest, BytesThatNeedLongAreTriedAgainWithMorePatience)
{
    codec.teach("slow", {8, 8});
    codec.slow << "slow";
    service->generateForImageData(item, "slow", completion());
    for (int i = 0; i < 2; ++i) {
        clock.runPending();
        EXPECT_EQ(completions, 0);
        work.runAll();
    }
    clock.runPending();
    EXPECT_EQ(completions, 1);
    EXPECT_TRUE(result.has_value());
}

TEST_F(ThumbnailServiceTest, CancellingReachesAPictureThatNeedsLong)
{
    service->generateForFile(item, url, completion());
    clock.runPending();
    generator.answer(0, {.picture = std::nullopt, .isSlow = true});
    clock.runPending();
    ASSERT_EQ(generator.requests.size(), 2U);
    service->cancel(item);
    EXPECT_TRUE(generator.requests[1].cancellation->isCancelled());
}

TEST_F(ThumbnailServiceTest, CancellingDropsWhatWaitsAndWhatRuns)
{
    QList<QUuid> items;
    for (int i = 0; i < 3; ++i) {
        items << QUuid::createUuid();
        service->generateForFile(items[i], url, completion());
    }
    clock.runPending();
    ASSERT_EQ(generator.requests.size(), 2U);
    for (const QUuid &each : items)
        service->cancel(each);
    EXPECT_TRUE(generator.requests[0].cancellation->isCancelled());
    generator.answer(0, {bitmap(1, 1)});
    generator.answer(1, {std::nullopt, false, true});
    clock.runPending();
    EXPECT_EQ(completions, 0);
    EXPECT_EQ(generator.requests.size(), 2U);
    EXPECT_TRUE(remote.requests.empty());
}

TEST_F(ThumbnailServiceTest, CancellingReachesARemoteFileToo)
{
    service->generateForFile(item, url, completion());
    clock.runPending();
    generator.answer(0, {std::nullopt, false, true});
    clock.runPending();
    ASSERT_EQ(remote.requests.size(), 1U);
    service->cancel(item);
    EXPECT_TRUE(remote.requests[0].cancellation->isCancelled());
    remote.answer(0, {bitmap(1, 1)});
    clock.runPending();
    EXPECT_EQ(completions, 0);
}

TEST_F(ThumbnailServiceTest, BytesOfAnItemThatLeftAreNotDecoded)
{
    codec.teach("bytes", {8, 8});
    service->generateForImageData(item, "bytes", completion());
    clock.runPending();
    service->cancel(item);
    work.runAll();
    clock.runPending();
    EXPECT_EQ(completions, 0);
}

TEST_F(ThumbnailServiceTest, ItsEndStopsWhatRuns)
{
    service->generateForFile(item, url, completion());
    clock.runPending();
    service.reset();
    EXPECT_TRUE(generator.requests[0].cancellation->isCancelled());
}

TEST_F(ThumbnailServiceTest, AnswersNothingOnceItIsGone)
{
    for (int i = 0; i < 2; ++i)
        service->generateForFile(QUuid::createUuid(), url, completion());
    clock.runPending();
    generator.answer(0, {bitmap(1, 1)});
    service.reset();
    generator.answer(1, {});
    clock.advance(1);
    EXPECT_EQ(completions, 0);
    EXPECT_TRUE(icons.asked.isEmpty());
}

TEST_F(ThumbnailServiceTest, AnswersNoBytesOnceItIsGone)
{
    for (const char *data : {"x", "y"})
        service->generateForImageData(QUuid::createUuid(), data, completion());
    clock.runPending();
    work.runOne();
    service.reset();
    work.runAll();
    clock.advance(1);
    EXPECT_EQ(completions, 0);
}

} // namespace
} // namespace corvane
