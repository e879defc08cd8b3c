#pragma once

#include "app/commands/command_line.h"
#include "platform/freedesktop/running_program.h"

#include <QByteArray>
#include <QList>

#include <optional>

namespace corvane {

class AppInfo;

/// What the command line asks for and this process answers by itself, or with the help of the one
/// that runs; no shelf and no display is needed.
namespace command_answers {

/// Writes one line for people to standard error, after the program's name.
void complain(const QByteArray &line);

/// One line for people: why the process that runs refused what it was asked. What it said itself is
/// English and does not stand in it.
QByteArray whyRefused(const RunningProgram &program);

/// Help, version, and what is wrong with the arguments. The exit status; none for everything else.
std::optional<int> atOnce(const CommandLine &line, const AppInfo &info);

/// Whether the wish is for a process that runs already, and vain without one.
bool isForRunningProgram(CommandLine::Wish wish);
/// Lists, takes or ends. Needs an application object. The exit status.
int byRunningProgram(const CommandLine &line, const AppInfo &info);

} // namespace command_answers

} // namespace corvane
