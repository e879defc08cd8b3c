#pragma once

#include "platform/desktop/window_activation.h"

#include <QList>

namespace corvane::test {

/// Remembers which windows were brought forward and which were given the keyboard.
class FakeWindowActivation : public WindowActivation {
public:
    void bringToFront(QWindow &window) override { broughtForward << &window; }

    void giveKeyboard(QWindow &window) override { keyboardGiven << &window; }

    QList<const QWindow *> broughtForward;
    QList<const QWindow *> keyboardGiven;
};

} // namespace corvane::test
