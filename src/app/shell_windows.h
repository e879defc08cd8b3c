#pragma once

#include "app/preferences/preferences_context.h"
#include "app/preferences/preferences_tab.h"
#include "platform/base/lifetime.h"

#include <memory>

namespace corvane {

class MainQueue;
class PreferencesWindowController;
class ShellWindow;
class WelcomeWindowController;
class WindowActivation;

/// The preferences and the guide, which exist only while they are open. What it is given must
/// outlive it. Main thread only.
class ShellWindows {
public:
    struct Context {
        PreferencesContext preferences;
        WindowActivation &activation;
        MainQueue &queue;
    };

    /// From the launch to the guide, in seconds: the status item shall be there first.
    static constexpr double welcomeDelay = 0.6;

    explicit ShellWindows(Context context);
    ShellWindows(const ShellWindows &) = delete;
    ShellWindows &operator=(const ShellWindows &) = delete;
    ~ShellWindows();

    /// Brings the window forward, making it if there is none, and selects the tab.
    void showPreferences(PreferencesTab tab);
    /// Brings the guide forward, and remembers that it has been seen.
    void showWelcome();
    /// Shows the guide in a moment if it was never seen.
    void showWelcomeOnFirstLaunch();

    /// Null while the window is closed.
    PreferencesWindowController *preferences() const { return m_preferences.get(); }
    WelcomeWindowController *welcome() const { return m_welcome.get(); }

private:
    void bringForward(ShellWindow &window) const;

    Context m_context;
    std::unique_ptr<PreferencesWindowController> m_preferences;
    std::unique_ptr<WelcomeWindowController> m_welcome;
    Lifetime m_lifetime;
};

} // namespace corvane
