#include "app/preferences/shortcut_row.h"

#include "app/look/action_button.h"
#include "app/preferences/clear_button.h"
#include "app/preferences/shortcut_recorder_view.h"
#include "core/display_text.h"
#include "core/message.h"

#include <QClipboard>
#include <QGuiApplication>

namespace corvane {

namespace {

constexpr QSize recorderSize{148, 26};
constexpr double copyTextSize = 12;
constexpr QSize copySize{64, 26};

} // namespace

ShortcutRow::ShortcutRow(const QString &title, const QString &usualDetail, const Context &context,
                         const WindowLook &look)
    : ShortcutRow(title, usualDetail, context,
                  new ShortcutRecorderView(context.keyMonitors, context.hotKeys, context.announce),
                  new ClearButton(look), new ActionButton(tr("Copy"), copyTextSize, copySize, look),
                  look)
{
}

ShortcutRow::ShortcutRow(const QString &title, const QString &usualDetail, const Context &context,
                         ShortcutRecorderView *recorder, ClearButton *clear, ActionButton *copy,
                         const WindowLook &look)
    : SettingRow(title, usualDetail, {recorder, clear, copy}, look)
    , m_usualDetail(usualDetail)
    , m_announce(context.announce)
    , m_recorder(recorder)
    , m_clear(clear)
    , m_copy(copy)
{
    m_recorder->setFixedSize(look.length(recorderSize));
    m_recorder->setAccessibleName(title);
    m_recorder->setAccessibleDescription(usualDetail);
    // The buttons of several rows differ by this alone.
    m_clear->setAccessibleName(title + u": " + m_clear->toolTip());
    m_clear->setAccessibleDescription(usualDetail);
    m_recorder->onChange = [this](const Shortcut &shortcut) { change(shortcut); };
    connect(m_clear, &QPushButton::clicked, this, [this] { change(std::nullopt); });
    m_copy->setAccessibleName(title + u": " + m_copy->text());
    m_copy->setAccessibleDescription(usualDetail);
    m_copy->hide();
    connect(m_copy, &ActionButton::clicked, this, [this] {
        QGuiApplication::clipboard()->setText(m_copied);
        m_announce(Message{Message::Kind::TextCopied}.text());
    });
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

QString ShortcutRow::detailFor(const ShortcutOutcome &outcome) const
{
    // The desktop's words are a stranger's.
    const QString text = displayText(outcome.text);
    switch (outcome.kind) {
    case ShortcutOutcome::Kind::Refused:
        return outcome.why == ShortcutRefusal::TypesCharacter
            ? tr("That combination types a character. Record one with ⌘, ⌥ or ⌃.")
            : tr("Another app already uses that combination.");
    case ShortcutOutcome::Kind::Pending:
        return tr("Your desktop has not answered yet.");
    case ShortcutOutcome::Kind::SetInDesktop:
        return outcome.settingsLine.isEmpty()
            ? tr("Bind a key to this command in your desktop's settings: %1").arg(text)
            : tr("Add this line to your desktop's settings: %1")
                  .arg(displayText(outcome.settingsLine));
    case ShortcutOutcome::Kind::Bound:
        return text.isEmpty() ? m_usualDetail : tr("Your desktop has bound it to %1.").arg(text);
    case ShortcutOutcome::Kind::Unset:
        break;
    }
    return m_usualDetail;
}

void ShortcutRow::setOutcome(const ShortcutOutcome &outcome)
{
    const QString text = detailFor(outcome);
    m_recorder->setConflict(outcome.isRefused());
    for (QWidget *control : QList<QWidget *>{m_recorder, m_clear, m_copy})
        control->setAccessibleDescription(text);
    // The keyboard stays on the field, whose description is not said again.
    const bool isNews = outcome.isRefused() && (text != detail() || m_isNew);
    setDetail(text);
    if (isNews && isVisible()) {
        m_isNew = false;
        m_announce(text);
    }
    const bool isCommand = outcome.kind == ShortcutOutcome::Kind::SetInDesktop;
    const QString &line = outcome.settingsLine;
    m_copied = isCommand ? (line.isEmpty() ? outcome.text : line) : QString();
    m_copy->setVisible(isCommand);
    findWhatIsThere();
}

void ShortcutRow::findWhatIsThere()
{
    setHasControls(!m_recorder->isHidden() || !m_copy->isHidden());
}

void ShortcutRow::setRecordable(bool recordable)
{
    m_recorder->setVisible(recordable);
    m_clear->setVisible(recordable);
    findWhatIsThere();
}

void ShortcutRow::change(const std::optional<Shortcut> &shortcut)
{
    setShortcut(shortcut);
    m_isNew = shortcut.has_value();
    if (onChange)
        onChange(shortcut);
}

} // namespace corvane
