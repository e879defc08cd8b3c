#pragma once

#include "app/look/window_look.h"
#include "app/welcome/welcome_scene.h"
#include "app/welcome/welcome_step.h"

#include <QImage>
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
    /// Half the usual rate is enough for movements as slow as these.
    static constexpr int framesPerSecond = 30;

    IllustrationView(const WindowLook &look, const MotionPreference &motion,
                     QWidget *parent = nullptr);

    void setStep(WelcomeStep step);
    QSize sizeHint() const override { return {0, maximumHeight()}; }
    bool isPlaying() const { return m_phase.state() == QAbstractAnimation::Running; }

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool canBeSeen() const;
    WelcomeScene presentScene() const;
    /// Has what differs from what was shown painted anew.
    void showPresentScene();
    /// `scale` is that of what is painted on, in pixels of it for each of ours.
    void prepareBackdrop(double scale);
    void play();
    void hold();

    WindowLook m_look;
    const MotionPreference &m_motion;
    WelcomeStep m_step = WelcomeStep::DragIn;
    QVariantAnimation m_phase;
    /// A play that was interrupted goes on when it can be seen again.
    bool m_isInterrupted = false;
    WelcomeScene m_scene;
    /// What stands still, painted once for each size and palette; null until it is.
    QImage m_backdrop;
};

} // namespace corvane
