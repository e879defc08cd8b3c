#include "platform/base/subscription.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace corvane {
namespace {

struct SubscriptionTest : testing::Test {
    Subscription subscribe(const std::string &name)
    {
        return Subscription([this, name] { log += name + " "; });
    }
    std::string log;
};

TEST_F(SubscriptionTest, IsTakenBackOnceWithItsOwner)
{
    {
        const Subscription subscription = subscribe("a");
        EXPECT_TRUE(subscription.isActive());
        EXPECT_EQ(log, "");
    }
    EXPECT_EQ(log, "a ");
}

TEST_F(SubscriptionTest, IsTakenBackOnceWhenItEndsEarlier)
{
    {
        Subscription subscription = subscribe("a");
        subscription.end();
        EXPECT_FALSE(subscription.isActive());
        EXPECT_EQ(log, "a ");
        subscription.end();
    }
    EXPECT_EQ(log, "a ");
}

TEST_F(SubscriptionTest, IsTakenBackWhereItWasMovedTo)
{
    Subscription first = subscribe("a");
    Subscription &left = first;
    {
        const Subscription second = std::move(first);
        EXPECT_FALSE(left.isActive());
        EXPECT_EQ(log, "");
    }
    EXPECT_EQ(log, "a ");
    left.end();
    EXPECT_EQ(log, "a ");
}

TEST_F(SubscriptionTest, IsTakenBackBeforeAnotherTakesItsPlace)
{
    Subscription subscription = subscribe("a");
    subscription = subscribe("b");
    EXPECT_EQ(log, "a ");
    Subscription &itself = subscription;
    subscription = std::move(itself);
    EXPECT_EQ(log, "a ");
    subscription = {};
    EXPECT_EQ(log, "a b ");
}

TEST_F(SubscriptionTest, IsInactiveWhereNothingWasRegistered)
{
    Subscription none;
    EXPECT_FALSE(none.isActive());
    none.end();
}

TEST_F(SubscriptionTest, MayEndWhileItIsTakenBack)
{
    Subscription subscription;
    subscription = Subscription([&] {
        log += "a ";
        subscription.end();
    });
    subscription.end();
    EXPECT_EQ(log, "a ");
}

} // namespace
} // namespace corvane
