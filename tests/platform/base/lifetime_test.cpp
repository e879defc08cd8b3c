#include "platform/base/lifetime.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace corvane {
namespace {

enum class Answer {
    Pass,
    Swallow,
};

struct Owner {
    std::function<void()> later()
    {
        return lifetime.guard([this] { ++calls; });
    }
    int calls = 0;
    Lifetime lifetime;
};

TEST(LifetimeTest, CallsWhatItGuardsWithItsArgumentsAndGivesTheResultBack)
{
    const Lifetime lifetime;
    std::string taken;
    const auto append = lifetime.guard([&](std::string &text, const std::string &more) {
        text += more;
        return text.size();
    });
    EXPECT_EQ(append(taken, "ab"), 2U);
    EXPECT_EQ(append(taken, "c"), 3U);
    EXPECT_EQ(taken, "abc");
}

TEST(LifetimeTest, CallsNothingOnceItsOwnerIsGoneHoweverOftenTheGuardWasCopied)
{
    int calls = 0;
    std::function<void()> first;
    std::function<void()> second;
    {
        const Lifetime lifetime;
        first = lifetime.guard([&] { ++calls; });
        second = first;
        second();
        EXPECT_EQ(calls, 1);
    }
    first();
    second();
    const std::function<void()> third = first;
    third();
    EXPECT_EQ(calls, 1);
}

TEST(LifetimeTest, GivesADefaultBackOnceItsOwnerIsGone)
{
    auto lifetime = std::make_unique<Lifetime>();
    const auto truth = lifetime->guard([] { return true; });
    const auto answer = lifetime->guard([] { return Answer::Swallow; });
    const auto text = lifetime->guard([] { return std::optional<std::string>("text"); });
    EXPECT_TRUE(truth());
    EXPECT_EQ(answer(), Answer::Swallow);
    EXPECT_EQ(text(), "text");
    lifetime.reset();
    EXPECT_FALSE(truth());
    EXPECT_EQ(answer(), Answer::Pass);
    EXPECT_EQ(text(), std::nullopt);
}

TEST(LifetimeTest, LetsACallbackDestroyItsOwnerAndNoticeIt)
{
    auto owner = std::make_unique<Owner>();
    std::string log;
    const auto guarded = owner->lifetime.guard([&] {
        const Lifetime::Token life = owner->lifetime.token();
        const std::function<void()> other = owner->later();
        log += life.isOver() ? "over " : "alive ";
        owner.reset();
        log += life.isOver() ? "over" : "alive";
        // Does nothing, or it would write to what is gone.
        other();
    });
    guarded();
    guarded();
    EXPECT_EQ(log, "alive over");
}

TEST(LifetimeTest, TellsATokenThatItIsOver)
{
    auto lifetime = std::make_unique<Lifetime>();
    const Lifetime::Token token = lifetime->token();
    const std::vector copies(2, token);
    EXPECT_FALSE(token.isOver());
    EXPECT_FALSE(copies.back().isOver());
    lifetime.reset();
    EXPECT_TRUE(token.isOver());
    EXPECT_TRUE(copies.back().isOver());
}

TEST(LifetimeTest, GuardsWhatCanOnlyBeMoved)
{
    auto lifetime = std::make_unique<Lifetime>();
    int sum = 0;
    auto add = lifetime->guard(
        [&sum, one = std::make_unique<int>(1)](std::unique_ptr<int> two) { sum += *one + *two; });
    const auto moved = std::move(add);
    moved(std::make_unique<int>(2));
    EXPECT_EQ(sum, 3);
    lifetime.reset();
    moved(std::make_unique<int>(2));
    EXPECT_EQ(sum, 3);
}

TEST(LifetimeTest, VoidsWhatWasGuardedBeforeItWasRestartedAndNothingElse)
{
    Owner owner;
    const std::function<void()> before = owner.later();
    const Lifetime::Token token = owner.lifetime.token();
    owner.lifetime.restart();
    const std::function<void()> after = owner.later();
    EXPECT_TRUE(token.isOver());
    EXPECT_FALSE(owner.lifetime.token().isOver());
    before();
    EXPECT_EQ(owner.calls, 0);
    after();
    EXPECT_EQ(owner.calls, 1);
}

TEST(LifetimeTest, MayBeRestartedByWhatItGuards)
{
    Owner owner;
    const auto again = owner.lifetime.guard([&] {
        ++owner.calls;
        owner.lifetime.restart();
    });
    again();
    again();
    EXPECT_EQ(owner.calls, 1);
}

TEST(LifetimeTest, LetsAnotherThreadKeepAndDestroyWhatItGuards)
{
    int calls = 0;
    auto lifetime = std::make_unique<Lifetime>();
    std::function<void()> guarded = lifetime->guard([&] { ++calls; });
    std::function<void()> handedBack;
    std::thread thread([kept = std::move(guarded), &handedBack] { handedBack = kept; });
    lifetime.reset();
    thread.join();
    handedBack();
    EXPECT_EQ(calls, 0);
}

} // namespace
} // namespace corvane
