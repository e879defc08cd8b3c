// Pipes into which a test writes, with a clock of its own.

#include "fakes/test_clock.h"
#include "platform/display.h"
#include "platform/wayland/drags/pipe_intake.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <optional>
#include <thread>

namespace corvane::test {
namespace {

using Outcome = IncomingDrag::Outcome;

class PipeIntakeTest : public testing::Test {
protected:
    void begin(qsizetype maximumBytes = 64LL * 1024 * 1024)
    {
        std::array<int, 2> ends = {};
        ASSERT_EQ(::pipe2(ends.data(), O_CLOEXEC), 0);
        writer = FileDescriptor(ends[1]);
        intake.emplace(clock, FileDescriptor(ends[0]), maximumBytes,
                       [this](Outcome how, const QByteArray &got) {
                           outcome = how;
                           bytes = got;
                           intake.reset();
                       });
    }
    bool isOver()
    {
        return eventually([this] { return outcome.has_value(); });
    }

    TestClock clock;
    FileDescriptor writer;
    std::optional<Outcome> outcome;
    QByteArray bytes;
    std::optional<PipeIntake> intake;
};

TEST_F(PipeIntakeTest, takesWhatIsWrittenUntilThePipeIsClosed)
{
    begin();
    writer.write("some ");
    settle();
    EXPECT_FALSE(outcome);
    writer.write("bytes");
    writer.close();
    ASSERT_TRUE(isOver());
    EXPECT_EQ(outcome, Outcome::Arrived);
    EXPECT_EQ(bytes, "some bytes");
    clock.advance(PipeIntake::longest);
    EXPECT_EQ(clock.pendingCount(), 0U) << "nothing wakes up any more";
}

TEST_F(PipeIntakeTest, takesLargeThingsWhole)
{
    begin();
    const QByteArray large(5 * 1024 * 1024 + 3, 'x');
    std::thread source([this, &large] {
        writer.write(large);
        writer.close();
    });
    EXPECT_TRUE(isOver());
    source.join();
    EXPECT_EQ(outcome, Outcome::Arrived);
    EXPECT_EQ(bytes, large);
}

TEST_F(PipeIntakeTest, readsNoMoreThanIsWanted)
{
    begin(1000);
    writer.write(QByteArray(1001, 'x'));
    ASSERT_TRUE(isOver());
    EXPECT_EQ(outcome, Outcome::TooLarge);
    EXPECT_EQ(bytes, "");
}

TEST_F(PipeIntakeTest, asMuchAsIsWantedArrives)
{
    begin(1000);
    writer.write(QByteArray(1000, 'x'));
    writer.close();
    ASSERT_TRUE(isOver());
    EXPECT_EQ(outcome, Outcome::Arrived);
}

TEST_F(PipeIntakeTest, aSilentSourceIsGivenUp)
{
    begin();
    clock.advance(PipeIntake::patience * 0.9);
    EXPECT_FALSE(outcome);
    clock.advance(PipeIntake::patience);
    EXPECT_EQ(outcome, Outcome::Lost);
}

TEST_F(PipeIntakeTest, aSlowSourceIsWaitedForAndNotForEver)
{
    begin();
    constexpr double step = PipeIntake::patience * 0.9;
    for (double passed = step; passed < PipeIntake::longest - step; passed += step) {
        writer.write("x");
        settle();
        clock.advance(step);
        ASSERT_FALSE(outcome) << passed;
    }
    for (int i = 0; i < 3 && !outcome; ++i) {
        writer.write("x");
        settle();
        clock.advance(step);
    }
    EXPECT_EQ(outcome, Outcome::Lost);
}

} // namespace
} // namespace corvane::test
