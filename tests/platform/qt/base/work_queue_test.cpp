#include "platform/qt/base/qt_work_queue.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <semaphore>

namespace corvane::test {

namespace {

constexpr std::chrono::milliseconds aMoment{1};
constexpr std::chrono::milliseconds aLongTime{60'000};

} // namespace

TEST(QtWorkQueue, finishesWithoutThoseThatDoNotComeBack)
{
    std::binary_semaphore begun{0};
    std::binary_semaphore answer{0};
    std::atomic<int> later = 0;
    QtWorkQueue queue(1);
    queue.run([&] {
        begun.release();
        answer.acquire();
    });
    begun.acquire();
    queue.run([&] { ++later; });
    EXPECT_FALSE(queue.finish(aMoment));
    queue.run([&] { ++later; });
    answer.release();
    EXPECT_TRUE(queue.finish(aLongTime));
    EXPECT_EQ(later, 0) << "what had not begun is dropped";
}

TEST(QtWorkQueue, somePiecesOfWorkMayHangAndOthersStillRun)
{
    std::counting_semaphore answer{0};
    std::binary_semaphore ran{0};
    QtWorkQueue queue(QtWorkQueue::maximumHangingThreads);
    for (int i = 1; i < QtWorkQueue::maximumHangingThreads; ++i)
        queue.run([&] { answer.acquire(); });
    queue.run([&] { ran.release(); });
    ran.acquire();
    answer.release(QtWorkQueue::maximumHangingThreads);
}

} // namespace corvane::test
