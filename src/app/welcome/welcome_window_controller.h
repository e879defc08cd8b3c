#pragma once

#include "app/look/shell_window.h"
#include "app/welcome/welcome_view.h"

#include <functional>

namespace corvane {

/// Owns the window of the guide. Finishing the guide and closing the window are the same. Main
/// thread only; everything that the constructor is given must outlive it.
class WelcomeWindowController {
public:
    static constexpr QSize contentSize{520, 560};

    WelcomeWindowController(const WelcomeView::Context &context,
                            const ScreenLocator &screenLocator);
    WelcomeWindowController(const WelcomeWindowController &) = delete;
    WelcomeWindowController &operator=(const WelcomeWindowController &) = delete;
    ~WelcomeWindowController();

    ShellWindow &window() { return *m_window; }
    WelcomeView &view() { return *m_view; }

    /// Called once each time the window closes; may delete the controller.
    std::function<void()> onClose;

private:
    void windowWillClose() const;

    ShellWindow::Pointer<ShellWindow> m_window;
    WelcomeView *m_view;
};

} // namespace corvane
