#pragma once

#include "platform/desktop/window_activation.h"

#include <QList>

namespace corvane::test {

/// Remembers which windows were brought forward.
class FakeWindowActivation : public WindowActivation {
public:
    void bringToFront(QWindow &window) override { broughtForward << &window; }

    QList<const QWindow *> broughtForward;
};

} // namespace corvane::test
