#pragma once

namespace corvane {

class UpdateNotices;

/// Keeps the program up to date. There is one only where the build knows where to look. Main thread
/// only.
class Updater {
public:
    virtual ~Updater() = default;

    /// Begins the automatic checks, if the user wants them.
    virtual void start() = 0;
    /// Checks at once, and tells the user what it found.
    virtual void checkForUpdates() = 0;
    virtual bool automaticallyChecksForUpdates() const = 0;
    virtual void setAutomaticallyChecksForUpdates(bool on) = 0;

    /// What checks found to be wrong that nobody asked for.
    virtual UpdateNotices &notices() = 0;
    /// Shows it in a window; nothing where nothing is wrong.
    virtual void showNotice() = 0;
};

} // namespace corvane
