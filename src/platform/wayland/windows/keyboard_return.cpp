#include "platform/wayland/windows/keyboard_return.h"

#include "platform/base/main_queue.h"
#include "platform/wayland/windows/invisible_window.h"

#include <QGuiApplication>

#include <functional>
#include <utility>

namespace corvane {

/// The window that comes and goes.
class KeyboardReturn::Guest : public InvisibleWindow {
public:
    Guest(WaylandConnection &connection, std::function<void()> onKeyboard)
        : InvisibleWindow(connection,
                          {.screen = QGuiApplication::primaryScreen(),
                           .layer = LayerSurface::Layer::Overlay,
                           .area = {0, 0, 1, 1}},
                          LayerSurface::Keyboard::Always)
        , m_onKeyboard(std::move(onKeyboard))
    {
    }

protected:
    void focusInEvent(QFocusEvent * /*event*/) override { m_onKeyboard(); }

private:
    std::function<void()> m_onKeyboard;
};

KeyboardReturn::KeyboardReturn(WaylandConnection &connection, MainQueue &queue)
    : m_connection(connection)
    , m_queue(queue)
{
}

KeyboardReturn::~KeyboardReturn() = default;

void KeyboardReturn::start()
{
    if (!std::exchange(m_isUnderWay, true))
        m_queue.async(m_lifetime.guard([this] { come(); }));
}

void KeyboardReturn::come()
{
    // Not while it is being told that it has the keyboard.
    m_stay.restart();
    const auto leave = m_stay.guard([this] { go(); });
    m_guest = std::make_unique<Guest>(m_connection, [this, leave] { m_queue.async(leave); });
    m_queue.asyncAfter(patience, leave);
}

void KeyboardReturn::go()
{
    if (m_guest)
        m_guest->takeAway();
    m_guest.reset();
    m_isUnderWay = false;
}

} // namespace corvane
