#pragma once

#include "platform/desktop/keys.h"

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
    using Handle = int;
    using HandlerRef = int;
    /// Gets the hot key that was pressed; none if that cannot be told.
    using Handler = std::function<void(const std::optional<HotKeyIdentifier> &)>;

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

    /// Registers a combination of a key and modifier bits as shortcuts store them. None if another
    /// program or another registration of ours has it, if no keyboard can type it, or if the user
    /// types with it: without Command, Option and Control, or with a key that is itself a modifier.
    virtual std::optional<Handle> registerHotKey(KeyPosition keyCode, std::uint32_t modifiers,
                                                 const HotKeyIdentifier &identifier)
        = 0;
    /// Does nothing for a handle that is not registered.
    virtual void unregisterHotKey(Handle handle) = 0;

    /// Registering still works during a suspension, and still fails for combinations that are in
    /// use.
    [[nodiscard]] virtual std::unique_ptr<Suspension> suspend() = 0;
};

} // namespace corvane
