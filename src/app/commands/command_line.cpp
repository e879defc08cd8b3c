#include "app/commands/command_line.h"

#include "app/commands/command_options.h"
#include "app/commands/command_problem.h"

#include <QCommandLineParser>

#include <array>
#include <utility>

namespace corvane {

namespace {

using Wish = CommandLine::Wish;

constexpr std::array<std::pair<const char *, Wish>, 8> wishes = {{
    {"toggle", Wish::Toggle},
    {"show-all", Wish::ShowAll},
    {"list", Wish::List},
    {"take", Wish::Take},
    {"preferences", Wish::Preferences},
    {"quit", Wish::Quit},
    {"help", Wish::Help},
    {"version", Wish::Version},
}};

CommandLine wrong(CommandProblem problem, const QList<QByteArray> &what = {})
{
    CommandLine line;
    line.problem = command_problem::line(problem, what);
    return line;
}

QByteArray asWritten(const QString &option)
{
    return QByteArray(option.size() == 1 ? "-" : "--") + option.toLatin1();
}

/// The wish that the options tell; help and version come before all others.
CommandLine withWish(const QCommandLineParser &parser)
{
    CommandLine line;
    const char *first = nullptr;
    for (const auto &[name, wish] : wishes) {
        if (!parser.isSet(QLatin1String(name)))
            continue;
        const bool isAnswer = wish == Wish::Help || wish == Wish::Version;
        if (first && !isAnswer)
            return wrong(CommandProblem::OptionsCannotGoTogether,
                         {QByteArray("--") + first, QByteArray("--") + name});
        line.wish = wish;
        first = name;
        if (isAnswer)
            break;
    }
    return line;
}

} // namespace

CommandLine CommandLine::of(const QList<QByteArray> &arguments)
{
    // One character for each byte: the parser takes texts, and a path need not be one.
    QStringList texts{QStringLiteral("corvane")};
    for (const QByteArray &argument : arguments)
        texts << QString::fromLatin1(argument);
    QCommandLineParser parser;
    for (const CommandOption &option : command_options::all()) {
        QStringList names{QLatin1String(option.name)};
        if (*option.shortName != '\0')
            names << QLatin1String(option.shortName);
        parser.addOption(QCommandLineOption(names));
    }
    if (!parser.parse(texts)) {
        const QStringList unknown = parser.unknownOptionNames();
        return unknown.isEmpty()
            ? wrong(CommandProblem::OptionTakesNoValue)
            : wrong(CommandProblem::UnknownOption, {asWritten(unknown.constFirst())});
    }
    CommandLine line = withWish(parser);
    if (!line.problem.isEmpty() || line.wish == Wish::Help || line.wish == Wish::Version)
        return line;
    line.isNullSeparated = parser.isSet(QStringLiteral("null"));
    line.isStartedByBus = parser.isSet(QStringLiteral("started-by-bus"));
    for (const QString &place : parser.positionalArguments())
        line.places << place.toLatin1();
    if (line.isNullSeparated && line.wish != Wish::List && line.wish != Wish::Take)
        return wrong(CommandProblem::NullAlone);
    if (line.places.isEmpty())
        return line;
    if (line.wish != Wish::Start)
        return wrong(CommandProblem::PlacesWithOption);
    if (line.places.count("-") > 1)
        return wrong(CommandProblem::InputTwice);
    line.wish = Wish::Put;
    return line;
}

QList<QByteArray> CommandLine::takeToolkitArguments(QList<QByteArray> &arguments)
{
    const qsizetype at = arguments.indexOf("-session");
    const qsizetype end = arguments.indexOf("--");
    if (at < 0 || at + 1 >= arguments.size() || (end >= 0 && end < at))
        return {};
    return {arguments.takeAt(at), arguments.takeAt(at)};
}

} // namespace corvane
