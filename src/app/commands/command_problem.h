#pragma once

#include <QByteArray>
#include <QList>

namespace corvane {

/// What the command line tells people that went wrong.
enum class CommandProblem {
    UnknownOption,
    OptionTakesNoValue,
    OptionsCannotGoTogether,
    NullAlone,
    PlacesWithOption,
    InputTwice,
    NoAddress,
    NoFile,
    InputUnreadable,
    InputNotUtf8,
    InputEmpty,
    SomeNotTaken,
    OutputUnwritable,
    NotAnswering,
    RefusedByOther,
    NotDoneByOther,
    OtherNotReady,
    OtherBusy,
    NothingTaken,
    NoMemory,
    AnswerUnreadable,
    DisplayUnusable,
    SeeHelp,
};

namespace command_problem {

constexpr int count = static_cast<int>(CommandProblem::SeeHelp) + 1;

/// One line for people, in their language where there is an application object with translations.
/// `what` stands in it byte by byte, a path for example.
QByteArray line(CommandProblem problem, const QList<QByteArray> &what = {});

} // namespace command_problem
} // namespace corvane
