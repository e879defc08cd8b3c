#include "app/commands/command_problem.h"

#include <QCoreApplication>

namespace corvane::command_problem {

namespace {

const char *sourceOf(CommandProblem problem)
{
    using enum CommandProblem;
    switch (problem) {
    case UnknownOption:
        return QT_TRANSLATE_NOOP("CommandProblem", "there is no option %1");
    case OptionTakesNoValue:
        return QT_TRANSLATE_NOOP("CommandProblem", "no option of Corvane takes a value");
    case OptionsCannotGoTogether:
        return QT_TRANSLATE_NOOP("CommandProblem", "%1 and %2 cannot go together");
    case NullAlone:
        return QT_TRANSLATE_NOOP("CommandProblem", "--null goes with --list and --take");
    case PlacesWithOption:
        return QT_TRANSLATE_NOOP("CommandProblem", "files and links go with no option");
    case InputTwice:
        return QT_TRANSLATE_NOOP("CommandProblem", "standard input can be put on the shelf once");
    case NoAddress:
        return QT_TRANSLATE_NOOP("CommandProblem", "this is no address: %1");
    case NoFile:
        return QT_TRANSLATE_NOOP("CommandProblem", "there is no file %1");
    case InputUnreadable:
        return QT_TRANSLATE_NOOP("CommandProblem",
                                 "standard input cannot be read, or is larger than 256 MiB");
    case InputNotUtf8:
        return QT_TRANSLATE_NOOP("CommandProblem", "standard input is no text in UTF-8");
    case InputEmpty:
        return QT_TRANSLATE_NOOP("CommandProblem", "there is no text on standard input");
    case SomeNotTaken:
        return QT_TRANSLATE_NOOP("CommandProblem", "the shelf does not take %1 of what was given");
    case OutputUnwritable:
        return QT_TRANSLATE_NOOP("CommandProblem", "standard output cannot be written to: %1");
    case NotAnswering:
        return QT_TRANSLATE_NOOP("CommandProblem", "Corvane is running, but does not answer");
    case RefusedByOther:
        return QT_TRANSLATE_NOOP("CommandProblem", "the Corvane that runs says: %1");
    case NotDoneByOther:
        return QT_TRANSLATE_NOOP(
            "CommandProblem", "the Corvane that runs does not do this; it may be an older version");
    case OtherNotReady:
        return QT_TRANSLATE_NOOP("CommandProblem",
                                 "the Corvane that runs is not ready yet; try again in a moment");
    case OtherBusy:
        return QT_TRANSLATE_NOOP("CommandProblem",
                                 "the Corvane that runs has too much to do; try again in a moment");
    case NothingTaken:
        return QT_TRANSLATE_NOOP("CommandProblem", "what was printed is still on the shelf");
    case NoMemory:
        return QT_TRANSLATE_NOOP("CommandProblem", "there is not enough memory");
    case AnswerUnreadable:
        return QT_TRANSLATE_NOOP("CommandProblem",
                                 "the answer of the Corvane that runs cannot be read");
    case DisplayUnusable:
        return QT_TRANSLATE_NOOP("CommandProblem", "the display cannot be used: %1");
    case SeeHelp:
        return QT_TRANSLATE_NOOP("CommandProblem", "%1; see corvane --help");
    }
    return "";
}

} // namespace

QByteArray line(CommandProblem problem, const QList<QByteArray> &what)
{
    const QByteArray text
        = QCoreApplication::translate("CommandProblem", sourceOf(problem)).toLocal8Bit();
    QByteArray filled;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const qsizetype number = text[at] == '%' && at + 1 < text.size() ? text[at + 1] - '1' : -1;
        if (number < 0 || number >= what.size()) {
            filled += text[at];
            continue;
        }
        filled += what[number];
        ++at;
    }
    return filled;
}

} // namespace corvane::command_problem
