#include "e2e/desktop/hands.h"

#include <QThread>

#include <xcb/xtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace corvane::e2e {

namespace {

constexpr double longestStep = 120;

// A pause that waits for no condition: programs merge or ignore events that follow faster than a
// hand can move.
void pause()
{
    constexpr unsigned long milliseconds = 25;
    QThread::msleep(milliseconds);
}

} // namespace

void Hands::fake(uint8_t type, uint8_t detail, QPoint point)
{
    xcb_test_fake_input(m_server.connection(), type, detail, XCB_CURRENT_TIME, m_server.root(),
                        static_cast<int16_t>(point.x()), static_cast<int16_t>(point.y()), 0);
    // The reply comes after the server has handled the event.
    std::free(xcb_get_input_focus_reply(m_server.connection(),
                                        xcb_get_input_focus(m_server.connection()), nullptr));
}

void Hands::moveTo(QPoint point)
{
    fake(XCB_MOTION_NOTIFY, 0, point);
}

void Hands::moveBy(QPoint step)
{
    fake(XCB_MOTION_NOTIFY, 1, step);
}

void Hands::glideTo(QPoint point)
{
    const QPoint from = m_server.pointerPosition();
    const double distance = std::hypot(point.x() - from.x(), point.y() - from.y());
    const int steps = std::max(2, static_cast<int>(std::ceil(distance / longestStep)));
    for (int i = 1; i <= steps; ++i) {
        moveTo(from + (point - from) * (static_cast<double>(i) / steps));
        pause();
    }
    moveTo(point);
}

void Hands::press(uint8_t button)
{
    fake(XCB_BUTTON_PRESS, button);
}

void Hands::release(uint8_t button)
{
    fake(XCB_BUTTON_RELEASE, button);
}

void Hands::click(QPoint point, uint8_t button)
{
    glideTo(point);
    press(button);
    pause();
    release(button);
}

void Hands::doubleClick(QPoint point)
{
    click(point);
    press();
    release();
}

void Hands::beginDrag(QPoint from, QPoint towards)
{
    glideTo(from);
    press();
    pause();
    const QPoint way = towards - from;
    const double length = std::max(1.0, std::hypot(way.x(), way.y()));
    // Beyond the drag thresholds of all toolkits (4 to 10 pixels).
    for (const double distance : {3.0, 9.0, 16.0, 24.0, 32.0}) {
        moveTo(from + way * (distance / length));
        pause();
    }
}

void Hands::aim(QPoint point)
{
    for (const QPoint off :
         {QPoint(-3, 0), QPoint(2, 1), QPoint(-1, 0), QPoint(1, -1), QPoint(0, 0)}) {
        moveTo(point + off);
        pause();
    }
}

uint8_t Hands::keyCode(uint32_t symbol)
{
    const xcb_setup_t *setup = xcb_get_setup(m_server.connection());
    const auto count = static_cast<uint8_t>(setup->max_keycode - setup->min_keycode + 1);
    xcb_get_keyboard_mapping_reply_t *mapping = xcb_get_keyboard_mapping_reply(
        m_server.connection(),
        xcb_get_keyboard_mapping(m_server.connection(), setup->min_keycode, count), nullptr);
    if (mapping == nullptr)
        return 0;
    const xcb_keysym_t *symbols = xcb_get_keyboard_mapping_keysyms(mapping);
    const size_t width = mapping->keysyms_per_keycode;
    uint8_t code = 0;
    for (size_t i = 0; i < count && code == 0; ++i) {
        if (symbols[i * width] == symbol)
            code = static_cast<uint8_t>(setup->min_keycode + i);
    }
    std::free(mapping);
    return code;
}

void Hands::keyDown(uint32_t symbol)
{
    fake(XCB_KEY_PRESS, keyCode(symbol));
}

void Hands::keyUp(uint32_t symbol)
{
    fake(XCB_KEY_RELEASE, keyCode(symbol));
}

void Hands::keyDownAt(xcb_keycode_t place)
{
    fake(XCB_KEY_PRESS, place);
}

void Hands::keyUpAt(xcb_keycode_t place)
{
    fake(XCB_KEY_RELEASE, place);
}

void Hands::key(uint32_t symbol, std::initializer_list<uint32_t> modifiers)
{
    for (const uint32_t modifier : modifiers)
        keyDown(modifier);
    keyDown(symbol);
    keyUp(symbol);
    for (const uint32_t modifier : modifiers)
        keyUp(modifier);
}

void Hands::turn(Wheel direction, int notches)
{
    for (int i = 0; i < notches; ++i) {
        press(static_cast<uint8_t>(direction));
        release(static_cast<uint8_t>(direction));
        pause();
    }
}

} // namespace corvane::e2e
