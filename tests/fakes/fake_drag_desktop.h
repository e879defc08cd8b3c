#pragma once

#include "fakes/fake_pointer.h"
#include "platform/base/changing_list.h"
#include "platform/reports/drag_pasteboard.h"
#include "platform/reports/event_monitors.h"
#include "platform/reports/mouse_buttons.h"

#include <cstddef>
#include <optional>
#include <utility>

namespace corvane::test {

/// A desktop with a mouse, for code that watches for drags and clicks. Its functions are what the
/// user does.
class FakeDragDesktop : public DragPasteboard, public EventMonitors, public MouseButtons {
public:
    static constexpr unsigned rightButton = 2;

    qint64 changeCount() const override
    {
        ++changeCountReads;
        return m_changeCount;
    }
    Subscription addGlobalMonitor(Handler handler) override
    {
        return refusesGlobalMonitor ? Subscription() : add(m_global, std::move(handler));
    }
    Subscription addLocalMonitor(Handler handler) override
    {
        return refusesLocalMonitor ? Subscription() : add(m_local, std::move(handler));
    }
    Subscription addGlobalMouseDownMonitor(Handler handler) override
    {
        return refusesGlobalMonitor ? Subscription() : add(m_mouseDown, std::move(handler));
    }
    Subscription addLeftMouseDownMonitor(Handler handler) override
    {
        return refusesGlobalMonitor ? Subscription() : add(m_leftDown, std::move(handler));
    }
    unsigned pressedMouseButtons() const override { return m_pressed; }

    void press(unsigned buttons = MouseButtons::left)
    {
        const bool isLeftNew = (buttons & ~m_pressed & MouseButtons::left) != 0;
        m_pressed |= buttons;
        if (isLeftNew)
            m_leftDown.notify();
    }
    /// A press in another program's window; with no point the desktop does not tell where.
    void pressElsewhere(std::optional<QPointF> point, unsigned buttons = MouseButtons::left)
    {
        pointer.position = point;
        press(buttons);
        m_mouseDown.notify();
    }
    void release(unsigned buttons = MouseButtons::left) { m_pressed &= ~buttons; }
    /// A program starts to drag contents: the drag pasteboard changes.
    void pickUp() { ++m_changeCount; }
    /// The pointer moves over other programs' windows.
    void moveTo(QPointF point) { move(point, m_global); }
    /// The pointer moves in a drag that began in one of our own windows.
    void moveInsideOwnWindow(QPointF point) { move(point, m_local); }

    /// Everything of a drag but the release.
    void startDrag()
    {
        press();
        pickUp();
        moveTo({1, 0});
    }

    std::size_t monitorCount() const { return m_global.count + m_local.count + m_leftDown.count; }
    std::size_t mouseDownMonitorCount() const { return m_mouseDown.count; }

    FakePointer pointer;
    bool refusesGlobalMonitor = false;
    bool refusesLocalMonitor = false;
    int removals = 0;
    mutable int changeCountReads = 0;

private:
    struct Monitors {
        void notify() const
        {
            handlers.forEach([](const Handler &handler) { handler(); });
        }

        ChangingList<Handler> handlers;
        std::size_t count = 0;
    };

    Subscription add(Monitors &monitors, Handler handler)
    {
        ++monitors.count;
        const auto id = monitors.handlers.add(std::move(handler));
        return Subscription(m_lifetime.guard([this, &monitors, id] {
            monitors.handlers.remove(id);
            --monitors.count;
            ++removals;
        }));
    }
    void move(QPointF point, const Monitors &monitors)
    {
        pointer.position = point;
        if ((m_pressed & MouseButtons::left) != 0)
            monitors.notify();
    }

    Monitors m_mouseDown;
    Monitors m_leftDown;
    Monitors m_global;
    Monitors m_local;
    qint64 m_changeCount = 0;
    unsigned m_pressed = 0;
    Lifetime m_lifetime;
};

} // namespace corvane::test
