#pragma once

#include "app/preferences/setting_row.h"
#include "input/shortcut.h"

#include <functional>
#include <optional>

namespace corvane {

class ClearButton;
class HotKeyService;
class KeyMonitors;
class ShortcutRecorderView;

/// A row for one global shortcut: a field that records it, and a button that clears it.
class ShortcutRow : public SettingRow {
    Q_OBJECT

public:
    /// What the row says under its title.
    struct Details {
        QString usual;
        QString conflict;
    };

    /// `keyMonitors` and `hotKeys` must outlive it.
    ShortcutRow(const QString &title, Details details, KeyMonitors &keyMonitors,
                HotKeyService &hotKeys, const WindowLook &look);

    const std::optional<Shortcut> &shortcut() const { return m_shortcut; }
    void setShortcut(const std::optional<Shortcut> &shortcut);
    /// Whether another program holds the shown combination.
    void setConflict(bool conflict);

    /// The user recorded another one, or cleared it.
    std::function<void(const std::optional<Shortcut> &)> onChange;

private:
    ShortcutRow(const QString &title, Details details, ShortcutRecorderView *recorder,
                ClearButton *clear, const WindowLook &look);
    void change(const std::optional<Shortcut> &shortcut);

    Details m_details;
    ShortcutRecorderView *m_recorder;
    ClearButton *m_clear;
    std::optional<Shortcut> m_shortcut;
};

} // namespace corvane
