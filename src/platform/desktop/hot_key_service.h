#pragma once

#include "platform/base/subscription.h"
#include "platform/desktop/keys.h"
#include "platform/desktop/shortcut_outcome.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

namespace corvane {

/// The name under which a hot key was registered.
struct HotKeyIdentifier {
    /// The program that registered it, as a code of four characters.
    std::uint32_t signature = 0;
    std::uint32_t id = 0;

    friend bool operator==(const HotKeyIdentifier &, const HotKeyIdentifier &) = default;
};

/// Registers keys that reach us whichever program has the keyboard. Main thread only.
class HotKeyService {
public:
    using HandlerRef = int;
    /// Gets the hot key that was pressed; none if that cannot be told.
    using Handler = std::function<void(const std::optional<HotKeyIdentifier> &)>;
    using OutcomeObserver = std::function<void(const ShortcutOutcome &)>;

    struct Registration {
        /// Pending if the desktop answers later.
        ShortcutOutcome outcome;
        /// The combination is released when it ends. Must not outlive the service.
        Subscription subscription;
    };

    /// While one of these exists no hot key reaches us; the keys go to the program that has the
    /// keyboard. Must not outlive the service.
    class Suspension {
    public:
        Suspension() = default;
        Suspension(const Suspension &) = delete;
        Suspension &operator=(const Suspension &) = delete;
        virtual ~Suspension() = default;
    };

    virtual ~HotKeyService() = default;

    /// From now on calls the handler once for each press, from the event loop; repeats of a held
    /// key are not reported. Handlers cannot be removed. None if the service is not available.
    virtual std::optional<HandlerRef> installHandler(Handler onPressed) = 0;

    /// Registers a combination of a key and modifier bits as shortcuts store them. Refused if
    /// another program or another registration of ours has it, if no keyboard can type it, if its
    /// key is itself a modifier, or if it types a character.
    ///
    /// The observer is called each time the outcome changes after this has returned, until the
    /// subscription ends.
    [[nodiscard]] virtual Registration registerHotKey(KeyPosition keyCode, std::uint32_t modifiers,
                                                      const HotKeyIdentifier &identifier,
                                                      OutcomeObserver onOutcome)
        = 0;

    /// What has become of a hot key for which no combination is stored: unset, except where a
    /// desktop leaves hot keys to the user.
    virtual ShortcutOutcome outcomeWithoutKeys(const HotKeyIdentifier & /*identifier*/) const
    {
        return {};
    }

    /// Registering still works during a suspension, and still fails for combinations that are in
    /// use.
    [[nodiscard]] virtual std::unique_ptr<Suspension> suspend() = 0;
};

} // namespace corvane
