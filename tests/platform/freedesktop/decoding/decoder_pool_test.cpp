#include "platform/base/cancellation.h"
#include "platform/freedesktop/decoding/decoder_image_codec.h"
#include "platform/freedesktop/decoding/decoder_pool.h"
#include "platform/freedesktop/sandbox/sandbox.h"
#include "platform/pictures/picture_memory.h"

#include <QCoreApplication>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>
#include <QTemporaryFile>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <future>
#include <mutex>
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

    /// Decoders have begun so often to write a conversion.
    static testing::AssertionResult hasBegun(const FileDescriptor &target, int times = 1)
    {
        constexpr std::chrono::seconds patience(30);
        constexpr int length = 5;
        const auto end = std::chrono::steady_clock::now() + patience;
        struct stat status = {};
        while (std::chrono::steady_clock::now() < end) {
            if (::fstat(target.number(), &status) != 0 || status.st_size >= length * times)
                return testing::AssertionSuccess();
            std::this_thread::yield();
        }
        return testing::AssertionFailure() << status.st_size / length << " times";
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

/// A named pipe that decoders have open, and may have written a byte to.
class PipeOfDecoders {
public:
    PipeOfDecoders()
    {
        const QByteArray path = QFile::encodeName(m_folder.filePath(QStringLiteral("pipe")));
        EXPECT_EQ(::mkfifo(path.constData(), 0600), 0);
        m_end = FileDescriptor(::open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
        qputenv("CORVANE_FALSE_DECODER_PIPE", path);
    }
    PipeOfDecoders(const PipeOfDecoders &) = delete;
    PipeOfDecoders &operator=(const PipeOfDecoders &) = delete;
    ~PipeOfDecoders() { qunsetenv("CORVANE_FALSE_DECODER_PIPE"); }

    /// One has got its request.
    bool hasBegun() const { return isReadable() && readByte() == 1; }
    /// The other ends have closed with their processes.
    bool haveAllEnded(int milliseconds = patience) const
    {
        while (isReadable(milliseconds)) {
            if (readByte() == 0)
                return true;
        }
        return false;
    }

private:
    static constexpr int patience = 60'000;

    bool isReadable(int milliseconds = patience) const
    {
        pollfd source = {m_end.number(), POLLIN, 0};
        return ::poll(&source, 1, milliseconds) == 1;
    }
    ssize_t readByte() const
    {
        char byte = 0;
        return ::read(m_end.number(), &byte, 1);
    }

    QTemporaryDir m_folder;
    FileDescriptor m_end;
};

/// Where one of all decoders leaves a mark, after which the others behave.
class MarkOfDecoders {
public:
    MarkOfDecoders()
    {
        qputenv("CORVANE_FALSE_DECODER_MARK",
                QFile::encodeName(m_folder.filePath(QStringLiteral("mark"))));
    }
    MarkOfDecoders(const MarkOfDecoders &) = delete;
    MarkOfDecoders &operator=(const MarkOfDecoders &) = delete;
    ~MarkOfDecoders() { qunsetenv("CORVANE_FALSE_DECODER_MARK"); }

private:
    QTemporaryDir m_folder;
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
                                         "dies after greeting", "dies before reading",
                                         "dies after reading"));

TEST_F(DecoderPoolTest, HandsNothingOnThatIsNotWhatWasAskedFor)
{
    const auto contents = picture_memory::of("any bytes");
    for (const char *step : {"too wide", "too high", "memory alone"}) {
        misbehave(step);
        DecoderPool::Job job;
        job.request.task = decoder_protocol::Task::Thumbnail;
        job.request.wanted = {8, 8};
        job.request.milliseconds = 60'000;
        job.descriptors = {contents.number()};
        EXPECT_EQ(pool.run(job).outcome, Outcome::OverBounds) << step;
    }
}

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
    EXPECT_TRUE(hasBegun(target));
    DecoderPool::Job preview;
    preview.request.task = decoder_protocol::Task::Thumbnail;
    preview.request.wanted = {8, 8};
    preview.request.milliseconds = 60'000;
    const auto contents = picture_memory::of("any bytes");
    preview.descriptors = {contents.number()};
    preview.urgency = DecoderPool::Urgency::Preview;
    auto previewed = std::async(std::launch::async, [&] { return pool.run(preview).outcome; });
    // The conversion would have had twice that time.
    EXPECT_EQ(previewed.wait_for(std::chrono::seconds(30)), std::future_status::ready);
    EXPECT_TRUE(hasBegun(target, 2)) << "it is begun again";
    pool.finish();
    EXPECT_EQ(previewed.get(), Outcome::Made);
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
    auto converted = std::async(std::launch::async, [&] {
        return codec.transcode("any bytes", UTType::png(), target, cancellation);
    });
    EXPECT_TRUE(hasBegun(target));
    cancellation.cancel();
    // It would have had twice that time.
    EXPECT_EQ(converted.wait_for(std::chrono::seconds(30)), std::future_status::ready);
    EXPECT_FALSE(converted.get());
}

TEST_F(DecoderPoolTest, ADecoderThatDoesNotEndByItselfIsEnded)
{
    const PipeOfDecoders pipe;
    misbehave("hangs for good");
    DecodingAttempt attempt;
    attempt.patience = DecodingAttempt::Patience::Brief;
    EXPECT_FALSE(codec.thumbnail("any bytes", 8, attempt).has_value());
    EXPECT_EQ(attempt.outcome, Outcome::TooSlow);
    EXPECT_TRUE(pipe.hasBegun());
    EXPECT_TRUE(pipe.haveAllEnded());
    misbehave("");
    EXPECT_EQ(attempted().outcome, Outcome::Made) << "another decoder serves what comes next";
}

TEST_F(DecoderPoolTest, TheMemoryOfOneThatWasEndedIsFreeBeforeAnotherIsStarted)
{
    const PipeOfDecoders pipe;
    misbehave("has much memory");
    const FileDescriptor finished(::eventfd(0, EFD_CLOEXEC));
    const auto decoder
        = DecoderProcess::start(program.command(decoder_protocol::Room::Usual), finished);
    ASSERT_TRUE(decoder);
    decoder->end(finished);
    // Files are closed after the memory was given back.
    EXPECT_TRUE(pipe.haveAllEnded(0));
}

TEST_F(DecoderPoolTest, FramesComeFromTheDecoderThatHasTheAnimationOpen)
{
    misbehave("conversions wait");
    const QTemporaryDir folder;
    const QByteArray path = QFile::encodeName(folder.filePath(QStringLiteral("pipe")));
    ASSERT_EQ(::mkfifo(path.constData(), 0600), 0);
    const FileDescriptor pipe(::open(path.constData(), O_RDWR | O_CLOEXEC));
    qputenv("CORVANE_FALSE_DECODER_PIPE", path);
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    const FileDescriptor target(::dup(file.handle()));
    const auto contents = picture_memory::of("any bytes");
    const auto decoderOfFrame = [&, document = pool.newDocument()](int frame) {
        DecoderPool::Job job;
        job.request.task = decoder_protocol::Task::Frame;
        job.request.part = frame;
        job.request.document = document;
        job.request.wanted = {8, 8};
        job.request.milliseconds = 60'000;
        job.descriptors = {contents.number()};
        job.urgency = DecoderPool::Urgency::Preview;
        const auto result = pool.run(job);
        EXPECT_EQ(result.outcome, Outcome::Made);
        return result.reply.milliseconds;
    };
    std::thread converting(
        [&] { codec.transcode("any bytes", UTType::png(), target, cancellation); });
    EXPECT_TRUE(hasBegun(target));
    const int second = decoderOfFrame(0);
    EXPECT_TRUE(pipe.write("x"));
    converting.join();
    EXPECT_EQ(decoderOfFrame(1), second) << "though the first one is free again";
    qunsetenv("CORVANE_FALSE_DECODER_PIPE");
}

struct DyingDecoder : DecoderPoolTest, testing::WithParamInterface<const char *> { };

TEST_P(DyingDecoder, IsReplacedAfterAPauseWhenThreeHaveDied)
{
    misbehave(GetParam());
    for (std::size_t death = 1; death < DeathRecord::tooMany; ++death)
        EXPECT_NE(attempted().outcome, Outcome::Made);
    const auto beforeTheLast = DeathRecord::Clock::now();
    EXPECT_NE(attempted().outcome, Outcome::Made);
    misbehave("");
    EXPECT_EQ(attempted().outcome, Outcome::Made);
    // At least, not at most: a slow machine cannot make it fail.
    EXPECT_GE(DeathRecord::Clock::now() - beforeTheLast, DeathRecord::pause);
}

INSTANTIATE_TEST_SUITE_P(AtEveryStep, DyingDecoder,
                         testing::Values("dies at once", "dies before reading",
                                         "dies after reading", "crashes"));

TEST_F(DecoderPoolTest, WhoeverWaitsInThePauseIsInterruptedWhenNothingIsWantedAnyMore)
{
    misbehave("crashes");
    for (std::size_t death = 0; death < DeathRecord::tooMany; ++death)
        EXPECT_EQ(attempted().outcome, Outcome::OverBounds);
    std::thread ender([this] { pool.finish(); });
    EXPECT_EQ(attempted().outcome, Outcome::Interrupted);
    ender.join();
}

TEST_F(DecoderPoolTest, WhatRunsAndWhatWaitsEndsWithThePool)
{
    const PipeOfDecoders pipe;
    misbehave("hangs for good");
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
    EXPECT_TRUE(pipe.hasBegun());
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

/// What the program says meanwhile, on any thread.
class Said {
public:
    Said()
    {
        lines.clear();
        m_previous = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext &, const QString &text) {
                const std::lock_guard lock(mutex);
                lines << text;
            });
    }
    Said(const Said &) = delete;
    Said &operator=(const Said &) = delete;
    ~Said() { qInstallMessageHandler(m_previous); }

    static qsizetype count(const char *words)
    {
        const std::lock_guard lock(mutex);
        return lines.filter(QLatin1String(words)).size();
    }

private:
    static inline std::mutex mutex;
    static inline QStringList lines;
    QtMessageHandler m_previous;
};

TEST_F(DecoderPoolTest, SaysOnceWhatConfinesNoDecoderAndDecodesAllTheSame)
{
    const Said said;
    misbehave("unconfined");
    EXPECT_EQ(attempted().outcome, Outcome::Made);
    EXPECT_EQ(attempted().outcome, Outcome::Made);
    EXPECT_EQ(Said::count("namespaces"), 1);
    EXPECT_EQ(Said::count("system calls"), 1);
    EXPECT_EQ(Said::count("limits"), 1);
}

TEST_F(DecoderPoolTest, SaysOnceThatADecoderDidNotStart)
{
    const Said said;
    misbehave("dies at once");
    EXPECT_EQ(attempted().outcome, Outcome::Interrupted);
    EXPECT_EQ(attempted().outcome, Outcome::Interrupted);
    EXPECT_EQ(Said::count("did not start"), 1);
}

TEST_F(DecoderPoolTest, SaysNothingOfADecoderThatIsNotWantedBeforeItHasStarted)
{
    const Said said;
    const PipeOfDecoders pipe;
    misbehave("never greets");
    std::thread ender([&] {
        EXPECT_TRUE(pipe.hasBegun());
        pool.finish();
    });
    EXPECT_EQ(attempted().outcome, Outcome::Interrupted);
    ender.join();
    EXPECT_EQ(Said::count("did not start"), 0);
}

TEST_F(DecoderPoolTest, WhatADecoderWasEndedOverIsAskedOnceMore)
{
    const MarkOfDecoders mark;
    misbehave("dies once");
    EXPECT_EQ(attempted().outcome, Outcome::Made);
}

TEST_F(DecoderPoolTest, ACancelledJobGivesUpItsTurn)
{
    cancellation.cancel();
    misbehave("");
    EXPECT_EQ(attempted().outcome, Outcome::Interrupted);
}

} // namespace
} // namespace corvane
