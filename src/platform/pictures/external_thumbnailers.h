#pragma once

#include "platform/system/file_version.h"

#include <QByteArray>

namespace corvane {

class Cancellation;

/// The thumbnail programs that are installed on the desktop.
class ExternalThumbnailers {
public:
    struct Result {
        enum class Outcome {
            /// There is none for this kind of file, or none that may be run here.
            NotThere,
            /// It ended and left bytes that claim to be a PNG.
            Made,
            /// It ended, and made nothing of this file.
            Failed,
            /// It was stopped: too slow, too much, or no longer wanted. The file is not to blame.
            Stopped,
        };
        Outcome outcome = Outcome::NotThere;
        /// A stranger's: not looked at.
        QByteArray png;
    };

    virtual ~ExternalThumbnailers() = default;

    /// Waits for the program, for seconds at worst. Any thread but the main one.
    virtual Result run(const FileVersion &file, int pixels, Cancellation &cancellation) = 0;
};

} // namespace corvane
