#pragma once

#include "app/welcome/welcome_step.h"
#include "app/window_look.h"

#include <QVariantAnimation>
#include <QWidget>

namespace corvane {

class MotionPreference;

/// Plays a step's illustration, a few times and then holds it; moving the pointer over it plays it
/// again. Nothing moves, and nothing wakes up, while it cannot be seen or where less movement is
/// wanted. `motion` must outlive it.
class IllustrationView : public QWidget {
    Q_OBJECT

public:
    static constexpr int timesPlayed = 6;

    IllustrationView(const WindowLook &look, const MotionPreference &motion,
                     QWidget *parent = nullptr);

    void setStep(WelcomeStep step);
    QSize sizeHint() const override { return {0, maximumHeight()}; }
    bool isPlaying() const { return m_phase.state() == QAbstractAnimation::Running; }

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool canBeSeen() const;
    void play();
    void hold();

    WindowLook m_look;
    const MotionPreference &m_motion;
    WelcomeStep m_step = WelcomeStep::DragIn;
    QVariantAnimation m_phase;
    /// A play that was interrupted goes on when it can be seen again.
    bool m_isInterrupted = false;
};

} // namespace corvane
