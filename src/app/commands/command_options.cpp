#include "app/commands/command_options.h"

#include <QCoreApplication>
#include <QStringBuilder>

#include <algorithm>

namespace corvane::command_options {

namespace {

QString translated(const char *text)
{
    return QCoreApplication::translate("CommandLine", text);
}

/// "-h, --help", or "    --quit" for an option without a short name.
QString names(const CommandOption &option)
{
    const QString shortName = *option.shortName == '\0'
        ? QStringLiteral("    ")
        : u'-' % QLatin1String(option.shortName) % u", ";
    return shortName % u"--" % QLatin1String(option.name);
}

} // namespace

const std::vector<CommandOption> &all()
{
    static const std::vector<CommandOption> options = {
        {"toggle", "", QT_TRANSLATE_NOOP("CommandLine", "Show or hide the shelf")},
        {"show-all", "", QT_TRANSLATE_NOOP("CommandLine", "Show all items in the bar")},
        {"list", "",
         QT_TRANSLATE_NOOP("CommandLine", "Print the paths and links on the shelf, one a line")},
        {"take", "",
         QT_TRANSLATE_NOOP("CommandLine", "Print them, and remove them from the shelf")},
        {"null", "0",
         QT_TRANSLATE_NOOP("CommandLine", "Print a NUL character at the end of each, no new line")},
        {"preferences", "", QT_TRANSLATE_NOOP("CommandLine", "Open the preferences")},
        {"quit", "", QT_TRANSLATE_NOOP("CommandLine", "End Corvane")},
        {"help", "h", QT_TRANSLATE_NOOP("CommandLine", "Print this help")},
        {"version", "v", QT_TRANSLATE_NOOP("CommandLine", "Print the version")},
        {"started-by-bus", "", "", true},
    };
    return options;
}

QString described(const CommandOption &option)
{
    return translated(option.description);
}

QString help()
{
    QString text = translated(QT_TRANSLATE_NOOP("CommandLine", "Usage:"))
        % u" corvane [OPTIONS] [FILE|URL ...]\n\n"
        % translated(QT_TRANSLATE_NOOP(
            "CommandLine",
            "Puts files and links on the shelf, and with - a text from standard input.\n"
            "Without arguments it starts Corvane, or shows or hides the shelf of the one\n"
            "that runs."))
        % u"\n\n";
    qsizetype width = 0;
    for (const CommandOption &option : all())
        width = std::max(width, option.isHidden ? 0 : names(option).size());
    for (const CommandOption &option : all()) {
        if (!option.isHidden)
            text += u"  " % names(option).leftJustified(width) % u"  " % described(option) % u'\n';
    }
    return text;
}

} // namespace corvane::command_options
