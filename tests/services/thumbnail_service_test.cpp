#include "fakes/fake_file_icons.h"
#include "fakes/fake_image_codec.h"
#include "fakes/fake_screens.h"
#include "fakes/fake_thumbnail_generator.h"
#include "fakes/fake_work_queue.h"
#include "fakes/test_clock.h"
#include "services/thumbnail_service.h"

#include <gtest/gtest.h>

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
    test::FakeThumbnailGenerator generator;
    test::FakeFileIcons icons;
    test::FakeImageCodec codec;
    test::FakeScreens screens;
    test::TestClock clock;
    test::FakeWorkQueue work;
    std::unique_ptr<ThumbnailService> service
        = std::make_unique<ThumbnailService>(generator, icons, codec, screens, clock, work);
    int completions = 0;
    std::optional<Image> result;
};

TEST_F(ThumbnailServiceTest, AsksForAFileAtTheSizeThatIsShown)
{
    screens.attach(QRectF(0, 0, 100, 100), 1.5);
    service->generateForFile(url, completion());
    ASSERT_EQ(generator.requests.size(), 1U);
    EXPECT_EQ(generator.requests[0].url, url);
    EXPECT_EQ(generator.requests[0].size, QSizeF(30, 30));
    EXPECT_EQ(generator.requests[0].scale, 1.5);
}

TEST_F(ThumbnailServiceTest, TakesAScaleOfTwoWithoutAScreen)
{
    service->generateForFile(url, completion());
    EXPECT_EQ(generator.requests[0].scale, 2);
    codec.teach("large", {4000, 1000});
    service->generateForImageData("large", completion());
    work.runAll();
    clock.runPending();
    ASSERT_TRUE(result.has_value());
    EXPECT_EQ(result->bitmap.size(), QSize(60, 15));
}

TEST_F(ThumbnailServiceTest, GivesAFilesPictureLaterOnTheMainThread)
{
    service->generateForFile(url, completion());
    generator.answer(0, bitmap(60, 40));
    EXPECT_EQ(completions, 0);
    clock.runPending();
    EXPECT_EQ(completions, 1);
    ASSERT_TRUE(result.has_value());
    EXPECT_EQ(result->bitmap.size(), QSize(60, 40));
    EXPECT_EQ(result->size, QSizeF(30, 30));
    EXPECT_TRUE(icons.asked.isEmpty());
}

TEST_F(ThumbnailServiceTest, GivesAFileWithoutAPictureItsIcon)
{
    screens.attach(QRectF(0, 0, 100, 100), 2);
    service->generateForFile(url, completion());
    generator.answer(0, std::nullopt);
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
    service->generateForFile(url, completion());
    generator.answer(0, QImage());
    clock.runPending();
    ASSERT_TRUE(result.has_value());
    EXPECT_FALSE(result->isNull());
}

TEST_F(ThumbnailServiceTest, ShowsAWidePictureSquare)
{
    screens.attach(QRectF(0, 0, 100, 100), 2);
    codec.teach("wide", {4000, 1000});
    service->generateForImageData("wide", completion());
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
    service->generateForImageData("large", completion());
    work.runAll();
    clock.runPending();
    EXPECT_EQ(result->bitmap.size(), QSize(38, 38));
}

TEST_F(ThumbnailServiceTest, KeepsASmallPictureSmall)
{
    codec.teach("small", {8, 8});
    service->generateForImageData("small", completion());
    work.runAll();
    clock.runPending();
    EXPECT_EQ(result->bitmap.size(), QSize(8, 8));
    EXPECT_EQ(result->size, QSizeF(30, 30));
}

TEST_F(ThumbnailServiceTest, GivesNoneForBrokenBytesOnceOnTheMainThread)
{
    service->generateForImageData("broken", completion());
    EXPECT_EQ(completions, 0);
    work.runAll();
    EXPECT_EQ(completions, 0);
    clock.advance(1);
    EXPECT_EQ(completions, 1);
    EXPECT_FALSE(result.has_value());
}

TEST_F(ThumbnailServiceTest, AnswersNothingOnceItIsGone)
{
    service->generateForFile(url, completion());
    service->generateForFile(url, completion());
    service->generateForImageData("x", completion());
    service->generateForImageData("y", completion());
    generator.answer(0, bitmap(1, 1));
    work.runOne();
    service.reset();
    generator.answer(1, std::nullopt);
    work.runAll();
    clock.advance(1);
    EXPECT_EQ(completions, 0);
    EXPECT_TRUE(icons.asked.isEmpty());
}

} // namespace
} // namespace corvane
