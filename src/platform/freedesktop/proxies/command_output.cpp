#include "platform/freedesktop/proxies/command_output.h"

#include "platform/file_descriptor.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>

namespace corvane {

namespace {

using Clock = std::chrono::steady_clock;

/// 0 where it could not be started.
pid_t start(const std::vector<QByteArray> &arguments, int output)
{
    std::vector<char *> texts;
    for (const QByteArray &argument : arguments)
        // The interface is older than const.
        texts.push_back(const_cast<char *>(argument.constData()));
    texts.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    ::posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    ::posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
    pid_t child = 0;
    const int error
        = ::posix_spawnp(&child, texts.front(), &actions, nullptr, texts.data(), ::environ);
    ::posix_spawn_file_actions_destroy(&actions);
    return error == 0 ? child : 0;
}

/// Whether there is something to be read, or to be heard of, in time.
bool waitFor(int descriptor, Clock::time_point deadline)
{
    while (true) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now());
        if (left.count() <= 0)
            return false;
        pollfd watched{descriptor, POLLIN, 0};
        const int ready = ::poll(&watched, 1, static_cast<int>(left.count()));
        if (ready >= 0 || errno != EINTR)
            return ready > 0;
    }
}

/// All that is printed until the other end is closed.
std::optional<QByteArray> readAll(int input, Clock::time_point deadline)
{
    constexpr qsizetype maximumBytes = 1'000'000;
    QByteArray text;
    std::array<char, 4096> piece{};
    while (text.size() <= maximumBytes) {
        if (!waitFor(input, deadline))
            return std::nullopt;
        const ssize_t count = ::read(input, piece.data(), piece.size());
        if (count == 0)
            return text;
        if (count > 0)
            text.append(piece.data(), count);
        else if (errno != EINTR)
            return std::nullopt;
    }
    return std::nullopt;
}

} // namespace

std::optional<QByteArray> commandOutput(const std::vector<QByteArray> &arguments,
                                        std::chrono::milliseconds patience)
{
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0)
        return std::nullopt;
    const FileDescriptor input(ends[0]);
    FileDescriptor output(ends[1]);
    const pid_t child = start(arguments, output.number());
    output.close();
    if (child == 0)
        return std::nullopt;
    const auto deadline = Clock::now() + patience;
    auto text = readAll(input.number(), deadline);
    // It may have closed its output and go on.
    const FileDescriptor end(static_cast<int>(::syscall(SYS_pidfd_open, child, 0)));
    if (!text || !end.isOpen() || !waitFor(end.number(), deadline))
        ::kill(child, SIGKILL);
    int status = 0;
    while (::waitpid(child, &status, 0) < 0 && errno == EINTR) { }
    const bool isDone = WIFEXITED(status) && WEXITSTATUS(status) == 0;
    return isDone ? text : std::nullopt;
}

} // namespace corvane
