#pragma once

#include "platform/desktop/key_monitors.h"

#include <map>
#include <utility>

namespace corvane::test {

/// A keyboard that types into this program, for code that watches its keys.
class FakeKeyMonitors : public KeyMonitors {
public:
    Handle addLocalMonitor(Handler handler) override
    {
        m_monitors.emplace(m_nextHandle, std::move(handler));
        return m_nextHandle++;
    }
    void removeMonitor(Handle handle) override { m_monitors.erase(handle); }

    /// Types a key. Like the others returns whether the event went on to the window.
    bool type(KeyPosition keyCode, Modifiers modifiers, const QString &characters = {})
    {
        return send(
            {Event::Kind::KeyDown, keyCode, modifiers, characters, keyCode == KeyPosition::Escape});
    }
    /// A key that types Escape but is not in Escape's position.
    bool typeEscapeElsewhere(KeyPosition keyCode)
    {
        return send({Event::Kind::KeyDown, keyCode, {}, {}, true});
    }
    /// A key in Escape's position that types something else.
    bool typeInEscapesPlace()
    {
        return send({Event::Kind::KeyDown, KeyPosition::Escape, {}, {}, false});
    }
    bool holdModifiers(Modifiers modifiers)
    {
        return send({Event::Kind::ModifiersChanged, KeyPosition::Unknown, modifiers, {}, false});
    }
    std::size_t monitorCount() const { return m_monitors.size(); }

private:
    bool send(const Event &event)
    {
        // A copy: a handler may remove monitors.
        for (const auto &[handle, handler] : std::map(m_monitors)) {
            if (handler(event) == Disposition::Swallow)
                return false;
        }
        return true;
    }

    std::map<Handle, Handler> m_monitors;
    Handle m_nextHandle = 1;
};

} // namespace corvane::test
