#include "platform/system/system_call_filter.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <thread>

namespace corvane {
namespace {

/// What a confined process finds; it ends with the number of the first thing that is not as it has
/// to be, and with 0 when all is.
template<class... Checks>
[[noreturn]] void endWith(Checks... checks)
{
    if (!system_call_filter::confineDecoder())
        ::_exit(100);
    int number = 0;
    int wrong = 0;
    ((++number, wrong = wrong == 0 && !checks() ? number : wrong), ...);
    ::_exit(wrong);
}

bool isRefused(long result)
{
    return result < 0 && errno == EPERM;
}

TEST(SystemCallFilterTest, AConfinedProcessOpensNothingForWriting)
{
    EXPECT_EXIT(endWith([] { return isRefused(::open("/dev/null", O_WRONLY)); },
                        [] { return isRefused(::open("/dev/null", O_RDWR)); },
                        [] { return isRefused(::open("/tmp/new", O_RDONLY | O_CREAT, 0600)); },
                        [] { return isRefused(::open("/tmp", O_TMPFILE | O_RDWR, 0600)); },
                        [] { return isRefused(::mkdir("/tmp/new", 0700)); },
                        [] { return isRefused(::unlink("/tmp/new")); },
                        [] { return ::open("/dev/null", O_RDONLY | O_CLOEXEC) >= 0; }),
                testing::ExitedWithCode(0), "");
}

TEST(SystemCallFilterTest, AConfinedProcessReachesNoOther)
{
    EXPECT_EXIT(endWith([] { return isRefused(::socket(AF_INET, SOCK_STREAM, 0)); },
                        [] { return isRefused(::socket(AF_UNIX, SOCK_STREAM, 0)); },
                        [] { return isRefused(::fork()); },
                        [] { return isRefused(::execl("/bin/true", "true", nullptr)); },
                        [] { return isRefused(::kill(::getppid(), 0)); }),
                testing::ExitedWithCode(0), "");
}

TEST(SystemCallFilterTest, AConfinedProcessKeepsItsLimits)
{
    EXPECT_EXIT(endWith(
                    [] {
                        const rlimit less = {0, 0};
                        return isRefused(::setrlimit(RLIMIT_CORE, &less));
                    },
                    [] {
                        rlimit known = {};
                        return ::getrlimit(RLIMIT_CORE, &known) == 0;
                    }),
                testing::ExitedWithCode(0), "");
}

TEST(SystemCallFilterTest, AConfinedProcessMayStillWork)
{
    EXPECT_EXIT(endWith(
                    [] {
                        bool hasRun = false;
                        std::thread([&] { hasRun = true; }).join();
                        return hasRun;
                    },
                    [] {
                        std::array<char, 8> bytes = {};
                        return ::read(::open("/dev/zero", O_RDONLY | O_CLOEXEC), bytes.data(),
                                      bytes.size())
                            == 8;
                    }),
                testing::ExitedWithCode(0), "");
}

[[noreturn]] void confineAThreadThatRuns()
{
    std::array<int, 2> ends = {};
    if (::pipe(ends.data()) != 0)
        ::_exit(99);
    bool isHeld = false;
    std::thread early([&] {
        char byte = 0;
        isHeld = ::read(ends[0], &byte, 1) == 1 && isRefused(::socket(AF_INET, SOCK_STREAM, 0));
    });
    endWith([&] { return ::write(ends[1], "x", 1) == 1; },
            [&] {
                early.join();
                return isHeld;
            });
}

TEST(SystemCallFilterTest, HoldsForThreadsThatRanBefore)
{
    EXPECT_EXIT(confineAThreadThatRuns(), testing::ExitedWithCode(0), "");
}

TEST(SystemCallFilterTest, ForForeignProgramsIsAFilterThatTheKernelTakes)
{
    const FileDescriptor filter = system_call_filter::forForeignProgram();
    ASSERT_TRUE(filter.isOpen());
    struct stat status = {};
    ASSERT_EQ(::fstat(filter.number(), &status), 0);
    constexpr int instruction = 8;
    EXPECT_GT(status.st_size, 0);
    EXPECT_EQ(status.st_size % instruction, 0);
    EXPECT_EQ(::lseek(filter.number(), 0, SEEK_CUR), 0) << "it is read from its beginning";
}

} // namespace
} // namespace corvane
