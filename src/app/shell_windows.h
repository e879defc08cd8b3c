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

/// Owns the preferences and the guide, which exist only while they are open. Everything that it is
/// given must outlive it. Main thread only.
class ShellWindows {
public:
    struct Context {
        PreferencesContext preferences;
        WindowActivation &activation;
        MainQueue &queue;
    };

    /// In seconds, from the launch until the guide is shown: the status item should be there first.
    static constexpr double welcomeDelay = 0.6;

    explicit ShellWindows(Context context);
    ShellWindows(const ShellWindows &) = delete;
    ShellWindows &operator=(const ShellWindows &) = delete;
    ~ShellWindows();

    /// Shows the preferences in front, makes them if needed, and selects the tab.
    void showPreferences(PreferencesTab tab);
    /// Shows the guide in front, and remembers that it was seen.
    void showWelcome();
    /// Shows the guide after `welcomeDelay` if it was never seen.
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
