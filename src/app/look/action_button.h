#pragma once

#include "app/look/window_look.h"

#include <QPushButton>

namespace corvane {

/// A button in the look of our windows. The default button, which Return presses from anywhere in
/// its window, has the accent colour.
class ActionButton : public QPushButton {
    Q_OBJECT

public:
    ActionButton(const QString &text, double fontSize, QSize minimumSize, const WindowLook &look,
                 QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QSize m_minimumSize;
    WindowLook m_look;
};

} // namespace corvane
