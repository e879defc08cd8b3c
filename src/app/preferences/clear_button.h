#pragma once

#include "app/look/window_look.h"

#include <QPushButton>

namespace corvane {

/// A small cross in a circle.
class ClearButton : public QPushButton {
    Q_OBJECT

public:
    explicit ClearButton(const WindowLook &look, QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    WindowLook m_look;
};

} // namespace corvane
