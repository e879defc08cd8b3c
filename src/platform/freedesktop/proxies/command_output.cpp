#include "platform/freedesktop/proxies/command_output.h"

#include "platform/system/file_descriptor.h"

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

struct Started {
    pid_t child = 0;
    /// Why there is none.
    int error = 0;
};

Started start(const std::vector<QByteArray> &arguments, int output)
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
    return {child, error};
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

/// Whether there is no such program, rather than no room for it.
bool isNoProgram(int error)
{
    return error == ENOENT || error == ENOTDIR || error == EACCES || error == ENOEXEC;
}

} // namespace

CommandOutput commandOutput(const std::vector<QByteArray> &arguments,
                            std::chrono::milliseconds patience)
{
    using End = CommandOutput::End;
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0)
        return {End::Unknown};
    const FileDescriptor input(ends[0]);
    FileDescriptor output(ends[1]);
    const auto [child, error] = start(arguments, output.number());
    output.close();
    if (error != 0)
        return {isNoProgram(error) ? End::Failed : End::Unknown};
    const auto deadline = Clock::now() + patience;
    auto text = readAll(input.number(), deadline);
    // It may have closed its output and go on.
    const FileDescriptor end(static_cast<int>(::syscall(SYS_pidfd_open, child, 0)));
    if (!text || !end.isOpen() || !waitFor(end.number(), deadline))
        ::kill(child, SIGKILL);
    int status = 0;
    while (::waitpid(child, &status, 0) < 0 && errno == EINTR) { }
    if (!text || !WIFEXITED(status))
        return {End::Unknown};
    if (WEXITSTATUS(status) != 0)
        return {End::Failed};
    return {End::Well, *text};
}

} // namespace corvane
