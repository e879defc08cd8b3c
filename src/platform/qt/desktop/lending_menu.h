#pragma once

#include "platform/desktop/keyboard_focus.h"

#include <QMenu>

namespace corvane {

class KeyboardLoan;

/// A menu that has the keyboard as panels do while it is open, and closes when it loses that: for
/// sessions where what the toolkit grabs for a menu reaches it from our own windows alone, so that
/// it would hear neither a key nor a click in another program. The loan must outlive it.
class LendingMenu : public QMenu {
public:
    explicit LendingMenu(KeyboardLoan &keyboard);
    ~LendingMenu() override;

    void setVisible(bool isVisible) override;

private:
    void focusMoved(const QWindow *window);

    KeyboardLoan &m_keyboard;
    /// Its window's; none before it was opened for the first time.
    WindowNumber m_number = WindowNumber::None;
    bool m_hasKeyboard = false;
};

} // namespace corvane
