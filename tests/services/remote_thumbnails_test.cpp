#include "fakes/fake_image_codec.h"
#include "fakes/fake_remote_files.h"
#include "fakes/fake_thumbnail_cache.h"
#include "fakes/fake_work_queue.h"
#include "fakes/test_clock.h"
#include "services/remote_thumbnails.h"

#include <gtest/gtest.h>

#include <optional>

namespace corvane::test {

namespace {

FileVersion version(const char *path, qint64 size = 100)
{
    return {path, FileVersion::Kind::Regular, 1'000, size};
}

class RemoteThumbnailsTest : public testing::Test {
protected:
    void ask(const char *address = "file:///net/a.png")
    {
        request.url = QUrl(QString::fromLatin1(address));
        generator->generateBestRepresentation(request, [this](const ThumbnailAnswer &answer) {
            ++completions;
            result = answer;
        });
    }
    void settle()
    {
        work.runAll();
        clock.runPending();
        work.runAll();
    }

    FakeRemoteFiles files;
    FakeThumbnailCache cache;
    FakeImageCodec codec;
    TestClock clock;
    FakeWorkQueue work;
    std::optional<RemoteThumbnails> generator{
        std::in_place, RemoteThumbnails::Context{files, cache, codec, clock, work}};
    ThumbnailRequest request{{}, {30, 30}, 2};
    int completions = 0;
    ThumbnailAnswer result;
};

} // namespace

TEST_F(RemoteThumbnailsTest, readAPictureAndKeepIt)
{
    codec.teach("bytes", {256, 128});
    ask();
    ASSERT_EQ(files.inspections.size(), 1U);
    EXPECT_EQ(files.inspections[0].path, "/net/a.png");
    files.inspections[0].answer(version("/net/a.png"));
    settle();
    ASSERT_EQ(files.readings.size(), 1U);
    EXPECT_EQ(files.readings[0].limit, RemoteThumbnails::maximumBytes);
    files.readings[0].answer(QByteArray("bytes"));
    settle();
    EXPECT_EQ(completions, 1);
    EXPECT_EQ(result.picture->size(), QSize(60, 30));
    EXPECT_EQ(cache.pictures.values().value(0).size(), QSize(128, 64));
}

TEST_F(RemoteThumbnailsTest, thatAreInTheCacheAreNotRead)
{
    cache.keep(version("/net/a.png"), QImage(60, 60, QImage::Format_RGB32));
    ask();
    files.inspections[0].answer(version("/net/a.png"));
    settle();
    EXPECT_EQ(completions, 1);
    EXPECT_TRUE(result.picture);
    EXPECT_TRUE(files.readings.empty());
}

TEST_F(RemoteThumbnailsTest, ofOtherFilesAndHugeOnesAreNotRead)
{
    for (const FileVersion &file : {version("/net/a.avi"), version("/net/a"),
                                    version("/net/a.png", RemoteThumbnails::maximumBytes + 1)}) {
        completions = 0;
        ask();
        files.inspections.back().answer(file);
        settle();
        EXPECT_EQ(completions, 1);
        EXPECT_FALSE(result.picture);
    }
    EXPECT_TRUE(files.readings.empty());
}

TEST_F(RemoteThumbnailsTest, thatCannotBeReachedAreAnsweredWithNone)
{
    ask();
    files.inspections[0].answer(std::nullopt);
    settle();
    EXPECT_EQ(completions, 1);
    EXPECT_FALSE(result.picture);
    ask();
    files.inspections[1].answer(version("/net/a.png"));
    settle();
    files.readings[0].answer(std::nullopt);
    settle();
    EXPECT_EQ(completions, 2);
    EXPECT_FALSE(result.picture);
}

TEST_F(RemoteThumbnailsTest, tellFolders)
{
    ask();
    files.inspections[0].answer(FileVersion{"/net/a", FileVersion::Kind::Folder, 0, 0});
    settle();
    EXPECT_EQ(completions, 1);
    EXPECT_TRUE(result.isFolder);
}

TEST_F(RemoteThumbnailsTest, thatNobodyWantsAreNotRead)
{
    ask();
    files.inspections[0].answer(version("/net/a.png"));
    request.cancellation->cancel();
    settle();
    EXPECT_EQ(completions, 1);
    EXPECT_TRUE(files.readings.empty());
}

TEST_F(RemoteThumbnailsTest, brokenBytesYieldNone)
{
    ask();
    files.inspections[0].answer(version("/net/a.png"));
    settle();
    files.readings[0].answer(QByteArray("broken"));
    settle();
    EXPECT_EQ(completions, 1);
    EXPECT_FALSE(result.picture);
}

TEST_F(RemoteThumbnailsTest, answersThatComeAfterTheGeneratorDoNothing)
{
    ask();
    ask();
    files.inspections[0].answer(version("/net/a.png"));
    settle();
    generator.reset();
    files.inspections[1].answer(version("/net/a.png"));
    files.readings[0].answer(QByteArray("bytes"));
    settle();
    EXPECT_EQ(completions, 0);
}

} // namespace corvane::test
