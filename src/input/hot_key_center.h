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
/// A binding is registered or not; applying a shortcut always passes through not being registered,
/// so that one that is refused leaves the old one dead, too. Main thread only; the references must
/// outlive it.
class HotKeyCenter {
public:
    enum class Binding : std::uint32_t {
        Shelf = 0,
        ViewAll = 1,
    };
    using Handler = std::function<void()>;

    /// "CRVN"
    static constexpr std::uint32_t signature = 0x4352564E;
    static constexpr std::uint32_t idOf(Binding binding)
    {
        return static_cast<std::uint32_t>(binding) + 1;
    }

    HotKeyCenter(HotKeyService &service, MainQueue &queue);
    HotKeyCenter(const HotKeyCenter &) = delete;
    HotKeyCenter &operator=(const HotKeyCenter &) = delete;
    ~HotKeyCenter();

    /// Replaces the binding's registration and its handler; a shortcut of none removes the one and
    /// still replaces the other. False if the combination was refused.
    ///
    /// A press calls the handler later from the main queue, if the binding has one by then.
    bool apply(const std::optional<Shortcut> &shortcut, Binding binding, Handler handler);
    /// Keeps the handler: a press that is on its way arrives.
    void unregister(Binding binding);
    /// Forgets the handlers as well.
    void unregisterAll();

private:
    void installEventHandler();
    void run(std::uint32_t id) const;

    HotKeyService &m_service;
    MainQueue &m_queue;
    std::map<std::uint32_t, HotKeyService::Handle> m_hotKeyRefs;
    std::map<std::uint32_t, Handler> m_handlers;
    /// Installed with the first shortcut, and for good.
    std::optional<HotKeyService::HandlerRef> m_eventHandler;
    Lifetime m_lifetime;
};

} // namespace corvane
