#include "platform/freedesktop/sandbox/bounded_process.h"

#include "platform/base/cancellation.h"
#include "platform/system/file_descriptor.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/eventfd.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cmath>
#include <csignal>
#include <cstdint>
#include <vector>

namespace corvane::bounded_process {

namespace {

/// The process, or -1. It leads a session and a group. `output` becomes its standard output.
pid_t start(const QByteArrayList &arguments, int output, const FileDescriptor &handed)
{
    std::vector<char *> pointers;
    pointers.reserve(static_cast<std::size_t>(arguments.size()) + 1);
    for (const QByteArray &argument : arguments)
        pointers.push_back(const_cast<char *>(argument.constData()));
    pointers.push_back(nullptr);

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    if (handed.isOpen())
        posix_spawn_file_actions_adddup2(&actions, handed.number(), handedNumber);
    posix_spawn_file_actions_addclosefrom_np(&actions,
                                             handed.isOpen() ? handedNumber + 1 : handedNumber);

    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    sigset_t signals;
    sigemptyset(&signals);
    posix_spawnattr_setsigmask(&attributes, &signals);
    sigfillset(&signals);
    posix_spawnattr_setsigdefault(&attributes, &signals);
    posix_spawnattr_setflags(&attributes,
                             POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);

    pid_t process = -1;
    const int problem
        = posix_spawn(&process, pointers.front(), &actions, &attributes, pointers.data(), environ);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    return problem == 0 ? process : -1;
}

int exitCodeOf(pid_t process)
{
    int status = 0;
    while (::waitpid(process, &status, 0) < 0 && errno == EINTR) { }
    constexpr int signalBase = 128;
    return WIFEXITED(status) ? WEXITSTATUS(status) : signalBase + WTERMSIG(status);
}

using Clock = std::chrono::steady_clock;

int millisecondsUntil(Clock::time_point deadline)
{
    const auto rest = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now());
    return static_cast<int>(std::max<std::int64_t>(rest.count(), 0));
}

/// Reads to the end. False when a limit was reached first, or `stop` became readable.
bool readAll(int output, int stop, const Limits &limits, QByteArray &data)
{
    const auto deadline = Clock::now()
        + std::chrono::duration_cast<Clock::duration>(
                              std::chrono::duration<double>(limits.seconds));
    std::array<pollfd, 2> sources = {pollfd{output, POLLIN, 0}, pollfd{stop, POLLIN, 0}};
    std::array<char, 65'536> buffer = {};
    while (true) {
        const int ready = ::poll(sources.data(), sources.size(), millisecondsUntil(deadline));
        if (ready < 0 && errno == EINTR)
            continue;
        if (ready <= 0 || sources[1].revents != 0 || Clock::now() >= deadline)
            return false;
        const auto count = ::read(output, buffer.data(), buffer.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count == 0)
            return true;
        if (count < 0 || data.size() + count > limits.bytes)
            return false;
        data.append(buffer.data(), count);
    }
}

} // namespace

Result run(const QByteArrayList &arguments, const Limits &limits, Cancellation &cancellation,
           const FileDescriptor &handed)
{
    std::array<int, 2> ends = {-1, -1};
    if (arguments.isEmpty() || ::pipe2(ends.data(), O_CLOEXEC) != 0)
        return {};
    const FileDescriptor output(ends[0]);
    FileDescriptor input(ends[1]);
    const FileDescriptor stop(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
    if (!stop.isOpen())
        return {};
    const Cancellation::Handler handler(cancellation,
                                        [&stop] { ::eventfd_write(stop.number(), 1); });
    const pid_t process = start(arguments, input.number(), handed);
    if (process < 0)
        return {};
    input.close();

    Result result;
    const bool hasEnded = readAll(output.number(), stop.number(), limits, result.output);
    // The whole group: a child that bubblewrap is still furnishing would not notice its parent's
    // end.
    if (!hasEnded)
        ::kill(-process, SIGKILL);
    result.exitCode = exitCodeOf(process);
    result.outcome = hasEnded ? Result::Outcome::Ended : Result::Outcome::Killed;
    return result;
}

} // namespace corvane::bounded_process
