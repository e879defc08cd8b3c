#include "decoder/confinement.h"

#include <QByteArray>

#include <gtest/gtest.h>
#include <malloc.h>
#include <pthread.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <barrier>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <thread>
#include <vector>

namespace corvane {
namespace {

using decoder_protocol::Room;

/// Ends with the number of the first thing that a confined process finds and that is not as it has
/// to be, and with 0 when all is.
template<class... Checks>
[[noreturn]] void endConfinedWith(Checks... checks)
{
    // What it begins with, where this is allowed: a file of its memory for whoever comes.
    const rlimit some = {4'096, 4'096};
    ::setrlimit(RLIMIT_CORE, &some);
    if (!confinement::limitResources(Room::Usual))
        ::_exit(100);
    int number = 0;
    int wrong = 0;
    ((++number, wrong = wrong == 0 && !checks() ? number : wrong), ...);
    ::_exit(wrong);
}

TEST(ConfinementTest, LeavesNothingOfThisProcessToOthers)
{
    EXPECT_EXIT(endConfinedWith([] { return ::prctl(PR_GET_DUMPABLE, 0, 0, 0, 0) == 0; },
                                [] {
                                    rlimit known = {1, 1};
                                    return ::getrlimit(RLIMIT_CORE, &known) == 0
                                        && known.rlim_cur == 0 && known.rlim_max == 0;
                                }),
                testing::ExitedWithCode(0), "");
}

TEST(ConfinementTest, AFileThatBecomesTooLargeCannotBeWrittenAndEndsNothing)
{
    EXPECT_EXIT(endConfinedWith([] {
                    struct sigaction known = {};
                    return ::sigaction(SIGXFSZ, nullptr, &known) == 0
                        && known.sa_handler == SIG_IGN;
                }),
                testing::ExitedWithCode(0), "");
}

TEST(ConfinementTest, ThreadsHaveSmallStacks)
{
    if (confinement::isSanitized)
        GTEST_SKIP() << "a sanitizer's own memory is above any bound";
    EXPECT_EXIT(endConfinedWith([] {
                    pthread_attr_t attributes;
                    std::size_t bytes = 0;
                    return ::pthread_getattr_default_np(&attributes) == 0
                        && ::pthread_attr_getstacksize(&attributes, &bytes) == 0
                        && bytes == std::size_t(confinement::threadStack);
                }),
                testing::ExitedWithCode(0), "");
}

/// How many arenas the C library keeps memory in.
int arenas()
{
    char *said = nullptr;
    std::size_t length = 0;
    std::FILE *const memory = ::open_memstream(&said, &length);
    if (!memory || ::malloc_info(0, memory) != 0 || std::fclose(memory) != 0)
        return -1;
    const QByteArray text(said, qsizetype(length));
    std::free(said);
    return int(text.count("<heap "));
}

TEST(ConfinementTest, ManyThreadsDoNotEachKeepMemoryOfTheirOwn)
{
    // A sanitizer hands out memory itself, and none of it is counted.
    EXPECT_EXIT(endConfinedWith([] {
                    constexpr int count = 8;
                    std::barrier allHaveSome(count + 1);
                    std::barrier areCounted(count + 1);
                    std::vector<std::thread> threads;
                    threads.reserve(count);
                    for (int i = 0; i < count; ++i) {
                        threads.emplace_back([&] {
                            const QByteArray some(10'000, 'x');
                            allHaveSome.arrive_and_wait();
                            areCounted.arrive_and_wait();
                        });
                    }
                    allHaveSome.arrive_and_wait();
                    const int found = arenas();
                    areCounted.arrive_and_wait();
                    for (std::thread &thread : threads)
                        thread.join();
                    return found > 0 && found <= 2;
                }),
                testing::ExitedWithCode(0), "");
}

} // namespace
} // namespace corvane
