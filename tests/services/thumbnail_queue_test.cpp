#include "fakes/test_clock.h"
#include "services/thumbnail_queue.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <map>
#include <optional>

namespace corvane::test {

namespace {

class ThumbnailQueueTest : public testing::Test {
protected:
    ThumbnailQueueTest()
    {
        queue->setItemsInView([this] {
            ++looks;
            return inView;
        });
    }

    QUuid item(char name)
    {
        const auto found = items.find(name);
        return found != items.end() ? found->second
                                    : items.emplace(name, QUuid::createUuid()).first->second;
    }
    void add(const char *names)
    {
        for (const char *name = names; *name != 0; ++name) {
            queue->add(item(*name), [this, name = *name](const auto &cancellation, auto done) {
                started += QLatin1Char(name);
                cancellations[name] = cancellation;
                dones[name] = std::move(done);
            });
        }
    }
    void finish(char name)
    {
        dones.at(name)();
        clock.runPending();
    }

    TestClock clock;
    std::optional<ThumbnailQueue> queue{std::in_place, clock, 2};
    std::map<char, QUuid> items;
    std::map<char, ThumbnailQueue::Done> dones;
    std::map<char, std::shared_ptr<Cancellation>> cancellations;
    QList<QUuid> inView;
    int looks = 0;
    QString started;
};

} // namespace

TEST_F(ThumbnailQueueTest, startsLaterAndAFewAtATime)
{
    add("abcd");
    EXPECT_EQ(started, QString());
    clock.runPending();
    EXPECT_EQ(started.size(), 2);
    finish(started[0].toLatin1());
    EXPECT_EQ(started.size(), 3);
    finish(started[1].toLatin1());
    finish(started[2].toLatin1());
    finish(started[3].toLatin1());
    EXPECT_EQ(started.size(), 4);
}

TEST_F(ThumbnailQueueTest, takesTheNewestFirst)
{
    add("abc");
    clock.runPending();
    EXPECT_EQ(started, QStringLiteral("cb"));
    add("de");
    finish('c');
    finish('b');
    finish('e');
    EXPECT_EQ(started, QStringLiteral("cbeda"));
}

TEST_F(ThumbnailQueueTest, takesManyThatAreAddedAtOnceInTheSameOrder)
{
    add("a");
    queue->add({item('b'), item('c'), item('d'), item('e')},
               [this](std::size_t position, const auto &, auto done) {
                   const char name = "bcde"[position];
                   started += QLatin1Char(name);
                   dones[name] = std::move(done);
               });
    add("f");
    queue->cancel(item('e'));
    EXPECT_EQ(started, QString());
    clock.runPending();
    EXPECT_EQ(started, QStringLiteral("fd"));
    queue->cancel(item('b'));
    inView = {item('a')};
    finish('f');
    finish('d');
    finish('a');
    finish('c');
    EXPECT_EQ(started, QStringLiteral("fdac"));
}

TEST_F(ThumbnailQueueTest, takesWhatIsInViewBeforeTheRest)
{
    inView = {item('b'), item('a')};
    add("abcde");
    clock.runPending();
    EXPECT_EQ(started, QStringLiteral("ba"));
    inView = {item('c')};
    finish('a');
    EXPECT_EQ(started, QStringLiteral("bac")) << "what is in view when it is chosen";
    finish('b');
    EXPECT_EQ(started, QStringLiteral("bace"));
}

TEST_F(ThumbnailQueueTest, aJobThatWaitsIsDroppedWhenItsItemLeaves)
{
    add("abcd");
    clock.runPending();
    queue->cancel(item('b'));
    finish('d');
    finish('c');
    EXPECT_EQ(started, QStringLiteral("dca"));
}

TEST_F(ThumbnailQueueTest, aJobThatRunsIsToldAndKeepsItsPlaceUntilItEnds)
{
    add("abc");
    clock.runPending();
    queue->cancel(item('c'));
    EXPECT_TRUE(cancellations['c']->isCancelled());
    EXPECT_FALSE(cancellations['b']->isCancelled());
    clock.runPending();
    EXPECT_EQ(started, QStringLiteral("cb"));
    finish('c');
    EXPECT_EQ(started, QStringLiteral("cba"));
}

TEST_F(ThumbnailQueueTest, anItemAskedForAnewHasOneJob)
{
    add("xaxa");
    clock.runPending();
    finish('a');
    finish('x');
    EXPECT_EQ(started, QStringLiteral("ax"));
    add("a");
    clock.runPending();
    EXPECT_EQ(started, QStringLiteral("axa"));
}

TEST_F(ThumbnailQueueTest, cancellingWhatIsNotThereDoesNothing)
{
    queue->cancel(item('a'));
    add("a");
    clock.runPending();
    finish('a');
    queue->cancel(item('a'));
    EXPECT_FALSE(cancellations['a']->isCancelled());
}

TEST_F(ThumbnailQueueTest, looksWhatIsInViewOncePerChoiceHoweverManyWait)
{
    constexpr int count = 10'000;
    std::vector<ThumbnailQueue::Done> running;
    for (int i = 0; i < count; ++i)
        queue->add(QUuid::createUuid(),
                   [&](const auto &, auto done) { running.push_back(std::move(done)); });
    clock.runPending();
    EXPECT_EQ(looks, 2);
    for (std::size_t i = 0; i < running.size(); ++i) {
        const auto done = running[i];
        done();
    }
    EXPECT_EQ(running.size(), std::size_t{count});
    EXPECT_LE(looks, count);
}

TEST_F(ThumbnailQueueTest, thousandsCancelledOneByOneLeaveNothingBehind)
{
    for (int round = 0; round < 3; ++round) {
        QList<QUuid> many;
        for (int i = 0; i < 10'000; ++i) {
            many << QUuid::createUuid();
            queue->add(many.last(), [this](const auto &, const auto &) { started += u'!'; });
        }
        for (const QUuid &each : many)
            queue->cancel(each);
        clock.runPending();
    }
    add("a");
    clock.runPending();
    EXPECT_EQ(started, QStringLiteral("a"));
}

TEST_F(ThumbnailQueueTest, itsEndCancelsWhatRunsAndForgetsTheRest)
{
    add("abc");
    clock.runPending();
    queue.reset();
    EXPECT_TRUE(cancellations['c']->isCancelled());
    EXPECT_TRUE(cancellations['b']->isCancelled());
    finish('c');
    finish('b');
    EXPECT_EQ(started, QStringLiteral("cb"));
}

TEST_F(ThumbnailQueueTest, itsEndBeforeTheFirstStartStartsNothing)
{
    add("a");
    queue.reset();
    clock.runPending();
    EXPECT_EQ(started, QString());
}

} // namespace corvane::test
