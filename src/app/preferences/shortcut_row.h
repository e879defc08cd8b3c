#pragma once

#include "app/preferences/setting_row.h"
#include "input/shortcut.h"
#include "platform/desktop/shortcut_outcome.h"

#include <functional>
#include <optional>

namespace corvane {

class ActionButton;
class ClearButton;
class HotKeyService;
class KeyMonitors;
class ShortcutRecorderView;

/// A row for one global shortcut: a field that records it, a button that clears it, and what has
/// become of it.
class ShortcutRow : public SettingRow {
    Q_OBJECT

public:
    /// What its field listens to. Everything must outlive the row.
    struct Context {
        KeyMonitors &keyMonitors;
        HotKeyService &hotKeys;
        /// Has screen readers say a text at once.
        std::function<void(const QString &text)> announce;
    };

    /// `usualDetail` stands under the title as long as there is nothing else to say.
    ShortcutRow(const QString &title, const QString &usualDetail, const Context &context,
                const WindowLook &look);

    const std::optional<Shortcut> &shortcut() const { return m_shortcut; }
    void setShortcut(const std::optional<Shortcut> &shortcut);
    /// What has become of the shown combination. Screen readers say that one was refused. Where the
    /// user binds keys to a command, it can be copied.
    void setOutcome(const ShortcutOutcome &outcome);
    /// Whether it is chosen here; otherwise there is nothing to click.
    void setRecordable(bool recordable);

    /// The user recorded another one, or cleared it.
    std::function<void(const std::optional<Shortcut> &)> onChange;

private:
    ShortcutRow(const QString &title, const QString &usualDetail, const Context &context,
                ShortcutRecorderView *recorder, ClearButton *clear, ActionButton *copy,
                const WindowLook &look);
    QString detailFor(const ShortcutOutcome &outcome) const;
    void change(const std::optional<Shortcut> &shortcut);
    void findWhatIsThere();

    QString m_usualDetail;
    std::function<void(const QString &)> m_announce;
    ShortcutRecorderView *m_recorder;
    ClearButton *m_clear;
    ActionButton *m_copy;
    /// Empty where there is nothing to copy.
    QString m_copied;
    std::optional<Shortcut> m_shortcut;
    /// The user has recorded it and has not been told of a refusal yet.
    bool m_isNew = false;
};

} // namespace corvane
