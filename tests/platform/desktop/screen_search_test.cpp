#include "fakes/fake_screens.h"
#include "fakes/test_clock.h"
#include "platform/desktop/screen_search.h"

#include <gtest/gtest.h>

#include <vector>

namespace corvane::test {

namespace {

constexpr double patience = 1;

class FakeSearch : public ScreenSearch {
public:
    FakeSearch(MainQueue &queue, const Screens &screens)
        : ScreenSearch(queue, screens)
    {
    }
    using ScreenSearch::found;

    bool canBegin = true;
    int begins = 0;
    int ends = 0;

private:
    bool begin() override
    {
        if (!canBegin)
            return false;
        ++begins;
        giveUpAfter(patience);
        return true;
    }
    void end() override { ++ends; }
};

class ScreenSearchTest : public testing::Test {
protected:
    ScreenSearchTest()
    {
        search.onFound = [this](const ScreenPointer &screen) { told.push_back(screen); };
    }

    TestClock clock;
    FakeScreens screens;
    FakeSearch search{clock, screens};
    std::vector<ScreenPointer> told;
};

TEST_F(ScreenSearchTest, WithOneScreenItTellsAtOnceOfThat)
{
    const auto only = screens.attach(QRectF(0, 0, 800, 600));
    search.find();
    EXPECT_EQ(told, std::vector<ScreenPointer>{only});
    EXPECT_EQ(search.begins, 0);
    EXPECT_EQ(search.ends, 0);
}

TEST_F(ScreenSearchTest, WithNoScreenItTellsOfNone)
{
    search.find();
    EXPECT_EQ(told, std::vector<ScreenPointer>{nullptr});
}

TEST_F(ScreenSearchTest, WhatCannotBeLookedForIsNotFoundAtOnce)
{
    screens.attach(QRectF(0, 0, 800, 600));
    screens.attach(QRectF(800, 0, 800, 600));
    search.canBegin = false;
    search.find();
    EXPECT_EQ(told, std::vector<ScreenPointer>{nullptr});
    EXPECT_EQ(search.ends, 0);
    search.canBegin = true;
    search.find();
    EXPECT_EQ(search.begins, 1);
}

TEST_F(ScreenSearchTest, AskedSeveralTimesItLooksAndTellsOnce)
{
    screens.attach(QRectF(0, 0, 800, 600));
    const auto right = screens.attach(QRectF(800, 0, 800, 600));
    search.find();
    search.find();
    EXPECT_EQ(search.begins, 1);
    EXPECT_TRUE(told.empty());
    search.found(right);
    EXPECT_EQ(told, std::vector<ScreenPointer>{right});
    EXPECT_EQ(search.ends, 1);
    clock.advance(2 * patience);
    EXPECT_EQ(told.size(), 1U);
}

TEST_F(ScreenSearchTest, GivesUpWhenItsPatienceIsOverAndLooksAnewWhenAskedAgain)
{
    screens.attach(QRectF(0, 0, 800, 600));
    screens.attach(QRectF(800, 0, 800, 600));
    search.find();
    clock.advance(patience);
    EXPECT_EQ(told, std::vector<ScreenPointer>{nullptr});
    EXPECT_EQ(search.ends, 1);
    search.find();
    EXPECT_EQ(search.begins, 2);
}

} // namespace
} // namespace corvane::test
