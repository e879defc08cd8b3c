#include "support/child.h"

#include "support/table.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <thread>

namespace corvane::bench {

namespace {

using namespace std::chrono_literals;

std::string besideThisProgram(const std::string &program)
{
    if (program.find('/') != std::string::npos)
        return program;
    return std::filesystem::read_symlink("/proc/self/exe").parent_path() / program;
}

/// The sum of the numbers in the lines that contain `label`.
long sumOfLines(const std::filesystem::path &file, const std::string &label)
{
    std::ifstream stream(file);
    long sum = 0;
    for (std::string line; std::getline(stream, line);) {
        if (line.find(label) != std::string::npos)
            sum += std::stol(line.substr(line.find(':') + 1));
    }
    return sum;
}

} // namespace

Child::Child(const std::string &program)
{
    const std::string path = besideThisProgram(program);
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0)
        throw std::runtime_error("no pipe");
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    char *const arguments[] = {const_cast<char *>(path.c_str()), nullptr};
    m_startTime = now();
    const int error = ::posix_spawn(&m_pid, path.c_str(), &actions, nullptr, arguments, environ);
    posix_spawn_file_actions_destroy(&actions);
    ::close(ends[1]);
    m_output = ends[0];
    if (error != 0)
        throw std::runtime_error("cannot start " + path);
}

Child::~Child()
{
    end();
    ::close(m_output);
}

std::string Child::readLine()
{
    std::string line;
    for (char byte = 0; ::read(m_output, &byte, 1) == 1 && byte != '\n';)
        line += byte;
    return line;
}

long Child::contextSwitches() const
{
    long sum = 0;
    for (const auto &[thread, count] : contextSwitchesByThread())
        sum += count;
    return sum;
}

std::map<std::string, long> Child::contextSwitchesByThread() const
{
    std::map<std::string, long> counts;
    const std::filesystem::path tasks = "/proc/" + std::to_string(m_pid) + "/task";
    for (const auto &task : std::filesystem::directory_iterator(tasks))
        counts[task.path().filename()] = sumOfLines(task.path() / "status", "ctxt_switches");
    return counts;
}

double Child::residentKilobytes() const
{
    const std::string file = "/proc/" + std::to_string(m_pid) + "/smaps_rollup";
    return static_cast<double>(sumOfLines(file, "Rss:"));
}

void Child::waitUntilQuiet() const
{
    for (long last = -1; last != contextSwitches();) {
        last = contextSwitches();
        std::this_thread::sleep_for(1s);
    }
}

void Child::end()
{
    if (m_pid <= 0)
        return;
    ::kill(m_pid, SIGTERM);
    ::waitpid(m_pid, nullptr, 0);
    m_pid = -1;
}

} // namespace corvane::bench
