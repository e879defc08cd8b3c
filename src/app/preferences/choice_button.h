#pragma once

#include "app/look/window_look.h"

#include <QRadioButton>

namespace corvane {

/// One of several texts of which one is chosen: a tab, or a number of a picker. A radio button for
/// the keyboard and for screen readers.
class ChoiceButton : public QRadioButton {
    Q_OBJECT

public:
    struct Shape {
        double fontSize = 0;
        double horizontalPadding = 0;
        double verticalPadding = 0;
        /// Of the smallest of a row; narrower texts get as much.
        double minimumWidth = 0;
    };

    ChoiceButton(const QString &text, const Shape &shape, const WindowLook &look,
                 QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool hitButton(const QPoint &position) const override;
    void paintEvent(QPaintEvent *event) override;

private:
    QFont presentFont() const;

    Shape m_shape;
    WindowLook m_look;
};

} // namespace corvane
