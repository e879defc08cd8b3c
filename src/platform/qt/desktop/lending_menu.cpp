#include "platform/qt/desktop/lending_menu.h"

#include "platform/desktop/keyboard_loan.h"

#include <QGuiApplication>
#include <QWindow>

#include <utility>

namespace corvane {

LendingMenu::LendingMenu(KeyboardLoan &keyboard)
    : m_keyboard(keyboard)
{
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this,
            [this](const QWindow *window) { focusMoved(window); });
}

LendingMenu::~LendingMenu()
{
    if (m_number == WindowNumber::None)
        return;
    m_keyboard.willHide(m_number);
    m_keyboard.leave(m_number);
}

void LendingMenu::setVisible(bool isVisible)
{
    // While its window is there: whoever has the keyboard when it goes is the desktop's choice.
    if (!isVisible && m_number != WindowNumber::None)
        m_keyboard.willHide(m_number);
    m_hasKeyboard = false;
    QMenu::setVisible(isVisible);
    if (!isVisible || !windowHandle())
        return;
    const WindowNumber number{windowHandle()->winId()};
    if (const WindowNumber before = std::exchange(m_number, number); before != number) {
        if (before != WindowNumber::None)
            m_keyboard.leave(before);
        m_keyboard.join(number);
    }
    m_keyboard.shown(number);
    m_keyboard.wantedByHand(number);
}

/// The user is in another program now, where the keyboard stays.
void LendingMenu::focusMoved(const QWindow *window)
{
    const bool hadKeyboard
        = std::exchange(m_hasKeyboard, window && window == windowHandle() && isVisible());
    if (!hadKeyboard || m_hasKeyboard)
        return;
    m_keyboard.userWentOn(m_number);
    close();
}

} // namespace corvane
