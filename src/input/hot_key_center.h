#pragma once

#include "input/shortcut.h"
#include "platform/base/lifetime.h"
#include "platform/desktop/hot_key_service.h"

#include <cstdint>
#include <functional>
#include <map>
#include <optional>

namespace corvane {

class MainQueue;

/// Owns the two global hot keys and turns their presses into calls on the main thread.
///
/// Applying a shortcut removes the old registration first, so after a refused one the binding has
/// none. Main thread only; the references must outlive it.
class HotKeyCenter {
public:
    enum class Binding : std::uint32_t {
        Shelf = 0,
        ViewAll = 1,
    };
    using Handler = std::function<void()>;

    /// Identifies our hot keys to the service: "CRVN" as four bytes.
    static constexpr std::uint32_t signature = 0x4352564E;
    static constexpr std::uint32_t idOf(Binding binding)
    {
        return static_cast<std::uint32_t>(binding) + 1;
    }

    HotKeyCenter(HotKeyService &service, MainQueue &queue);
    HotKeyCenter(const HotKeyCenter &) = delete;
    HotKeyCenter &operator=(const HotKeyCenter &) = delete;
    ~HotKeyCenter();

    /// Replaces the binding's registration and handler. With no shortcut only the registration is
    /// removed; the handler is still replaced. False if the combination was refused at once.
    ///
    /// A press calls the handler that the binding has when the main queue gets to it.
    bool apply(const std::optional<Shortcut> &shortcut, Binding binding, Handler handler);
    /// What has become of the shortcut that was applied last.
    ShortcutOutcome outcome(Binding binding) const;
    /// Called when the outcome has changed after `apply` returned. May be empty.
    std::function<void(Binding)> onOutcomeChanged;
    /// Keeps the handler, so that a press that is already on its way is still handled.
    void unregister(Binding binding);
    /// Removes both registrations and both handlers.
    void unregisterAll();

private:
    void installEventHandler();
    void run(std::uint32_t id) const;

    HotKeyService &m_service;
    MainQueue &m_queue;
    std::map<std::uint32_t, Subscription> m_hotKeyRefs;
    std::map<std::uint32_t, ShortcutOutcome> m_outcomes;
    std::map<std::uint32_t, Handler> m_handlers;
    /// Installed with the first shortcut, and never removed.
    std::optional<HotKeyService::HandlerRef> m_eventHandler;
    Lifetime m_lifetime;
};

} // namespace corvane
