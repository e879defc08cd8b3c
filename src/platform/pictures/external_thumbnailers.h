#pragma once

#include "platform/system/file_version.h"

#include <QByteArray>

namespace corvane {

class Cancellation;

/// Runs the thumbnail programs that are installed on the desktop.
class ExternalThumbnailers {
public:
    struct Result {
        enum class Outcome {
            /// There is no program for this kind of file, or none that may be run here.
            NotThere,
            /// It ended and wrote bytes that begin like a PNG.
            Made,
            /// It ended without making anything of this file.
            Failed,
            /// It was stopped because it was too slow, used too much, or was no longer wanted. That
            /// says nothing about the file.
            Stopped,
        };
        Outcome outcome = Outcome::NotThere;
        /// Not checked: it comes from another program.
        QByteArray png;
    };

    virtual ~ExternalThumbnailers() = default;

    /// Waits for the program, for seconds at worst. Any thread but the main one.
    virtual Result run(const FileVersion &file, int pixels, Cancellation &cancellation) = 0;
};

} // namespace corvane
