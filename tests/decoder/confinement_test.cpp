#include "decoder/confinement.h"

#include <gtest/gtest.h>
#include <pthread.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>

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

} // namespace
} // namespace corvane
