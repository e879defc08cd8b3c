#pragma once

namespace corvane {

/// Keeps the program up to date. There is one only where the build knows where to look. Main thread
/// only.
class Updater {
public:
    virtual ~Updater() = default;

    /// Begins to look by itself, where that is wanted.
    virtual void start() = 0;
    /// Looks at once, and tells the user what it found.
    virtual void checkForUpdates() = 0;
    virtual bool automaticallyChecksForUpdates() const = 0;
    virtual void setAutomaticallyChecksForUpdates(bool on) = 0;
};

} // namespace corvane
