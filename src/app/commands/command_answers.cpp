#include "app/commands/command_answers.h"

#include "app/base/app_info.h"
#include "app/commands/command_options.h"
#include "app/commands/command_problem.h"
#include "platform/freedesktop/session_bus.h"
#include "platform/system/file_descriptor.h"

#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace corvane::command_answers {

namespace {

constexpr int done = 0;
constexpr int failed = 1;
constexpr int misused = 2;

/// Writes all of it, and leaves standard output closed: some file systems tell only then that they
/// are full.
bool print(const QByteArray &bytes)
{
    FileDescriptor output(STDOUT_FILENO);
    const bool isWritten = output.write(bytes);
    if (output.close() && isWritten)
        return true;
    complain(command_problem::line(CommandProblem::OutputUnwritable, {std::strerror(errno)}));
    return false;
}

QByteArray inLines(QByteArray entries)
{
    return entries.replace('\0', '\n');
}

int failedBy(const RunningProgram &program, RunningProgram::Answer answer)
{
    if (answer == RunningProgram::Answer::None)
        complain(command_problem::line(CommandProblem::NotAnswering));
    else
        complain(whyRefused(program));
    return failed;
}

int list(const RunningProgram &program, bool isNullSeparated)
{
    QByteArray entries;
    const auto answer = program.list(entries);
    if (answer != RunningProgram::Answer::Done)
        return failedBy(program, answer);
    return print(isNullSeparated ? entries : inLines(entries)) ? done : failed;
}

int take(const RunningProgram &program, bool isNullSeparated)
{
    QByteArray entries;
    const auto answer = program.take(entries);
    if (answer != RunningProgram::Answer::Done)
        return failedBy(program, answer);
    // It leaves the shelf when it has arrived.
    if (entries.isEmpty() || !print(isNullSeparated ? entries : inLines(entries)))
        return failed;
    const auto confirmed = program.confirmTaken();
    return confirmed == RunningProgram::Answer::Done ? done : failedBy(program, confirmed);
}

int quit(const RunningProgram &program)
{
    const auto answer = program.end();
    const bool hasEnded
        = answer == RunningProgram::Answer::Done || answer == RunningProgram::Answer::Gone;
    return hasEnded ? done : failedBy(program, answer);
}

} // namespace

void complain(const QByteArray &line)
{
    std::fprintf(stderr, "corvane: %s\n", line.constData());
}

QByteArray whyRefused(const RunningProgram &program)
{
    using enum RunningProgram::Refusal;
    switch (program.refusal()) {
    case NotReady:
        return command_problem::line(CommandProblem::OtherNotReady);
    case TooMuch:
        return command_problem::line(CommandProblem::OtherBusy);
    case NotKnown:
        return command_problem::line(CommandProblem::NotDoneByOther);
    case NothingTaken:
        return command_problem::line(CommandProblem::NothingTaken);
    case NoMemory:
        return command_problem::line(CommandProblem::NoMemory);
    case AnswerUnreadable:
        return command_problem::line(CommandProblem::AnswerUnreadable);
    case Other:
        break;
    }
    return command_problem::line(CommandProblem::RefusedByOther,
                                 {program.refusedBy().toLocal8Bit()});
}

std::optional<int> atOnce(const CommandLine &line, const AppInfo &info)
{
    if (!line.problem.isEmpty()) {
        complain(command_problem::line(CommandProblem::SeeHelp, {line.problem}));
        return misused;
    }
    if (line.wish == CommandLine::Wish::Help)
        return print(command_options::help().toLocal8Bit()) ? done : failed;
    if (line.wish == CommandLine::Wish::Version)
        return print("Corvane " + info.version().toUtf8() + "\n") ? done : failed;
    return std::nullopt;
}

bool isForRunningProgram(CommandLine::Wish wish)
{
    using enum CommandLine::Wish;
    return wish == List || wish == Take || wish == Quit;
}

int byRunningProgram(const CommandLine &line, const AppInfo &info)
{
    const bool isTake = line.wish == CommandLine::Wish::Take;
    const RunningProgram program(info.applicationId());
    // Where none runs there is nothing to be listed, and nothing to be ended.
    if (!session_bus::isAvailable() || !program.exists())
        return isTake ? failed : done;
    const auto alive = program.isAlive();
    if (alive == RunningProgram::Answer::None)
        return failedBy(program, alive);
    if (line.wish == CommandLine::Wish::Quit)
        return quit(program);
    return isTake ? take(program, line.isNullSeparated) : list(program, line.isNullSeparated);
}

} // namespace corvane::command_answers
