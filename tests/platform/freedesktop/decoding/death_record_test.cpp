#include "platform/freedesktop/decoding/death_record.h"
#include "platform/freedesktop/decoding/decoder_process.h"

#include <gtest/gtest.h>

namespace corvane {
namespace {

using std::chrono::seconds;

struct DeathRecordTest : testing::Test {
    const DeathRecord::Clock::time_point start{seconds(1'000)};
    DeathRecord deaths;
};

TEST_F(DeathRecordTest, TwoDeathsArePaidNoAttention)
{
    EXPECT_FALSE(deaths.pausedUntil().has_value());
    deaths.died(start);
    deaths.died(start);
    EXPECT_FALSE(deaths.pausedUntil().has_value());
}

TEST_F(DeathRecordTest, PausesAfterTheThirdWithinAMinute)
{
    for (const int when : {0, 30, 60})
        deaths.died(start + seconds(when));
    EXPECT_EQ(deaths.pausedUntil(), start + seconds(60) + DeathRecord::pause);
    deaths.died(start + seconds(62));
    EXPECT_EQ(deaths.pausedUntil(), start + seconds(62) + DeathRecord::pause);
}

TEST_F(DeathRecordTest, ForgetsWhatWasLongerAgo)
{
    for (const int when : {0, 30, 61})
        deaths.died(start + seconds(when));
    EXPECT_FALSE(deaths.pausedUntil().has_value());
}

TEST(DecoderEnding, OneThatWasEndedByTheProgramDidNotDie)
{
    using Ending = DecoderProcess::Ending;
    for (const Ending ending :
         {Ending::Replied, Ending::OverTime, Ending::Cancelled, Ending::Displaced})
        EXPECT_FALSE(DecoderProcess::isDeath(ending)) << static_cast<int>(ending);
    for (const Ending ending : {Ending::NotServed, Ending::Died, Ending::Vanished})
        EXPECT_TRUE(DecoderProcess::isDeath(ending)) << static_cast<int>(ending);
}

} // namespace
} // namespace corvane
