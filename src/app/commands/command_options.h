#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

namespace corvane {

/// An option of the command line.
struct CommandOption {
    /// Without the dashes; with one dash it is short.
    const char *name = "";
    /// One character, or none.
    const char *shortName = "";
    /// What `--help` says of it, and the man page and the completions as well.
    const char *description = "";
    /// For the desktop, not for people: `--help` does not mention it.
    bool isHidden = false;
};

/// What the command line consists of, and what people are told of it.
namespace command_options {

const std::vector<CommandOption> &all();
/// The description in the user's language.
QString described(const CommandOption &option);
/// What `--help` prints.
QString help();

} // namespace command_options

} // namespace corvane
