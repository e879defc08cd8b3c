#pragma once

#include "app/look/window_look.h"

#include <QCheckBox>
#include <QVariantAnimation>

namespace corvane {

class MotionPreference;

/// A check box that looks like a switch. `motion` must outlive it.
class SwitchButton : public QCheckBox {
    Q_OBJECT

public:
    /// `name` and `description` are for those who cannot see what stands beside it.
    SwitchButton(const QString &name, const QString &description, const WindowLook &look,
                 const MotionPreference &motion, QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool hitButton(const QPoint &position) const override;
    void paintEvent(QPaintEvent *event) override;

private:
    void slide(bool on);
    QColor trackColor() const;

    WindowLook m_look;
    const MotionPreference &m_motion;
    /// How far the knob is: 0 off, 1 on.
    QVariantAnimation m_knob;
};

} // namespace corvane
