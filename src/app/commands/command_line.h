#pragma once

#include <QByteArray>
#include <QList>

namespace corvane {

/// What the program was started for, as its arguments say. Nothing but them is looked at.
struct CommandLine {
    enum class Wish {
        /// Start, or show or hide the shelf of the process that runs.
        Start,
        /// Put `places` on the shelf.
        Put,
        Toggle,
        ShowAll,
        List,
        Take,
        Preferences,
        Quit,
        Help,
        Version,
    };

    Wish wish = Wish::Start;
    /// Files and addresses as they were given, byte by byte; "-" is standard input.
    QList<QByteArray> places = {};
    /// What is printed has NUL characters for line ends.
    bool isNullSeparated = false;
    /// The desktop starts the program through the session bus.
    bool isStartedByBus = false;
    /// What is wrong with the arguments, one line for people; empty if nothing is. The rest then
    /// has no meaning.
    QByteArray problem = {};

    /// From the arguments behind the program's name. Works without an application object, which
    /// `problem` is then not translated by.
    static CommandLine of(const QList<QByteArray> &arguments);
    /// Those arguments among them that are for the toolkit: a session manager passes them to what
    /// it starts again. They are removed from `arguments`.
    static QList<QByteArray> takeToolkitArguments(QList<QByteArray> &arguments);
};

} // namespace corvane
