#pragma once

#include <QByteArray>

#include <chrono>
#include <vector>

namespace corvane {

/// What came of a program of the desktop.
struct CommandOutput {
    enum class End {
        Well,
        /// It is not there, or says itself that it failed.
        Failed,
        /// Its answer is not known: it took longer, printed more than a megabyte, was
        /// ended by somebody else, or there was no room to start it.
        Unknown,
    };

    End end = End::Unknown;
    /// What it printed, without its complaints; empty where it did not end well.
    QByteArray text = {};

    bool operator==(const CommandOutput &) const = default;
};

/// Runs a program; what takes longer or prints too much is ended. Blocks; any thread.
CommandOutput commandOutput(const std::vector<QByteArray> &arguments,
                            std::chrono::milliseconds patience);

} // namespace corvane
