#pragma once

namespace corvane {

/// Keeps the program up to date. There is one only where the build knows where to look.
class Updater {
public:
    virtual ~Updater() = default;

    /// Looks at once, and tells the user what it found.
    virtual void checkForUpdates() = 0;
    virtual void setAutomaticallyChecksForUpdates(bool on) = 0;
};

} // namespace corvane
