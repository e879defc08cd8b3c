#include "platform/base/cancellation.h"
#include "platform/freedesktop/decoding/decoder_image_codec.h"
#include "platform/freedesktop/decoding/decoder_pool.h"
#include "platform/freedesktop/sandbox/sandbox.h"
#include "platform/pictures/picture_memory.h"

#include <QCoreApplication>
#include <QTemporaryFile>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <thread>

namespace corvane {
namespace {

using Outcome = DecodingAttempt::Outcome;

/// Decoders that misbehave in one way each.
struct DecoderPoolTest : testing::Test {
    ~DecoderPoolTest() override { qunsetenv("CORVANE_FALSE_DECODER"); }

    static QByteArray falseDecoder()
    {
        return QCoreApplication::applicationDirPath().toUtf8() + "/corvane_false_decoder";
    }
    static void misbehave(const char *step) { qputenv("CORVANE_FALSE_DECODER", step); }

    /// A decoder has begun to write a conversion.
    static void waitUntilBegun(const FileDescriptor &target)
    {
        struct stat status = {};
        while (::fstat(target.number(), &status) == 0 && status.st_size == 0)
            std::this_thread::yield();
    }

    DecodingAttempt attempted()
    {
        DecodingAttempt attempt;
        attempt.cancellation = &cancellation;
        const auto picture = codec.thumbnail("any bytes", 8, attempt);
        EXPECT_EQ(picture.has_value(), attempt.outcome == Outcome::Made);
        return attempt;
    }

    /// No tools: what misbehaves here is our own.
    Sandbox sandbox{QByteArrayList()};
    DecoderProgram program{sandbox, falseDecoder()};
    DecoderPool pool{program};
    DecoderImageCodec codec{pool};
    Cancellation cancellation;
};

struct MisbehavingDecoder : DecoderPoolTest, testing::WithParamInterface<const char *> { };

TEST_F(DecoderPoolTest, TakesThePictureOfOneThatBehaves)
{
    misbehave("");
    DecodingAttempt attempt;
    const auto picture = codec.thumbnail("any bytes", 8, attempt);
    ASSERT_TRUE(picture.has_value());
    EXPECT_EQ(picture->size(), QSize(8, 8));
    EXPECT_EQ(picture->pixel(7, 7), qRgba(0x7f, 0x7f, 0x7f, 0xff));
}

TEST_P(MisbehavingDecoder, CostsItsOwnPictureAndNoOther)
{
    misbehave(GetParam());
    EXPECT_EQ(attempted().outcome, Outcome::OverBounds);
    misbehave("");
    EXPECT_EQ(attempted().outcome, Outcome::Made) << "another decoder serves what comes next";
}

INSTANTIATE_TEST_SUITE_P(AtEveryStep, MisbehavingDecoder,
                         testing::Values("crashes", "other number", "garbled reply", "cut reply",
                                         "no memory", "unsealed", "short", "too wide"));

struct DecoderThatIsEnded : DecoderPoolTest, testing::WithParamInterface<const char *> { };

TEST_P(DecoderThatIsEnded, SaysNothingAboutThePicture)
{
    misbehave(GetParam());
    EXPECT_EQ(attempted().outcome, Outcome::Interrupted);
    misbehave("");
    EXPECT_EQ(attempted().outcome, Outcome::Made);
}

INSTANTIATE_TEST_SUITE_P(AtEveryStep, DecoderThatIsEnded,
                         testing::Values("dies at once", "ends at once", "garbled greeting",
                                         "dies before reading", "dies after reading"));

TEST_F(DecoderPoolTest, APictureThatNeedsMoreMemoryIsHandedToOneThatHasIt)
{
    misbehave("needs room");
    EXPECT_EQ(attempted().outcome, Outcome::Made);
    EXPECT_EQ(attempted().outcome, Outcome::Made) << "also when that one waits already";
}

TEST_F(DecoderPoolTest, WhatABriefAttemptWasNotEnoughForIsAskedOfOneThatHasMoreMemoryAtOnce)
{
    misbehave("crashes without room");
    DecodingAttempt attempt;
    attempt.patience = DecodingAttempt::Patience::Alone;
    EXPECT_TRUE(codec.thumbnail("any bytes", 8, attempt).has_value());
    EXPECT_EQ(attempted().outcome, Outcome::OverBounds) << "others begin with the usual one";
}

TEST_F(DecoderPoolTest, APictureThatNeedsMoreMemoryThanThereIsFails)
{
    misbehave("refuses");
    EXPECT_EQ(attempted().outcome, Outcome::OverBounds);
}

TEST_F(DecoderPoolTest, APreviewThatNeedsMoreMemoryDoesNotWaitForAConversionThatHasIt)
{
    misbehave("needs room, conversions hang");
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    const FileDescriptor target(::dup(file.handle()));
    std::thread converting(
        [&] { codec.transcode("any bytes", UTType::png(), target, cancellation); });
    waitUntilBegun(target);
    DecoderPool::Job preview;
    preview.request.task = decoder_protocol::Task::Thumbnail;
    preview.request.wanted = {8, 8};
    preview.request.milliseconds = 60'000;
    const auto contents = picture_memory::of("any bytes");
    preview.descriptors = {contents.number()};
    preview.urgency = DecoderPool::Urgency::Preview;
    EXPECT_EQ(pool.run(preview).outcome, Outcome::Made);
    pool.finish();
    converting.join();
}

TEST_F(DecoderPoolTest, OneThatEndedBetweenRequestsIsReplaced)
{
    misbehave("dies after the reply");
    EXPECT_EQ(attempted().outcome, Outcome::Made);
    EXPECT_EQ(attempted().outcome, Outcome::Made);
}

TEST_F(DecoderPoolTest, ARequestThatCrossesAFarewellIsServedByAnother)
{
    misbehave("says farewell");
    // Each of them says farewell, and in the end nothing was said about the picture.
    EXPECT_EQ(attempted().outcome, Outcome::Interrupted);
    misbehave("");
    EXPECT_EQ(attempted().outcome, Outcome::Made);
}

TEST_F(DecoderPoolTest, ABriefAttemptAtASlowPictureIsNoFailure)
{
    misbehave("hangs");
    DecodingAttempt attempt;
    attempt.patience = DecodingAttempt::Patience::Brief;
    EXPECT_FALSE(codec.thumbnail("any bytes", 8, attempt).has_value());
    EXPECT_EQ(attempt.outcome, Outcome::TooSlow);
}

TEST_F(DecoderPoolTest, ABriefAttemptAtAPictureThatNeedsMoreMemoryIsNoFailure)
{
    misbehave("needs room");
    DecodingAttempt attempt;
    attempt.patience = DecodingAttempt::Patience::Brief;
    EXPECT_FALSE(codec.thumbnail("any bytes", 8, attempt).has_value());
    EXPECT_EQ(attempt.outcome, Outcome::TooSlow);
    attempt.patience = DecodingAttempt::Patience::Alone;
    EXPECT_TRUE(codec.thumbnail("any bytes", 8, attempt).has_value());
}

TEST_F(DecoderPoolTest, ACancelledRequestEndsThoughItsDecoderHangs)
{
    misbehave("hangs");
    std::thread canceller([this] { cancellation.cancel(); });
    EXPECT_EQ(attempted().outcome, Outcome::Interrupted);
    canceller.join();
}

TEST_F(DecoderPoolTest, ACancelledConversionEndsThoughItsDecoderHangs)
{
    misbehave("conversions hang");
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    const FileDescriptor target(::dup(file.handle()));
    std::thread canceller([&] {
        waitUntilBegun(target);
        cancellation.cancel();
    });
    EXPECT_FALSE(codec.transcode("any bytes", UTType::png(), target, cancellation));
    canceller.join();
}

TEST_F(DecoderPoolTest, WhatRunsAndWhatWaitsEndsWithThePool)
{
    misbehave("hangs");
    std::array<Outcome, 4> outcomes = {};
    std::vector<std::thread> threads;
    threads.reserve(outcomes.size());
    for (Outcome &outcome : outcomes) {
        threads.emplace_back([this, &outcome] {
            DecodingAttempt attempt;
            codec.thumbnail("any bytes", 8, attempt);
            outcome = attempt.outcome;
        });
    }
    pool.finish();
    for (std::thread &thread : threads)
        thread.join();
    for (const Outcome outcome : outcomes)
        EXPECT_EQ(outcome, Outcome::Interrupted);
    misbehave("");
    EXPECT_EQ(attempted().outcome, Outcome::Interrupted) << "nothing is begun any more";
}

TEST_F(DecoderPoolTest, WithoutTheProgramNothingIsDecodedAndNothingIsSaidAboutThePicture)
{
    const DecoderProgram none(sandbox, QByteArray());
    DecoderPool empty(none);
    const DecoderImageCodec without(empty);
    DecodingAttempt attempt;
    EXPECT_FALSE(without.thumbnail("any bytes", 8, attempt).has_value());
    EXPECT_EQ(attempt.outcome, Outcome::Interrupted);
}

TEST_F(DecoderPoolTest, ACancelledJobGivesUpItsTurn)
{
    cancellation.cancel();
    misbehave("");
    EXPECT_EQ(attempted().outcome, Outcome::Interrupted);
}

} // namespace
} // namespace corvane
