#pragma once

#include "platform/base/changing_list.h"
#include "platform/desktop/key_monitors.h"

#include <cstddef>
#include <utility>

namespace corvane::test {

/// A keyboard that types into this program, for code that watches its keys.
class FakeKeyMonitors : public KeyMonitors {
public:
    Subscription addLocalMonitor(Handler handler) override
    {
        ++m_count;
        return Subscription(m_lifetime.guard([this, id = m_monitors.add(std::move(handler))] {
            m_monitors.remove(id);
            --m_count;
        }));
    }

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
    std::size_t monitorCount() const { return m_count; }

private:
    bool send(const Event &event)
    {
        return !m_monitors.anyOf(
            [&](const Handler &handler) { return handler(event) == Disposition::Swallow; });
    }

    ChangingList<Handler> m_monitors;
    std::size_t m_count = 0;
    Lifetime m_lifetime;
};

} // namespace corvane::test
