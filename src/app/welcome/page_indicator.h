#pragma once

#include "app/look/window_look.h"

#include <QVariantAnimation>
#include <QWidget>

namespace corvane {

class MotionPreference;

/// One capsule for each page, the current one long and in the accent's colour. `motion` must
/// outlive it.
class PageIndicator : public QWidget {
    Q_OBJECT

public:
    PageIndicator(int count, const WindowLook &look, const MotionPreference &motion,
                  QWidget *parent = nullptr);

    void setCurrent(int page);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int m_count;
    WindowLook m_look;
    const MotionPreference &m_motion;
    /// The current page; a fraction on the way to another.
    QVariantAnimation m_place;
};

} // namespace corvane
