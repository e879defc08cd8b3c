#include "platform/system/system_call_filter.h"

#include <fcntl.h>
#include <sched.h>
#include <seccomp.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <memory>
#include <span>

namespace corvane::system_call_filter {

namespace {

struct Release {
    void operator()(void *filter) const { seccomp_release(filter); }
};
using Filter = std::unique_ptr<void, Release>;

constexpr std::array decoderCalls = {
    // Memory.
    "brk", "madvise", "mmap", "mmap2", "mprotect", "mremap", "munmap", "membarrier",
    // Threads and time.
    "clock_getres", "clock_gettime", "clock_gettime64", "clock_nanosleep", "clock_nanosleep_time64",
    "exit", "exit_group", "futex", "futex_time64", "get_robust_list", "getcpu", "getpid", "gettid",
    "gettimeofday", "nanosleep", "restart_syscall", "rseq", "sched_getaffinity", "sched_yield",
    "set_robust_list", "setitimer", "time",
    // Signals to itself.
    "rt_sigaction", "rt_sigprocmask", "rt_sigreturn", "sigaltstack", "sigreturn",
    // What is open. Writing to the file of a conversion is among it.
    "close", "dup", "eventfd2", "fadvise64", "fcntl", "fcntl64", "fstat", "fstat64", "fstatfs",
    "ftruncate", "ftruncate64", "lseek", "_llseek", "memfd_create", "pipe2", "poll", "ppoll",
    "ppoll_time64", "pread64", "preadv", "pwrite64", "read", "readv", "recvmsg", "sendmsg", "write",
    "writev",
    // What libraries look at: fonts and their own plug-ins.
    "access", "faccessat", "faccessat2", "fstatat64", "getcwd", "getdents", "getdents64", "lstat",
    "lstat64", "newfstatat", "readlink", "readlinkat", "stat", "stat64", "statfs", "statfs64",
    "statx",
    // Who and where it is.
    "getegid", "geteuid", "getgid", "getrandom", "getrlimit", "getrusage", "getuid", "sysinfo",
    "ugetrlimit", "uname"};

constexpr std::array foreignCalls = {
    // Other processes.
    "kcmp", "pidfd_getfd", "process_madvise", "process_vm_readv", "process_vm_writev", "ptrace",
    // Other places.
    "chroot", "fsconfig", "fsmount", "fsopen", "fspick", "mount", "mount_setattr", "move_mount",
    "name_to_handle_at", "open_by_handle_at", "open_tree", "pivot_root", "setns", "umount2",
    "unshare",
    // Parts of the kernel that were often broken out through, and the machine's own affairs.
    "acct", "add_key", "bpf", "delete_module", "finit_module", "init_module", "io_uring_enter",
    "io_uring_register", "io_uring_setup", "kexec_file_load", "kexec_load", "keyctl",
    "lookup_dcookie", "perf_event_open", "personality", "quotactl", "reboot", "request_key",
    "settimeofday", "swapoff", "swapon", "syslog", "userfaultfd", "vhangup"};

/// A name that this architecture, or the library's version, does not know is left out.
bool addAll(scmp_filter_ctx filter, std::uint32_t action, std::span<const char *const> names)
{
    for (const char *name : names) {
        const int call = seccomp_syscall_resolve_name(name);
        if (call == __NR_SCMP_ERROR)
            continue;
        const int result = seccomp_rule_add_array(filter, action, call, 0, nullptr);
        if (result != 0 && result != -EDOM)
            return false;
    }
    return true;
}

bool addOne(scmp_filter_ctx filter, std::uint32_t action, const char *name, scmp_arg_cmp condition)
{
    const int call = seccomp_syscall_resolve_name(name);
    if (call == __NR_SCMP_ERROR)
        return true;
    const int result = seccomp_rule_add_array(filter, action, call, 1, &condition);
    return result == 0 || result == -EDOM;
}

scmp_arg_cmp isMasked(unsigned int argument, scmp_datum_t mask, scmp_datum_t value)
{
    return {argument, SCMP_CMP_MASKED_EQ, mask, value};
}

bool allowConditionally(scmp_filter_ctx filter)
{
    constexpr scmp_datum_t writing
        = O_WRONLY | O_RDWR | O_CREAT | O_TRUNC | O_APPEND | (O_TMPFILE & ~O_DIRECTORY);
    constexpr scmp_datum_t thread = CLONE_VM | CLONE_THREAD | CLONE_SIGHAND;
    const auto self = static_cast<scmp_datum_t>(::getpid());
    return addOne(filter, SCMP_ACT_ALLOW, "open", isMasked(1, writing, 0))
        && addOne(filter, SCMP_ACT_ALLOW, "openat", isMasked(2, writing, 0))
        && addOne(filter, SCMP_ACT_ALLOW, "clone", isMasked(0, thread, thread))
        // An abort sends itself a signal.
        && addOne(filter, SCMP_ACT_ALLOW, "tgkill", {0, SCMP_CMP_EQ, self, 0})
        && addOne(filter, SCMP_ACT_ALLOW, "prctl", {0, SCMP_CMP_EQ, PR_SET_NAME, 0})
        && addOne(filter, SCMP_ACT_ALLOW, "prctl", {0, SCMP_CMP_EQ, PR_SET_VMA, 0})
        // Limits may be asked for, not set.
        && addOne(filter, SCMP_ACT_ALLOW, "prlimit64", {2, SCMP_CMP_EQ, 0, 0});
}

/// The library begins a thread by the older call, whose flags a filter can see, where this one is
/// not there.
bool hideNewerClone(scmp_filter_ctx filter)
{
    constexpr std::array name = {"clone3"};
    return addAll(filter, SCMP_ACT_ERRNO(ENOSYS), name);
}

} // namespace

bool confineDecoder()
{
    if (::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0)
        return false;
    const Filter filter(seccomp_init(SCMP_ACT_ERRNO(EPERM)));
    return filter && seccomp_attr_set(filter.get(), SCMP_FLTATR_CTL_TSYNC, 1) == 0
        && addAll(filter.get(), SCMP_ACT_ALLOW, decoderCalls) && allowConditionally(filter.get())
        && hideNewerClone(filter.get()) && seccomp_load(filter.get()) == 0;
}

FileDescriptor forForeignProgram()
{
    const Filter filter(seccomp_init(SCMP_ACT_ALLOW));
    FileDescriptor file(::memfd_create("filter", MFD_CLOEXEC));
    constexpr std::uint32_t refused = SCMP_ACT_ERRNO(EPERM);
    const bool isMade = filter && file.isOpen() && addAll(filter.get(), refused, foreignCalls)
        && addOne(filter.get(), refused, "clone", isMasked(0, CLONE_NEWUSER, CLONE_NEWUSER))
        && addOne(filter.get(), refused, "socket", {0, SCMP_CMP_NE, AF_UNIX, 0})
        && hideNewerClone(filter.get()) && seccomp_export_bpf(filter.get(), file.number()) == 0
        && ::lseek(file.number(), 0, SEEK_SET) == 0;
    return isMade ? std::move(file) : FileDescriptor();
}

} // namespace corvane::system_call_filter
