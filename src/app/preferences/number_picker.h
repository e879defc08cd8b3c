#pragma once

#include "app/look/window_look.h"

#include <QWidget>

class QButtonGroup;

namespace corvane {

/// Offers a few whole numbers side by side. Reached with Tab, moved with the arrow keys.
class NumberPicker : public QWidget {
    Q_OBJECT

public:
    NumberPicker(int minimum, int maximum, const QString &name, const WindowLook &look,
                 QWidget *parent = nullptr);

    int number() const;
    /// What screen readers say of the chosen number, and of others that one comes to.
    void describe(const QString &text);
    /// Outside the range the nearest one. Does not signal.
    void setNumber(int number);

Q_SIGNALS:
    /// The user chose another one.
    void picked(int number);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int m_minimum;
    int m_maximum;
    WindowLook m_look;
    QButtonGroup *m_group;
};

} // namespace corvane
