#include "input/hot_key_center.h"

#include "platform/base/main_queue.h"

#include <utility>

namespace corvane {

HotKeyCenter::HotKeyCenter(HotKeyService &service, MainQueue &queue)
    : m_service(service)
    , m_queue(queue)
{
}

HotKeyCenter::~HotKeyCenter()
{
    unregisterAll();
}

bool HotKeyCenter::apply(const std::optional<Shortcut> &shortcut, Binding binding, Handler handler)
{
    unregister(binding);
    const std::uint32_t id = idOf(binding);
    m_handlers[id] = std::move(handler);
    if (!shortcut)
        return true;
    if (!m_eventHandler)
        installEventHandler();
    const auto hotKey
        = m_service.registerHotKey(shortcut->keyCode, shortcut->modifiers, {signature, id});
    if (!hotKey)
        return false;
    m_hotKeyRefs[id] = *hotKey;
    return true;
}

void HotKeyCenter::unregister(Binding binding)
{
    const auto found = m_hotKeyRefs.find(idOf(binding));
    if (found == m_hotKeyRefs.end())
        return;
    m_service.unregisterHotKey(found->second);
    m_hotKeyRefs.erase(found);
}

void HotKeyCenter::unregisterAll()
{
    unregister(Binding::Shelf);
    unregister(Binding::ViewAll);
    m_handlers.clear();
}

void HotKeyCenter::installEventHandler()
{
    m_eventHandler = m_service.installHandler(
        m_lifetime.guard([this](const std::optional<HotKeyIdentifier> &pressed) {
            if (pressed)
                m_queue.async(m_lifetime.guard([this, id = pressed->id] { run(id); }));
        }));
}

void HotKeyCenter::run(std::uint32_t id) const
{
    const auto found = m_handlers.find(id);
    if (found == m_handlers.end())
        return;
    // A copy: the handler may apply another shortcut, which replaces it.
    const Handler handler = found->second;
    if (handler)
        handler();
}

} // namespace corvane
