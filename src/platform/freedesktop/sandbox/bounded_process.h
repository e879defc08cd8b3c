#pragma once

#include "platform/system/file_descriptor.h"

#include <QByteArray>
#include <QByteArrayList>

namespace corvane {

class Cancellation;

/// Runs a program that is not trusted to end, to be brief, or to be still.
namespace bounded_process {

struct Limits {
    double seconds = 0;
    /// Of its output, which is what it writes to its standard output.
    qsizetype bytes = 0;
};

struct Result {
    enum class Outcome {
        NotStarted,
        /// Also by a signal of somebody else's.
        Ended,
        /// By us, at a limit or because it was cancelled.
        Killed,
    };
    Outcome outcome = Outcome::NotStarted;
    /// As a shell tells it: 128 more than the signal's number for one that a signal ended.
    int exitCode = 0;
    QByteArray output;
};

/// Starts `arguments` (the first is the program's path), waits for its end, and leaves no process
/// behind that it is the parent of. At a limit everything is killed that has stayed in the
/// program's process group. The program gets no descriptor of ours but `handed`, if that is one; no
/// input, no place for messages, a session of its own, and the environment of this process.
Result run(const QByteArrayList &arguments, const Limits &limits, Cancellation &cancellation,
           const FileDescriptor &handed = FileDescriptor());
/// What `handed` is called there.
inline constexpr int handedNumber = 3;

} // namespace bounded_process

} // namespace corvane
