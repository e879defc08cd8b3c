#include "app/shell_windows.h"

#include "app/preferences/preferences_window_controller.h"
#include "app/welcome/welcome_window_controller.h"
#include "core/settings.h"
#include "platform/base/main_queue.h"
#include "platform/desktop/window_activation.h"

#include <QWindow>

#include <utility>

namespace corvane {

ShellWindows::ShellWindows(Context context)
    : m_context(std::move(context))
{
}

ShellWindows::~ShellWindows() = default;

void ShellWindows::showPreferences(PreferencesTab tab)
{
    if (!m_preferences) {
        m_preferences = std::make_unique<PreferencesWindowController>(m_context.preferences);
        m_preferences->onClose = [this] { m_preferences.reset(); };
    }
    m_preferences->selection().setTab(tab);
    bringForward(m_preferences->window());
}

void ShellWindows::showWelcome()
{
    if (!m_welcome) {
        const PreferencesContext &context = m_context.preferences;
        m_welcome = std::make_unique<WelcomeWindowController>(
            WelcomeView::Context{context.motion, context.abilities, context.settings,
                                 context.shortcutBinder, context.announce},
            context.screenLocator);
        m_welcome->onClose = [this] { m_welcome.reset(); };
    }
    // Set now rather than when it is closed, so that it never comes by itself a second time.
    m_context.preferences.settings.setSeenWelcome(true);
    bringForward(m_welcome->window());
}

void ShellWindows::showWelcomeOnFirstLaunch()
{
    if (m_context.preferences.settings.seenWelcome())
        return;
    m_context.queue.asyncAfter(welcomeDelay, m_lifetime.guard([this] { showWelcome(); }));
}

void ShellWindows::bringForward(ShellWindow &window) const
{
    window.present();
    m_context.activation.bringToFront(*window.windowHandle());
}

} // namespace corvane
