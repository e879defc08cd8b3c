#include "platform/base/callback_list.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace corvane {
namespace {

struct CallbackListTest : testing::Test {
    void add(const std::string &name)
    {
        callbacks.add([this, name](int value) { log += name + std::to_string(value) + " "; });
    }

    CallbackList<int> callbacks;
    std::string log;
};

TEST_F(CallbackListTest, CallsInTheOrderOfAdding)
{
    callbacks.notify(0);
    add("a");
    add("b");
    callbacks.notify(1);
    EXPECT_EQ(log, "a1 b1 ");
}

TEST_F(CallbackListTest, CallsWhatIsAddedMeanwhileFromTheNextTimeOn)
{
    callbacks.add([this](int value) {
        if (value == 1) {
            // Enough for the list to move.
            for (int i = 0; i < 100; ++i)
                add("x");
        }
    });
    add("b");
    callbacks.notify(1);
    EXPECT_EQ(log, "b1 ");
    callbacks.notify(2);
    EXPECT_EQ(log.size(), 102 * 3U);
}

TEST_F(CallbackListTest, FinishesAnInnerNotificationFirst)
{
    callbacks.add([this](int value) {
        if (value == 1)
            callbacks.notify(2);
    });
    add("b");
    callbacks.notify(1);
    EXPECT_EQ(log, "b2 b1 ");
}

TEST_F(CallbackListTest, CallsNobodyWhoseSubscriptionHasEnded)
{
    Subscription subscription = callbacks.subscribe([&](int value) {
        log += "a" + std::to_string(value) + " ";
        subscription.end();
    });
    add("b");
    callbacks.notify(1);
    callbacks.notify(2);
    EXPECT_EQ(log, "a1 b1 b2 ");
}

TEST_F(CallbackListTest, CallsNobodyElseOnceACallbackHasDestroyedIt)
{
    auto list = std::make_unique<CallbackList<int>>();
    list->add([&](int) { list.reset(); });
    list->add([this](int) { log += "called"; });
    list->notify(1);
    EXPECT_EQ(log, "");
}

} // namespace
} // namespace corvane
