#include "platform/freedesktop/decoding/decoder_turns.h"

#include <gtest/gtest.h>

namespace corvane {
namespace {

using Urgency = DecoderTurns::Urgency;

TEST(DecoderTurnsTest, TheMoreUrgentIsNextWheneverItCame)
{
    DecoderTurns turns;
    const auto conversion = turns.wait(Urgency::Conversion);
    const auto thumbnail = turns.wait(Urgency::Thumbnail);
    const auto preview = turns.wait(Urgency::Preview);
    EXPECT_TRUE(turns.isNext(preview));
    EXPECT_FALSE(turns.isNext(thumbnail));
    EXPECT_FALSE(turns.isNext(conversion));
    turns.gaveUp(preview);
    EXPECT_TRUE(turns.isNext(thumbnail));
    turns.gaveUp(thumbnail);
    EXPECT_TRUE(turns.isNext(conversion));
}

TEST(DecoderTurnsTest, OfEquallyUrgentOnesTheFirstIsNext)
{
    DecoderTurns turns;
    const auto first = turns.wait(Urgency::Thumbnail);
    const auto second = turns.wait(Urgency::Thumbnail);
    EXPECT_TRUE(turns.isNext(first));
    EXPECT_FALSE(turns.isNext(second));
    turns.began(first);
    EXPECT_TRUE(turns.isNext(second));
}

TEST(DecoderTurnsTest, NeverRunsTwoThatTakeLongAndOvertakesThoseThatWait)
{
    DecoderTurns turns;
    turns.began(turns.wait(Urgency::SlowThumbnail));
    const auto slow = turns.wait(Urgency::SlowThumbnail);
    const auto conversion = turns.wait(Urgency::Conversion);
    EXPECT_FALSE(turns.isNext(slow));
    EXPECT_FALSE(turns.isNext(conversion));
    EXPECT_TRUE(turns.isNext(turns.wait(Urgency::Thumbnail)));
}

TEST(DecoderTurnsTest, WhatWaitsForSomethingLongIsNextOnceThatHasEnded)
{
    DecoderTurns turns;
    turns.began(turns.wait(Urgency::Conversion));
    const auto slow = turns.wait(Urgency::SlowThumbnail);
    turns.ended(Urgency::Conversion);
    EXPECT_TRUE(turns.isNext(slow));
}

TEST(DecoderTurnsTest, APreviewThatHangsLeavesTheOtherDecoderToThumbnails)
{
    DecoderTurns turns;
    turns.began(turns.wait(Urgency::Preview));
    const auto preview = turns.wait(Urgency::Preview);
    const auto slow = turns.wait(Urgency::SlowThumbnail);
    EXPECT_FALSE(turns.isNext(preview));
    EXPECT_FALSE(turns.isNext(slow));
    EXPECT_TRUE(turns.isNext(turns.wait(Urgency::Thumbnail)));
    turns.ended(Urgency::Preview);
    EXPECT_TRUE(turns.isNext(preview));
}

TEST(DecoderTurnsTest, NeverRunsTwoInALargeRoomAndTheRestOvertakesThoseThatWaitForIt)
{
    using Room = DecoderTurns::Room;
    DecoderTurns turns;
    turns.began(turns.wait(Urgency::Thumbnail, Room::Large));
    const auto large = turns.wait(Urgency::Thumbnail, Room::Large);
    const auto preview = turns.wait(Urgency::Preview, Room::Large);
    const auto usual = turns.wait(Urgency::Thumbnail);
    EXPECT_FALSE(turns.isNext(large));
    EXPECT_FALSE(turns.isNext(preview));
    EXPECT_TRUE(turns.isNext(usual));
    turns.ended(Urgency::Thumbnail, Room::Large);
    EXPECT_TRUE(turns.isNext(preview));
    turns.began(preview);
    EXPECT_FALSE(turns.isNext(large));
    turns.ended(Urgency::Preview, Room::Large);
    EXPECT_TRUE(turns.isNext(large));
}

TEST(DecoderTurnsTest, APreviewDoesNotWaitForSomethingLong)
{
    DecoderTurns turns;
    turns.began(turns.wait(Urgency::Conversion));
    EXPECT_TRUE(turns.isNext(turns.wait(Urgency::Preview)));
}

} // namespace
} // namespace corvane
