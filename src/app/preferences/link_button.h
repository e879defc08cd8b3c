#pragma once

#include "app/look/window_look.h"

#include <QPushButton>

namespace corvane {

/// A button that looks like a link.
class LinkButton : public QPushButton {
    Q_OBJECT

public:
    LinkButton(const QString &text, const WindowLook &look, QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    WindowLook m_look;
};

} // namespace corvane
