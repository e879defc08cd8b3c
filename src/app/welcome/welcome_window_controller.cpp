#include "app/welcome/welcome_window_controller.h"

#include "app/look/window_look.h"

#include <QVBoxLayout>

namespace corvane {

WelcomeWindowController::WelcomeWindowController(const WelcomeView::Context &context,
                                                 const ScreenLocator &screenLocator)
    : m_window(new ShellWindow(screenLocator, WindowLook().length(contentSize),
                               [this] { windowWillClose(); }))
    , m_view(new WelcomeView(context, [window = m_window.get()] { window->close(); }))
{
    auto *layout = new QVBoxLayout(m_window.get());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_view);
}

WelcomeWindowController::~WelcomeWindowController() = default;

void WelcomeWindowController::windowWillClose() const
{
    // A copy: whoever is called may delete this.
    const std::function<void()> callback = onClose;
    if (callback)
        callback();
}

} // namespace corvane
