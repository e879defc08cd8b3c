#pragma once

#include <functional>

namespace corvane {

/// Tells when the desktop has a tray of the session's own kind, apart from panels that show icons
/// of the session bus. Main thread only.
class TrayWatch {
public:
    virtual ~TrayWatch() = default;

    /// Calls `onTray` at once if there is a tray, and whenever one appears. To be called once.
    virtual void start(std::function<void()> onTray) = 0;
    /// Calls it no more. May be called several times, also from inside `onTray`.
    virtual void stop() = 0;
};

} // namespace corvane
