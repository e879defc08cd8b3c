#pragma once

#include <functional>

namespace corvane {

/// Tells when the desktop has a tray of the session's own kind, beside those on the session bus.
/// Main thread only.
class TrayWatch {
public:
    virtual ~TrayWatch() = default;

    /// `onTray` is called at once if there is a tray, and whenever one comes. Once.
    virtual void start(std::function<void()> onTray) = 0;
    /// It is not called any more. May be called again, and from inside of it.
    virtual void stop() = 0;
};

} // namespace corvane
