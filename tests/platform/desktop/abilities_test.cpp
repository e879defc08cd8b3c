#include "platform/desktop/abilities.h"

#include <gtest/gtest.h>

namespace corvane::test {

TEST(SessionAbilities, observersHearOfEachChangeUntilTheirSubscriptionEnds)
{
    SessionAbilities abilities;
    int heard = 0;
    Subscription observing = abilities.observe([&] {
        ++heard;
        EXPECT_EQ(abilities.now().drags.extent, Drags::Unnoticed) << "asked while it is told";
    });
    abilities.become({});
    EXPECT_EQ(heard, 0) << "the same abilities are no news";
    const Abilities lacking = {.drags = {Drags::Unnoticed, Reason::KeptByDesktop}};
    abilities.become(lacking);
    abilities.become(lacking);
    EXPECT_EQ(heard, 1);
    abilities.become({.drags = {Drags::Unnoticed, Reason::ServerLacksExtensions}});
    EXPECT_EQ(heard, 2) << "another reason is";
    observing.end();
    abilities.become({});
    EXPECT_EQ(heard, 2);
}

} // namespace corvane::test
