#include "platform/freedesktop/shortcuts/action_shortcuts.h"

#include <utility>

namespace corvane {

ActionShortcuts::ActionShortcuts(std::vector<DesktopAction> actions,
                                 key_notation::Settings settings, KeyNaming naming)
    : m_actions(std::move(actions))
    , m_settings(settings)
    , m_naming(std::move(naming))
{
}

HotKeyService::Registration ActionShortcuts::registerHotKey(KeyPosition keyCode,
                                                            std::uint32_t modifiers,
                                                            const HotKeyIdentifier &identifier,
                                                            OutcomeObserver /*onOutcome*/)
{
    const DesktopAction *const action = actionWith(identifier.id, m_actions);
    if (!action)
        return {ShortcutOutcome::refused(), {}};
    const QString line
        = key_notation::settingsLine(m_settings, {keyCode, modifiers}, action->command, m_naming);
    // Active, as is what every other service registers; nothing is to be taken back.
    return {ShortcutOutcome::setInDesktop(action->command, line), Subscription([] {})};
}

ShortcutOutcome ActionShortcuts::outcomeWithoutKeys(const HotKeyIdentifier &identifier) const
{
    const DesktopAction *const action = actionWith(identifier.id, m_actions);
    return action ? ShortcutOutcome::setInDesktop(action->command) : ShortcutOutcome();
}

} // namespace corvane
