#pragma once

#include "app/look/window_look.h"
#include "app/welcome/welcome_step.h"

#include <QWidget>

#include <functional>

namespace corvane {

class ActionButton;
class IllustrationView;
class MotionPreference;
class PageIndicator;
class TextLabel;

/// The guide: a picture, a title and a text for each step, and buttons to go through them. `motion`
/// must outlive it.
class WelcomeView : public QWidget {
    Q_OBJECT

public:
    WelcomeView(const MotionPreference &motion, std::function<void()> onClose,
                QWidget *parent = nullptr);

    /// Index of the step that is shown.
    int step() const { return m_step; }
    void goBack();
    /// To the next step; from the last one it closes.
    void goForward();

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QWidget *makeButtons();
    void showStep(int step);
    bool isLast() const;

    const MotionPreference &m_motion;
    std::function<void()> m_onClose;
    WindowLook m_look;
    int m_step = 0;
    IllustrationView *m_illustration;
    TextLabel *m_title;
    TextLabel *m_body;
    PageIndicator *m_indicator;
    ActionButton *m_back = nullptr;
    ActionButton *m_forward = nullptr;
};

} // namespace corvane
