#pragma once

#include "app/preferences/preferences_window.h"
#include "app/preferences/tab_selection.h"

#include <functional>

namespace corvane {

/// Owns the preferences window and its selection. Closing hides the window; it can be shown again.
/// Main thread only.
class PreferencesWindowController {
public:
    explicit PreferencesWindowController(const PreferencesContext &context);
    PreferencesWindowController(const PreferencesWindowController &) = delete;
    PreferencesWindowController &operator=(const PreferencesWindowController &) = delete;
    ~PreferencesWindowController();

    TabSelection &selection() { return m_selection; }
    ShellWindow &window() { return *m_window; }

    /// Called once each time the window closes; may delete the controller.
    std::function<void()> onClose;

private:
    void windowWillClose() const;

    TabSelection m_selection;
    ShellWindow::Pointer<PreferencesWindow> m_window;
};

} // namespace corvane
