#include "platform/x11/keys/x11_hot_keys.h"

#include "platform/base/main_queue.h"
#include "platform/desktop/virtual_key_codes.h"

#include <QtDebug>

#include <algorithm>
#include <utility>
#include <vector>

namespace corvane {

namespace {

/// After which a server that kept silent is asked once more.
constexpr double silentDelay = 1;

} // namespace

class X11HotKeys::Counted : public Suspension {
public:
    explicit Counted(X11HotKeys &keys)
        : m_keys(keys)
    {
        if (m_keys.m_suspensions++ == 0)
            m_keys.ungrabAll();
    }
    ~Counted() override { m_keys.resume(); }

private:
    X11HotKeys &m_keys;
};

X11HotKeys::X11HotKeys(X11Connection &connection, MainQueue &queue)
    : m_connection(connection)
    , m_queue(queue)
    , m_listener(
          connection.addListener([this](const xcb_generic_event_t &event) { handle(event); }))
{
    rereadMapping();
}

X11HotKeys::~X11HotKeys()
{
    ungrabAll();
}

std::optional<HotKeyService::HandlerRef> X11HotKeys::installHandler(Handler onPressed)
{
    if (!m_connection.isConnected())
        return std::nullopt;
    return m_handlers.add(std::move(onPressed));
}

HotKeyService::Registration X11HotKeys::registerHotKey(KeyPosition keyCode, std::uint32_t modifiers,
                                                       const HotKeyIdentifier &identifier,
                                                       OutcomeObserver onOutcome)
{
    if (!X11Modifiers::areMoreThanTyping(modifiers))
        return {ShortcutOutcome::refused(ShortcutRefusal::TypesCharacter), {}};
    const bool isTwin = std::ranges::any_of(m_hotKeys, [&](const auto &other) {
        return other.second.keyCode == keyCode && other.second.modifiers == modifiers;
    });
    HotKey hotKey = {keyCode, modifiers, identifier, std::move(onOutcome), {}, {}};
    const ShortcutOutcome outcome = isTwin ? ShortcutOutcome::refused() : take(hotKey);
    if (outcome.isRefused())
        return {outcome, {}};
    hotKey.told = outcome;
    if (m_suspensions > 0 && hotKey.grabbed) {
        ungrab(*hotKey.grabbed);
        hotKey.grabbed.reset();
    }
    const Handle handle = m_nextHandle++;
    m_hotKeys.emplace(handle, std::move(hotKey));
    return {outcome, Subscription(m_lifetime.guard([this, handle] { unregister(handle); }))};
}

void X11HotKeys::unregister(Handle handle)
{
    const auto found = m_hotKeys.find(handle);
    if (found == m_hotKeys.end())
        return;
    if (found->second.grabbed)
        ungrab(*found->second.grabbed);
    m_hotKeys.erase(found);
}

std::unique_ptr<HotKeyService::Suspension> X11HotKeys::suspend()
{
    return std::make_unique<Counted>(*this);
}

void X11HotKeys::resume()
{
    if (--m_suspensions == 0)
        grabAll();
}

std::optional<X11HotKeys::Combination> X11HotKeys::combinationFor(KeyPosition keyCode,
                                                                  std::uint32_t modifiers) const
{
    const auto native = virtual_key_codes::toNative(keyCode);
    const auto mask = m_mapping.maskFor(modifiers);
    if (!m_connection.isConnected() || !native || !mask)
        return std::nullopt;
    const auto key = static_cast<std::uint32_t>(*native);
    const auto *setup = xcb_get_setup(m_connection.get());
    if (key < setup->min_keycode || key > setup->max_keycode || m_mapping.keys.test(key))
        return std::nullopt;
    return Combination{static_cast<xcb_keycode_t>(key), *mask};
}

bool X11HotKeys::isHeldByOurselves(const Combination &combination) const
{
    return std::ranges::any_of(
        m_hotKeys, [&](const auto &hotKey) { return hotKey.second.grabbed == combination; });
}

ShortcutOutcome X11HotKeys::take(HotKey &hotKey)
{
    // `rereadMapping` comes back to this.
    if (!m_isMappingKnown && m_connection.isConnected())
        return ShortcutOutcome::pending();
    const auto combination = combinationFor(hotKey.keyCode, hotKey.modifiers);
    if (!combination)
        return ShortcutOutcome::refused();
    switch (grab(*combination)) {
    case X11Connection::Outcome::Done:
        hotKey.grabbed = combination;
        return ShortcutOutcome::bound();
    case X11Connection::Outcome::Refused:
        return ShortcutOutcome::refused();
    case X11Connection::Outcome::Unknown:
        grabAgainLater();
        break;
    }
    return ShortcutOutcome::pending();
}

X11Connection::Outcome X11HotKeys::grab(const Combination &combination)
{
    // The server refuses a grab that another program holds, but not one that we hold.
    if (isHeldByOurselves(combination))
        return X11Connection::Outcome::Refused;
    std::vector<xcb_void_cookie_t> requests;
    for (const std::uint16_t locks : m_mapping.lockVariants())
        requests.push_back(
            xcb_grab_key_checked(m_connection.get(), 0, m_connection.root(),
                                 static_cast<std::uint16_t>(combination.modifiers | locks),
                                 combination.key, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
    const auto outcome = m_connection.outcomeOf(requests);
    if (outcome != X11Connection::Outcome::Done)
        ungrab(combination);
    return outcome;
}

void X11HotKeys::ungrab(const Combination &combination)
{
    for (const std::uint16_t locks : m_mapping.lockVariants())
        xcb_ungrab_key(m_connection.get(), combination.key, m_connection.root(),
                       static_cast<std::uint16_t>(combination.modifiers | locks));
    // Sent at once: another program may take the combination as soon as it is told that it is free.
    m_connection.flush();
}

void X11HotKeys::grabAll()
{
    bool isNews = false;
    std::vector<Handle> changed;
    for (auto &[handle, hotKey] : m_hotKeys) {
        if (hotKey.grabbed)
            continue;
        const ShortcutOutcome outcome = take(hotKey);
        if (std::exchange(hotKey.told, outcome) == outcome)
            continue;
        isNews = isNews || outcome.isRefused();
        changed.push_back(handle);
    }
    if (isNews)
        qWarning(
            "[Corvane] A shortcut cannot be taken: another program has it now, or the keyboard "
            "lacks one of its keys.");
    tellOutcomes(changed);
}

void X11HotKeys::tellOutcomes(const std::vector<Handle> &changed) const
{
    for (const Handle handle : changed) {
        // Each may be gone by the time that it is told, and may go then.
        const auto found = m_hotKeys.find(handle);
        if (found == m_hotKeys.end())
            continue;
        const OutcomeObserver onOutcome = found->second.onOutcome;
        const ShortcutOutcome outcome = found->second.told;
        if (onOutcome)
            onOutcome(outcome);
    }
}

void X11HotKeys::grabAgainLater()
{
    // Once for all of them: each attempt that is not answered asks for the next one.
    if (std::exchange(m_willGrabAgain, true))
        return;
    m_queue.asyncAfter(silentDelay, m_lifetime.guard([this] {
        m_willGrabAgain = false;
        if (!m_connection.isAnswering())
            grabAgainLater();
        else if (m_suspensions == 0)
            grabAll();
    }));
}

void X11HotKeys::ungrabAll()
{
    for (auto &[handle, hotKey] : m_hotKeys) {
        if (hotKey.grabbed)
            ungrab(*hotKey.grabbed);
        hotKey.grabbed.reset();
    }
}

void X11HotKeys::handle(const xcb_generic_event_t &event)
{
    // Not masked: the highest bit marks events that another program has sent, which are no key
    // presses.
    const std::uint8_t type = event.response_type;
    if (type == XCB_KEY_PRESS) {
        handlePress(reinterpret_cast<const xcb_key_press_event_t &>(event));
    } else if (type == XCB_KEY_RELEASE) {
        const auto &release = reinterpret_cast<const xcb_key_release_event_t &>(event);
        m_released = {release.detail, release.time};
    } else if (type == XCB_MAPPING_NOTIFY && !m_willReread
               && reinterpret_cast<const xcb_mapping_notify_event_t &>(event).request
                   != XCB_MAPPING_POINTER) {
        // One change of the layout causes many such events.
        m_willReread = true;
        m_queue.async(m_lifetime.guard([this] { rereadMapping(); }));
    }
}

void X11HotKeys::handlePress(const xcb_key_press_event_t &press)
{
    if (m_released == std::pair{press.detail, press.time} || m_suspensions > 0)
        return;
    const auto modifiers = static_cast<std::uint16_t>(press.state & m_mapping.significant());
    const auto found = std::ranges::find_if(m_hotKeys, [&](const auto &hotKey) {
        return hotKey.second.grabbed == Combination{press.detail, modifiers};
    });
    if (found == m_hotKeys.end())
        return;
    const HotKeyIdentifier identifier = found->second.identifier;
    m_handlers.forEach([&](const Handler &handler) { handler(identifier); });
}

void X11HotKeys::rereadLater()
{
    m_willReread = true;
    m_queue.asyncAfter(silentDelay, m_lifetime.guard([this] { rereadMapping(); }));
}

void X11HotKeys::rereadMapping()
{
    m_willReread = false;
    const auto mapping
        = m_connection.isAnswering() ? X11Modifiers::read(m_connection) : std::nullopt;
    if (!mapping && m_connection.isConnected())
        rereadLater();
    if (!mapping || (std::exchange(m_isMappingKnown, true) && *mapping == m_mapping))
        return;
    // With the modifiers' old bits, by which the keys were grabbed.
    ungrabAll();
    m_mapping = *mapping;
    if (m_suspensions == 0)
        grabAll();
}

} // namespace corvane
