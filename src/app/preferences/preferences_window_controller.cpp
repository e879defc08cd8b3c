#include "app/preferences/preferences_window_controller.h"

namespace corvane {

PreferencesWindowController::PreferencesWindowController(const PreferencesContext &context)
    : m_window(new PreferencesWindow(context, m_selection, [this] { windowWillClose(); }))
{
}

PreferencesWindowController::~PreferencesWindowController() = default;

void PreferencesWindowController::windowWillClose() const
{
    // A copy: whoever is called may delete this.
    const std::function<void()> callback = onClose;
    if (callback)
        callback();
}

} // namespace corvane
