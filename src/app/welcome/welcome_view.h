#pragma once

#include "app/look/window_look.h"
#include "app/welcome/welcome_step.h"
#include "platform/base/subscription.h"

#include <QWidget>

#include <functional>

namespace corvane {

class ActionButton;
class IllustrationView;
class MotionPreference;
class PageIndicator;
class SessionAbilities;
class Settings;
class ShortcutBinder;
class TextLabel;

/// The guide: a picture, a title and a text for each step, and buttons to go through them. Where
/// the session is not able to do what a step describes, the step says that, too. Screen readers say
/// a step as people turn to it. What `context` refers to must outlive it.
class WelcomeView : public QWidget {
    Q_OBJECT

public:
    struct Context {
        const MotionPreference &motion;
        SessionAbilities &abilities;
        const Settings &settings;
        ShortcutBinder &shortcuts;
        /// Has screen readers say a text at once, wherever the keyboard is.
        std::function<void(const QString &text)> announce;
    };

    WelcomeView(const Context &context, std::function<void()> onClose, QWidget *parent = nullptr);

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
    void turnTo(int step);
    QString spoken() const;
    QString limitOf(WelcomeStep step) const;
    QString shortcutKeys() const;
    bool isLast() const;

    Context m_context;
    std::function<void()> m_onClose;
    WindowLook m_look;
    int m_step = 0;
    IllustrationView *m_illustration;
    TextLabel *m_title;
    TextLabel *m_body;
    TextLabel *m_keys;
    TextLabel *m_limit;
    PageIndicator *m_indicator;
    ActionButton *m_back = nullptr;
    ActionButton *m_forward = nullptr;
    Subscription m_abilityChanges;
    Subscription m_shortcutChanges;
};

} // namespace corvane
