#include "platform/base/changing_list.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace corvane {
namespace {

struct ChangingListTest : testing::Test {
    using List = ChangingList<std::function<void()>>;

    List::Id add(const std::string &name, const std::function<void()> &work = {})
    {
        return list->add([this, name, work] {
            log += name;
            if (work)
                work();
        });
    }
    std::string visit()
    {
        log.clear();
        list->forEach([](const auto &entry) { entry(); });
        return log;
    }

    std::unique_ptr<List> list = std::make_unique<List>();
    std::string log;
};

TEST_F(ChangingListTest, VisitsInTheOrderOfAdding)
{
    EXPECT_TRUE(list->isEmpty());
    EXPECT_EQ(visit(), "");
    add("a");
    const List::Id b = add("b");
    add("c");
    EXPECT_FALSE(list->isEmpty());
    EXPECT_EQ(visit(), "abc");
    list->remove(b);
    EXPECT_EQ(visit(), "ac");
    add("b");
    EXPECT_EQ(visit(), "acb");
}

TEST_F(ChangingListTest, NeverGivesAnIdTwice)
{
    const List::Id first = add("a");
    list->remove(first);
    const List::Id second = add("b");
    list->remove(first);
    EXPECT_NE(first, second);
    EXPECT_EQ(visit(), "b");
}

TEST_F(ChangingListTest, VisitsWhatIsAddedMeanwhileFromTheNextTimeOn)
{
    bool isFirst = true;
    add("a", [&] {
        if (std::exchange(isFirst, false))
            add("c");
    });
    add("b");
    EXPECT_EQ(visit(), "ab");
    EXPECT_EQ(visit(), "abc");
}

TEST_F(ChangingListTest, VisitsNoMoreWhatIsRemovedMeanwhile)
{
    List::Id next = 0;
    List::Id last = 0;
    add("a", [&] {
        list->remove(next);
        list->remove(last);
    });
    next = add("b");
    add("c");
    last = add("d");
    EXPECT_EQ(visit(), "ac");
}

TEST_F(ChangingListTest, LetsACallRemoveWhatCameBeforeItAndItself)
{
    const auto captured = std::make_shared<std::string>("b");
    const List::Id first = add("a");
    List::Id own = 0;
    own = list->add([this, captured, first, &own] {
        list->remove(first);
        list->remove(own);
        // What the call holds is there until it ends.
        log += *captured;
    });
    add("c");
    EXPECT_EQ(visit(), "abc");
    EXPECT_EQ(visit(), "c");
    EXPECT_EQ(captured.use_count(), 1);
}

TEST_F(ChangingListTest, FinishesAnInnerVisitFirst)
{
    bool isOuter = true;
    add("a", [&] {
        if (std::exchange(isOuter, false))
            list->forEach([](const auto &entry) { entry(); });
    });
    add("b");
    EXPECT_EQ(visit(), "aabb");
}

TEST_F(ChangingListTest, VisitsInTheInnerVisitWhatWasAddedBeforeItBegan)
{
    bool isOuter = true;
    add("a", [&] {
        if (!std::exchange(isOuter, false))
            return;
        add("c");
        list->forEach([](const auto &entry) { entry(); });
    });
    add("b");
    EXPECT_EQ(visit(), "aabcb");
}

TEST_F(ChangingListTest, VisitsNobodyElseOnceACallHasDestroyedIt)
{
    add("a");
    add("b", [this] { list.reset(); });
    add("c");
    EXPECT_EQ(visit(), "ab");
}

TEST_F(ChangingListTest, AsksUntilOneAnswersYes)
{
    ChangingList<int> numbers;
    for (const int number : {1, 2, 3})
        numbers.add(number);
    std::string asked;
    const auto isTwo = [&](int number) {
        asked += std::to_string(number);
        return number == 2;
    };
    EXPECT_TRUE(numbers.anyOf(isTwo));
    EXPECT_EQ(asked, "12");
    EXPECT_FALSE(numbers.anyOf([](int number) { return number == 4; }));
}

TEST_F(ChangingListTest, ForgetsAnEntryWithItsSubscription)
{
    std::optional<Subscription> subscription = list->subscribe([this] { log += "a"; });
    add("b", [&] { subscription.reset(); });
    EXPECT_EQ(visit(), "ab");
    EXPECT_EQ(visit(), "b");
}

TEST_F(ChangingListTest, MayEndBeforeItsSubscriptions)
{
    Subscription subscription = list->subscribe([] {});
    list.reset();
    subscription.end();
    EXPECT_FALSE(subscription.isActive());
}

} // namespace
} // namespace corvane
