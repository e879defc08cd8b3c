#pragma once

#include "platform/base/changing_list.h"
#include "platform/base/lifetime.h"
#include "platform/desktop/hot_key_service.h"
#include "platform/x11/base/x11_connection.h"
#include "platform/x11/keys/x11_modifiers.h"

#include <map>
#include <memory>
#include <utility>
#include <vector>

namespace corvane {

class MainQueue;

/// Hot keys as passive grabs on the root window, which work whichever program has the keyboard and
/// also while one drags with the pointer grabbed.
///
/// A grab names a key by its position and modifiers by their bits. So it stays when the layout
/// changes; when the modifiers' bits change all keys are grabbed anew. If a grab is refused then,
/// or after a suspension, that is logged and told to its observer, and tried again at the next such
/// occasion. The outcome is known at once unless the server is silent; then it is pending, and
/// asked for again each second. The connection and the queue must outlive it.
class X11HotKeys : public HotKeyService {
public:
    X11HotKeys(X11Connection &connection, MainQueue &queue);
    ~X11HotKeys() override;
    X11HotKeys(const X11HotKeys &) = delete;
    X11HotKeys &operator=(const X11HotKeys &) = delete;

    std::optional<HandlerRef> installHandler(Handler onPressed) override;
    Registration registerHotKey(KeyPosition keyCode, std::uint32_t modifiers,
                                const HotKeyIdentifier &identifier,
                                OutcomeObserver onOutcome) override;
    std::unique_ptr<Suspension> suspend() override;

private:
    using Handle = int;

    /// A key and modifiers as the server names them.
    struct Combination {
        xcb_keycode_t key = 0;
        std::uint16_t modifiers = 0;

        friend bool operator==(const Combination &, const Combination &) = default;
    };
    struct HotKey {
        KeyPosition keyCode = KeyPosition::Unknown;
        std::uint32_t modifiers = 0;
        HotKeyIdentifier identifier;
        OutcomeObserver onOutcome;
        /// None while it is not grabbed.
        std::optional<Combination> grabbed;
        /// What has become of it, as its observer knows.
        ShortcutOutcome told;
    };
    class Counted;

    void unregister(Handle handle);
    std::optional<Combination> combinationFor(KeyPosition keyCode, std::uint32_t modifiers) const;
    bool isHeldByOurselves(const Combination &combination) const;
    /// Grabs it where the server does not refuse; pending while the server does not answer.
    ShortcutOutcome take(HotKey &hotKey);
    X11Connection::Outcome grab(const Combination &combination);
    void ungrab(const Combination &combination);
    void grabAll();
    void tellOutcomes(const std::vector<Handle> &changed) const;
    void grabAgainLater();
    void ungrabAll();

    void handle(const xcb_generic_event_t &event);
    void handlePress(const xcb_key_press_event_t &press);
    void rereadLater();
    void rereadMapping();
    void resume();

    X11Connection &m_connection;
    MainQueue &m_queue;
    Subscription m_listener;
    X11Modifiers m_mapping;
    /// False until the server has told its modifiers.
    bool m_isMappingKnown = false;
    std::map<Handle, HotKey> m_hotKeys;
    Handle m_nextHandle = 1;
    ChangingList<Handler> m_handlers;
    int m_suspensions = 0;
    bool m_willReread = false;
    bool m_willGrabAgain = false;
    /// Key and time of the latest release. An automatic repeat is a press with the same key and
    /// time as a release that the user did not make.
    std::pair<xcb_keycode_t, xcb_timestamp_t> m_released{0, 0};
    Lifetime m_lifetime;
};

} // namespace corvane
