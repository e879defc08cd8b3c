#include "platform/system/system_call_filter.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sched.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <thread>
#include <vector>

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

#if defined(__x86_64__)
/// The older calls for what the C library asks by newer ones.
TEST(SystemCallFilterTest, AConfinedProcessDoesNothingByOlderCallsEither)
{
    EXPECT_EXIT(endWith([] { return isRefused(::syscall(SYS_open, "/dev/null", O_WRONLY)); },
                        [] { return isRefused(::syscall(SYS_open, "/dev/null", O_RDWR)); },
                        [] { return isRefused(::syscall(SYS_creat, "/dev/null", 0600)); },
                        [] {
                            const long child = ::syscall(SYS_fork);
                            if (child == 0)
                                ::_exit(0);
                            return isRefused(child);
                        },
                        [] {
                            rlimit known = {};
                            ::getrlimit(RLIMIT_CORE, &known);
                            return isRefused(::syscall(SYS_setrlimit, RLIMIT_CORE, &known));
                        }),
                testing::ExitedWithCode(0), "");
}
#endif

/// None of these would do anything, for what they are told makes no sense. Without a filter each
/// fails for another reason, at least where root runs it.
TEST(SystemCallFilterTest, AConfinedProcessMakesNoCallThatDecodingDoesNotNeed)
{
    constexpr std::array calls = {SYS_ptrace,
                                  SYS_process_vm_readv,
                                  SYS_process_vm_writev,
                                  SYS_kcmp,
                                  SYS_pidfd_open,
                                  SYS_pidfd_send_signal,
                                  SYS_tkill,
                                  SYS_fchmodat,
                                  SYS_fchmod,
                                  SYS_fchownat,
                                  SYS_renameat,
                                  SYS_renameat2,
                                  SYS_linkat,
                                  SYS_symlinkat,
                                  SYS_mknodat,
                                  SYS_utimensat,
                                  SYS_ioctl,
                                  SYS_prctl,
                                  SYS_mount,
                                  SYS_umount2,
                                  SYS_chroot,
                                  SYS_setns,
                                  SYS_unshare,
                                  SYS_io_uring_setup,
                                  SYS_io_uring_enter,
                                  SYS_userfaultfd,
                                  SYS_bpf,
                                  SYS_perf_event_open,
                                  SYS_keyctl,
                                  SYS_add_key,
                                  SYS_init_module,
                                  SYS_connect,
                                  SYS_bind,
                                  SYS_sendto,
                                  SYS_inotify_add_watch,
                                  SYS_shmget,
                                  SYS_mq_open,
                                  SYS_setuid,
                                  SYS_capset,
                                  SYS_execveat};
    EXPECT_EXIT(endWith([&] {
                    constexpr long nonsense = -1;
                    return std::ranges::all_of(calls, [](long call) {
                        const bool isTried = isRefused(
                            ::syscall(call, nonsense, nonsense, nonsense, nonsense, nonsense));
                        if (!isTried)
                            dprintf(STDERR_FILENO, "call %ld: %d\n", call, errno);
                        return isTried;
                    });
                }),
                testing::ExitedWithCode(0), "");
}

TEST(SystemCallFilterTest, AConfinedProcessSignalsNobodyButItself)
{
    EXPECT_EXIT(endWith(
                    [] {
                        const long parent = ::getppid();
                        return isRefused(::syscall(SYS_tgkill, parent, parent, 0));
                    },
                    [] {
                        const long self = ::getpid();
                        return ::syscall(SYS_tgkill, self, self, 0) == 0;
                    }),
                testing::ExitedWithCode(0), "");
}

/// As bubblewrap and others do it, and as a process begins.
TEST(SystemCallFilterTest, AConfinedProcessBeginsNoOther)
{
    EXPECT_EXIT(endWith(
                    [] {
                        const long child = ::syscall(SYS_clone, SIGCHLD, 0, 0, 0, 0);
                        if (child == 0)
                            ::_exit(0);
                        return isRefused(child);
                    },
                    [] { return ::syscall(SYS_clone3, 0, 0) < 0 && errno == ENOSYS; }),
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

/// What a program finds that bubblewrap has given that filter.
template<class... Checks>
[[noreturn]] void endForeignWith(Checks... checks)
{
    const FileDescriptor file = system_call_filter::forForeignProgram();
    std::vector<sock_filter> instructions(BPF_MAXINSNS);
    const ssize_t bytes
        = ::read(file.number(), instructions.data(), instructions.size() * sizeof(sock_filter));
    const sock_fprog program
        = {static_cast<unsigned short>(std::max<ssize_t>(bytes, 0) / ssize_t(sizeof(sock_filter))),
           instructions.data()};
    if (::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0
        || ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) != 0)
        ::_exit(100);
    int number = 0;
    int wrong = 0;
    ((++number, wrong = wrong == 0 && !checks() ? number : wrong), ...);
    ::_exit(wrong);
}

TEST(SystemCallFilterTest, AForeignProgramReachesNoNetwork)
{
    EXPECT_EXIT(
        endForeignWith([] { return isRefused(::socket(AF_INET, SOCK_STREAM, 0)); },
                       [] { return isRefused(::socket(AF_INET6, SOCK_DGRAM, 0)); },
                       [] { return isRefused(::socket(AF_NETLINK, SOCK_RAW, 0)); },
                       // Among its own processes, as many libraries do.
                       [] { return FileDescriptor(::socket(AF_UNIX, SOCK_STREAM, 0)).isOpen(); }),
        testing::ExitedWithCode(0), "");
}

TEST(SystemCallFilterTest, AForeignProgramStartsOthersButInNoPlaceOfTheirOwn)
{
    const auto begun = [](long flags) {
        const long child = ::syscall(SYS_clone, flags | SIGCHLD, 0, 0, 0, 0);
        if (child == 0)
            ::_exit(0);
        return child;
    };
    EXPECT_EXIT(endForeignWith([&] { return begun(0) > 0; },
                               [&] { return isRefused(begun(CLONE_NEWUSER)); },
                               [&] { return isRefused(begun(CLONE_NEWUSER | CLONE_NEWNS)); },
                               [] { return isRefused(::unshare(CLONE_NEWUSER)); },
                               [] { return isRefused(::syscall(SYS_setns, -1, 0)); },
                               // Its flags are behind a pointer, where no filter sees them.
                               [] { return ::syscall(SYS_clone3, 0, 0) < 0 && errno == ENOSYS; }),
                testing::ExitedWithCode(0), "");
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
