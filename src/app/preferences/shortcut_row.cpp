#include "app/preferences/shortcut_row.h"

#include "app/preferences/clear_button.h"
#include "app/preferences/shortcut_recorder_view.h"

#include <utility>

namespace corvane {

namespace {

constexpr QSize recorderSize{124, 26};

} // namespace

ShortcutRow::ShortcutRow(const QString &title, Details details, KeyMonitors &keyMonitors,
                         HotKeyService &hotKeys, const WindowLook &look)
    : ShortcutRow(title, std::move(details), new ShortcutRecorderView(keyMonitors, hotKeys),
                  new ClearButton(look), look)
{
}

ShortcutRow::ShortcutRow(const QString &title, Details details, ShortcutRecorderView *recorder,
                         ClearButton *clear, const WindowLook &look)
    : SettingRow(title, details.usual, {recorder, clear}, look)
    , m_details(std::move(details))
    , m_recorder(recorder)
    , m_clear(clear)
{
    m_recorder->setFixedSize(look.length(recorderSize));
    m_recorder->setAccessibleName(title);
    m_recorder->setAccessibleDescription(m_details.usual);
    // The signs do not stand on the keys of a PC keyboard.
    m_recorder->setToolTip(tr("⌘ is Super, ⌥ is Alt, ⌃ is Ctrl, ⇧ is Shift"));
    m_clear->setAccessibleDescription(title);
    m_recorder->onChange = [this](const Shortcut &shortcut) { change(shortcut); };
    connect(m_clear, &QPushButton::clicked, this, [this] { change(std::nullopt); });
    setShortcut(std::nullopt);
}

void ShortcutRow::setShortcut(const std::optional<Shortcut> &shortcut)
{
    m_shortcut = shortcut;
    m_recorder->setShortcut(shortcut);
    // The button is about to be disabled, and would hand the focus to any other control.
    if (!shortcut && m_clear->hasFocus())
        m_recorder->setFocus(Qt::OtherFocusReason);
    m_clear->setEnabled(shortcut.has_value());
}

void ShortcutRow::setConflict(bool conflict)
{
    const QString &detail = conflict ? m_details.conflict : m_details.usual;
    m_recorder->setConflict(conflict);
    m_recorder->setAccessibleDescription(detail);
    setDetail(detail);
}

void ShortcutRow::change(const std::optional<Shortcut> &shortcut)
{
    setShortcut(shortcut);
    if (onChange)
        onChange(shortcut);
}

} // namespace corvane
