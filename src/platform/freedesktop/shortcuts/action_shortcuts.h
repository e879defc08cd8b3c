#pragma once

#include "platform/desktop/key_name.h"
#include "platform/desktop/optional_hot_keys.h"
#include "platform/freedesktop/shortcuts/desktop_action.h"
#include "platform/freedesktop/shortcuts/key_notation.h"

namespace corvane {

/// Hot keys where no service takes any: the user binds keys to commands, in the desktop's settings.
/// Says which commands, and how that is written where the settings are a file.
class ActionShortcuts : public OptionalHotKeys {
public:
    ActionShortcuts(std::vector<DesktopAction> actions, key_notation::Settings settings,
                    KeyNaming naming);

    Presence presence() const override { return Presence::There; }
    Subscription observePresence(std::function<void()> /*observer*/) override { return {}; }
    ShortcutChoice choice() const override { return ShortcutChoice::InTheDesktop; }

    /// Nothing comes here, and is no failure.
    std::optional<HandlerRef> installHandler(Handler /*onPressed*/) override
    {
        return std::nullopt;
    }
    Registration registerHotKey(KeyPosition keyCode, std::uint32_t modifiers,
                                const HotKeyIdentifier &identifier,
                                OutcomeObserver onOutcome) override;
    ShortcutOutcome outcomeWithoutKeys(const HotKeyIdentifier &identifier) const override;
    std::unique_ptr<Suspension> suspend() override { return std::make_unique<Suspension>(); }

private:
    std::vector<DesktopAction> m_actions;
    key_notation::Settings m_settings;
    KeyNaming m_naming;
};

} // namespace corvane
