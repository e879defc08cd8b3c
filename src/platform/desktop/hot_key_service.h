#pragma once

#include "platform/desktop/keys.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

namespace corvane {

/// What a hot key was registered as.
struct HotKeyIdentifier {
    /// Whose hot key it is, a code of four characters.
    std::uint32_t signature = 0;
    std::uint32_t id = 0;

    friend bool operator==(const HotKeyIdentifier &, const HotKeyIdentifier &) = default;
};

/// The desktop's service for keys that reach us whichever program has the keyboard. Main thread
/// only.
class HotKeyService {
public:
    using Handle = int;
    using HandlerRef = int;
    /// Which hot key was pressed; none if that cannot be told.
    using Handler = std::function<void(const std::optional<HotKeyIdentifier> &)>;

    /// While one of these lives no hot key reaches us: its keys go to whoever has the keyboard.
    /// Must not outlive the service.
    class Suspension {
    public:
        Suspension() = default;
        Suspension(const Suspension &) = delete;
        Suspension &operator=(const Suspension &) = delete;
        virtual ~Suspension() = default;
    };

    virtual ~HotKeyService() = default;

    /// Calls the handler once for each press, from the event loop; a key that is held repeats
    /// nothing. The handler stays for good. None if there is no service to hear anything from.
    virtual std::optional<HandlerRef> installHandler(Handler onPressed) = 0;

    /// Takes a combination for us alone: a key and modifier bits as shortcuts store them. None if
    /// it is taken, by another program or by a registration of our own, if no keyboard can type it,
    /// or if the user types with it: one without Command, Option and Control, or whose key is
    /// itself a modifier.
    virtual std::optional<Handle> registerHotKey(KeyPosition keyCode, std::uint32_t modifiers,
                                                 const HotKeyIdentifier &identifier)
        = 0;
    /// A handle that is not registered is ignored.
    virtual void unregisterHotKey(Handle handle) = 0;

    /// Registering works meanwhile, and tells what is taken as ever.
    [[nodiscard]] virtual std::unique_ptr<Suspension> suspend() = 0;
};

} // namespace corvane
