#include "platform/wayland/windows/layer_keyboard_focus.h"

#include "platform/wayland/windows/layer_panel_surface.h"

#include <QGuiApplication>
#include <QWindow>

namespace corvane {

WindowNumber LayerKeyboardFocus::focusedWindow() const
{
    const WindowNumber panel = m_panels.panelWithKeyboard();
    if (panel != WindowNumber::None)
        return panel;
    const QWindow *const own = QGuiApplication::focusWindow();
    return own ? WindowNumber{own->winId()} : somebodyElse;
}

void LayerKeyboardFocus::giveTo(WindowNumber panel)
{
    m_panels.giveKeyboard(panel);
}

bool LayerKeyboardFocus::giveBackTo(const Owner & /*owner*/)
{
    m_panels.giveKeyboardBack();
    return false;
}

bool LayerKeyboardFocus::isLeftButtonDown() const
{
    return QGuiApplication::mouseButtons().testFlag(Qt::LeftButton);
}

} // namespace corvane
