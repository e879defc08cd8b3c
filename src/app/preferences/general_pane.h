#pragma once

#include "app/look/window_look.h"
#include "app/preferences/preferences_context.h"
#include "input/hot_key_center.h"
#include "platform/base/subscription.h"

#include <QWidget>

class QVBoxLayout;

namespace corvane {

class ActionButton;
class NumberPicker;
class PreferenceSection;
class SettingRow;
class ShortcutRow;
class SwitchButton;

/// Every setting of the user. Each control writes what it shows at once. The settings are read when
/// the pane is made; a shortcut that was refused is tried once more then, and shown to be taken as
/// long as it is. Above the settings stands what the session is not able to do, and beside the
/// automatic checks what they found to be wrong.
class GeneralPane : public QWidget {
    Q_OBJECT

public:
    explicit GeneralPane(PreferencesContext context, QWidget *parent = nullptr);

private:
    QWidget *makeNotice(const QString &text) const;
    QWidget *makeLimits();
    void showAbilities();
    PreferenceSection *makeShelfSection();
    PreferenceSection *makeBehaviourSection();
    PreferenceSection *makeShortcutsSection();
    void shortcutChanged(HotKeyCenter::Binding changed);
    void showOutcomes();
    ShortcutOutcome outcome(HotKeyCenter::Binding binding) const;
    PreferenceSection *makeUpdatesSection();
    /// `reason` is why it is disabled where there is no updater.
    ActionButton *makeCheckButton(Updater *updater, const QString &reason);
    SettingRow *makeSwitchRow(const QString &title, const QString &detail, bool on,
                              void (Settings::*write)(bool));
    static QString inViewDetail(int count);

    PreferencesContext m_context;
    WindowLook m_look;
    ShortcutRow *m_shelfShortcut = nullptr;
    ShortcutRow *m_viewAllShortcut = nullptr;
    Subscription m_outcomes;
    QWidget *m_limits = nullptr;
    Subscription m_abilities;
    Subscription m_notices;
};

} // namespace corvane
