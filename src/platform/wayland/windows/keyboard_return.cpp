#include "platform/wayland/windows/keyboard_return.h"

#include "platform/base/main_queue.h"
#include "platform/wayland/base/handled_mark.h"
#include "platform/wayland/base/wayland_connection.h"
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
    m_isLeftBehind = nullptr;
    if (!std::exchange(m_isUnderWay, true))
        m_queue.async(m_lifetime.guard([this] { come(); }));
}

void KeyboardReturn::startWhere(std::function<bool()> isLeftBehind)
{
    if (std::exchange(m_isUnderWay, true))
        return;
    m_isLeftBehind = std::move(isLeftBehind);
    // Later than Qt knows of the keyboard what was told until then.
    m_handled = std::make_unique<HandledMark>(
        m_connection.display(), [this] { m_queue.async(m_lifetime.guard([this] { come(); })); });
}

void KeyboardReturn::come()
{
    m_handled.reset();
    if (m_isLeftBehind && !m_isLeftBehind()) {
        m_isUnderWay = false;
        return;
    }
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
