#pragma once

#include "fakes/fake_pointer.h"
#include "platform/desktop/drag_pasteboard.h"
#include "platform/desktop/event_monitors.h"
#include "platform/desktop/mouse_buttons.h"
#include "platform/desktop/outside_clicks.h"

#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace corvane::test {

/// A desktop with a mouse, for code that watches for drags and clicks. Its functions are what the
/// user does.
class FakeDragDesktop : public DragPasteboard,
                        public EventMonitors,
                        public MouseButtons,
                        public OutsideClicks {
public:
    static constexpr unsigned rightButton = 2;

    qint64 changeCount() const override
    {
        ++changeCountReads;
        return m_changeCount;
    }
    std::optional<Handle> addGlobalMonitor(EventMonitors::Handler handler) override
    {
        return refusesGlobalMonitor ? std::nullopt : add(m_global, std::move(handler));
    }
    std::optional<Handle> addLocalMonitor(EventMonitors::Handler handler) override
    {
        return refusesLocalMonitor ? std::nullopt : add(m_local, std::move(handler));
    }
    std::optional<Handle> addGlobalMouseDownMonitor(EventMonitors::Handler handler) override
    {
        return refusesGlobalMonitor ? std::nullopt : add(m_mouseDown, std::move(handler));
    }
    std::optional<Handle> addLeftMouseDownMonitor(EventMonitors::Handler handler) override
    {
        return refusesGlobalMonitor ? std::nullopt : add(m_leftDown, std::move(handler));
    }
    Subscription watch(OutsideClicks::Handler handler) override
    {
        const auto handle = addGlobalMouseDownMonitor(
            [this, handler = std::move(handler)] { handler(pointer.position); });
        if (!handle)
            return {};
        return Subscription([this, handle] { removeMonitor(*handle); });
    }
    void removeMonitor(Handle handle) override
    {
        removed.push_back(handle);
        m_leftDown.erase(handle);
        m_mouseDown.erase(handle);
        m_global.erase(handle);
        m_local.erase(handle);
    }
    unsigned pressedMouseButtons() const override { return m_pressed; }

    void press(unsigned buttons = MouseButtons::left)
    {
        const bool isLeftNew = (buttons & ~m_pressed & MouseButtons::left) != 0;
        m_pressed |= buttons;
        if (isLeftNew)
            notify(m_leftDown);
    }
    /// A press in another program's window; with no point the desktop does not tell where.
    void pressElsewhere(std::optional<QPointF> point, unsigned buttons = MouseButtons::left)
    {
        pointer.position = point;
        press(buttons);
        notify(m_mouseDown);
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

    std::size_t monitorCount() const
    {
        return m_global.size() + m_local.size() + m_leftDown.size();
    }
    std::size_t mouseDownMonitorCount() const { return m_mouseDown.size(); }

    FakePointer pointer;
    bool refusesGlobalMonitor = false;
    bool refusesLocalMonitor = false;
    std::vector<Handle> removed;
    mutable int changeCountReads = 0;

private:
    using Monitors = std::map<Handle, EventMonitors::Handler>;

    std::optional<Handle> add(Monitors &monitors, EventMonitors::Handler handler)
    {
        monitors.emplace(m_nextHandle, std::move(handler));
        return m_nextHandle++;
    }
    void move(QPointF point, const Monitors &monitors)
    {
        pointer.position = point;
        if ((m_pressed & MouseButtons::left) != 0)
            notify(monitors);
    }
    static void notify(const Monitors &monitors)
    {
        // A copy: a handler may remove monitors.
        for (const auto &[handle, handler] : Monitors(monitors))
            handler();
    }

    Monitors m_mouseDown;
    Monitors m_leftDown;
    Monitors m_global;
    Monitors m_local;
    Handle m_nextHandle = 1;
    qint64 m_changeCount = 0;
    unsigned m_pressed = 0;
};

} // namespace corvane::test
