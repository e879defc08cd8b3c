#include "fakes/test_clock.h"
#include "platform/desktop/drop_hover.h"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

namespace corvane::test {
namespace {

using namespace Qt::StringLiterals;

/// A source that answers when a test says so.
class SlowDrag : public IncomingDrag {
public:
    QStringList types() const override { return {u"text/uri-list"_s, u"text/x-moz-url"_s}; }
    QByteArray fetched(const QString &) const override { return held; }
    void fetch(const QString &type, qsizetype, Fetched done) override
    {
        asked << type;
        answer = std::move(done);
    }
    std::optional<QString> promisedFileName() override { return std::nullopt; }
    void receivePromisedFile(const QUrl &, std::function<void(bool)> done) override { done(false); }
    void finish(bool) override { }
    bool isFetchedEarly() const override { return isEarly; }

    bool isEarly = false;
    QByteArray held;
    QStringList asked;
    Fetched answer;
};

class FakeReceiver : public DropReceiver {
public:
    bool needsAddresses(const QStringList &) const override { return needs; }
    Subscription fetchEarly(std::shared_ptr<IncomingDrag> drag, std::function<void()> done) override
    {
        ++earlyFetches;
        early = drag;
        earlyIsOver = std::move(done);
        return Subscription([this] { early.reset(); });
    }
    QStringList addressTypes(const QStringList &types) const override { return types; }
    bool takeDrop(std::shared_ptr<IncomingDrag>) override
    {
        ++drops;
        return true;
    }

    bool needs = false;
    int drops = 0;
    /// What is fetched early now.
    std::shared_ptr<IncomingDrag> early;
    std::function<void()> earlyIsOver;
    int earlyFetches = 0;
};

class DropHoverTest : public testing::Test {
protected:
    void begin()
    {
        hover = std::make_unique<DropHover>(
            clock, drag, receiver,
            DropHover::Panel{[this](QPointF at) {
                                 entered = at;
                                 return isWelcome;
                             },
                             [this](QPointF) {
                                 ++moves;
                                 return isWelcome;
                             },
                             [this] { ++leaves; }},
            [this](bool wouldBeTaken) { answers.push_back(wouldBeTaken); });
        hover->begin({1, 2});
    }

    TestClock clock;
    std::shared_ptr<SlowDrag> drag = std::make_shared<SlowDrag>();
    FakeReceiver receiver;
    bool isWelcome = true;
    std::optional<QPointF> entered;
    int moves = 0;
    int leaves = 0;
    std::vector<bool> answers;
    std::unique_ptr<DropHover> hover;
};

TEST_F(DropHoverTest, thePanelIsAskedAtOnceWhereAddressesDoNotMatter)
{
    begin();
    EXPECT_EQ(entered, QPointF(1, 2));
    EXPECT_EQ(answers, std::vector<bool>{true});
    EXPECT_TRUE(drag->asked.isEmpty());
}

TEST_F(DropHoverTest, whatMayBeOutOfReachLaterIsFetchedAsLongAsItIsOverThePanel)
{
    begin();
    EXPECT_EQ(receiver.early, nullptr);
    hover.reset();
    drag->isEarly = true;
    begin();
    EXPECT_EQ(receiver.early, drag);
    hover.reset();
    EXPECT_EQ(receiver.early, nullptr);
}

TEST_F(DropHoverTest, whatIsFetchedEarlyIsNotWelcomeBeforeItIsHere)
{
    drag->isEarly = true;
    begin();
    hover->moveTo({3, 4});
    EXPECT_FALSE(entered);
    EXPECT_TRUE(answers.empty());
    EXPECT_FALSE(hover->drop());
    drag->held = "text";
    receiver.earlyIsOver();
    EXPECT_EQ(entered, QPointF(3, 4));
    EXPECT_EQ(answers, std::vector<bool>{true});
    hover->moveTo({5, 6});
    EXPECT_EQ(receiver.earlyFetches, 1);
}

TEST_F(DropHoverTest, whatIsFetchedEarlyWaitsForItsAddressesToo)
{
    drag->isEarly = true;
    receiver.needs = true;
    begin();
    drag->held = "file:///a\r\n";
    receiver.earlyIsOver();
    EXPECT_FALSE(entered);
    drag->answer(IncomingDrag::Outcome::Arrived, drag->held);
    EXPECT_EQ(answers, std::vector<bool>{true});
}

TEST_F(DropHoverTest, whatDidNotComeEarlyIsFetchedAnewWithTheNextMove)
{
    drag->isEarly = true;
    begin();
    receiver.earlyIsOver();
    EXPECT_FALSE(entered);
    EXPECT_EQ(receiver.earlyFetches, 1);
    hover->moveTo({3, 4});
    hover->moveTo({5, 6});
    EXPECT_EQ(receiver.earlyFetches, 2);
    drag->held = "text";
    receiver.earlyIsOver();
    EXPECT_EQ(entered, QPointF(5, 6));
}

TEST_F(DropHoverTest, aPanelIsToldAtLastOfWhatNeverComesEarly)
{
    drag->isEarly = true;
    begin();
    for (int i = 1; i < DropHover::maximumEarlyFetches; ++i) {
        receiver.earlyIsOver();
        EXPECT_FALSE(entered);
        hover->moveTo({3, 4});
    }
    receiver.earlyIsOver();
    EXPECT_EQ(answers, std::vector<bool>{true});
    hover->moveTo({5, 6});
    EXPECT_EQ(receiver.earlyFetches, DropHover::maximumEarlyFetches);
}

TEST_F(DropHoverTest, theSourceHearsOnlyOfAnswersThatChange)
{
    begin();
    hover->moveTo({3, 4});
    isWelcome = false;
    hover->moveTo({5, 6});
    hover->moveTo({7, 8});
    EXPECT_EQ(moves, 3);
    EXPECT_EQ(answers, (std::vector<bool>{true, false}));
}

TEST_F(DropHoverTest, theSourceHearsTheSameAnswerAgainWhenItIsToldTo)
{
    receiver.needs = true;
    begin();
    hover->answerAgain();
    EXPECT_TRUE(answers.empty());
    drag->answer(IncomingDrag::Outcome::Arrived, "file:///a");
    hover->answerAgain();
    EXPECT_EQ(answers, (std::vector<bool>{true, true}));
}

TEST_F(DropHoverTest, thePanelIsAskedWhereTheDragIsOnceItsAddressesAreHere)
{
    receiver.needs = true;
    begin();
    hover->moveTo({3, 4});
    EXPECT_FALSE(entered);
    EXPECT_EQ(drag->asked, QStringList{u"text/uri-list"_s});
    drag->answer(IncomingDrag::Outcome::Arrived, "file:///a\r\n");
    EXPECT_EQ(entered, QPointF(3, 4));
    EXPECT_EQ(answers, std::vector<bool>{true});
}

TEST_F(DropHoverTest, theNextTypeIsAskedForWhereOneHoldsNothing)
{
    receiver.needs = true;
    begin();
    drag->answer(IncomingDrag::Outcome::Arrived, {});
    EXPECT_EQ(drag->asked.size(), 2);
    EXPECT_FALSE(entered);
    drag->answer(IncomingDrag::Outcome::Refused, {});
    EXPECT_TRUE(entered);
}

TEST_F(DropHoverTest, aSilentSourceIsJudgedWithoutItsAddressesAfterAWhile)
{
    receiver.needs = true;
    begin();
    clock.advance(DropHover::patience * 0.9);
    EXPECT_FALSE(entered);
    clock.advance(DropHover::patience);
    EXPECT_TRUE(entered);
    entered.reset();
    drag->answer(IncomingDrag::Outcome::Arrived, "file:///a\r\n");
    EXPECT_FALSE(entered) << "it is asked once";
}

TEST_F(DropHoverTest, aSourceThatIsGoneIsJudgedAtOnce)
{
    receiver.needs = true;
    begin();
    drag->answer(IncomingDrag::Outcome::Lost, {});
    EXPECT_TRUE(entered);
    EXPECT_EQ(drag->asked.size(), 1);
}

TEST_F(DropHoverTest, onlyWhatIsWelcomeIsTakenWhenItIsLetGo)
{
    begin();
    EXPECT_TRUE(hover->drop());
    isWelcome = false;
    begin();
    EXPECT_FALSE(hover->drop());
    EXPECT_EQ(receiver.drops, 1);
}

TEST_F(DropHoverTest, whatIsLetGoBeforeItsAddressesAreHereIsRefused)
{
    receiver.needs = true;
    begin();
    EXPECT_FALSE(hover->drop());
    EXPECT_EQ(receiver.drops, 0);
}

TEST_F(DropHoverTest, thePanelIsToldOfTheEndOfWhatItWasToldOf)
{
    begin();
    hover.reset();
    EXPECT_EQ(leaves, 1);
    receiver.needs = true;
    begin();
    hover.reset();
    EXPECT_EQ(leaves, 1);
    drag->answer(IncomingDrag::Outcome::Arrived, "file:///a\r\n");
    clock.advance(DropHover::patience);
    EXPECT_EQ(answers.size(), 1U);
}

} // namespace
} // namespace corvane::test
