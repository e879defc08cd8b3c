// Events of the panel's window, passed on to its content.

#include "platform/base/main_queue.h"
#include "platform/desktop/drag_carrier.h"
#include "platform/desktop/keyboard_loan.h"
#include "platform/desktop/pointing_devices.h"
#include "platform/qt/desktop/panel_event_translation.h"
#include "platform/qt/desktop/qt_geometry.h"
#include "platform/qt/desktop/qt_panel_window.h"

#include <QEnterEvent>
#include <QKeyEvent>
#include <QPointingDevice>
#include <QWheelEvent>

namespace corvane {

/// Qt gives a pixel's upper left corner. Converted to its middle, so that pixels along the panel's
/// edges, one of which is the screen's, are inside the panel in both directions of y.
QPointF QtPanelWindow::middleOfPixel(QPointF position) const
{
    const double half = 0.5 / m_canvas->devicePixelRatio();
    return toPanel(position + QPointF(half, half));
}

bool QtPanelWindow::handle(QEvent &event)
{
    if (!m_content)
        return false;
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
        return handleMouse(dynamic_cast<QMouseEvent &>(event));
    case QEvent::Enter: {
        const QPointF position = dynamic_cast<QEnterEvent &>(event).position();
        m_content->mouseEntered({middleOfPixel(position)});
        return true;
    }
    case QEvent::Leave:
        m_content->mouseExited();
        return true;
    case QEvent::Wheel:
        handleWheel(dynamic_cast<QWheelEvent &>(event));
        return true;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        return handleKey(dynamic_cast<QKeyEvent &>(event));
    case QEvent::FocusIn:
        m_accessible.keyboardChanged();
        return false;
    case QEvent::FocusOut:
        m_desktop.keyboard.lost(m_number);
        m_content->keyboardLost();
        m_accessible.keyboardChanged();
        return false;
    default:
        return handleDrag(event);
    }
}

bool QtPanelWindow::handleMouse(QMouseEvent &event)
{
    const MouseEvent mouse{middleOfPixel(event.position())};
    if (event.type() == QEvent::MouseMove) {
        if (event.buttons().testFlag(Qt::LeftButton))
            m_content->mouseDragged(mouse);
        else
            m_content->mouseMoved(mouse);
        return true;
    }
    if (event.button() != Qt::LeftButton)
        return true;
    // Qt sends the second press of a double click as a press and then as a double click.
    if (event.type() == QEvent::MouseButtonRelease) {
        m_content->mouseUp(mouse);
    } else {
        m_desktop.keyboard.pressed();
        m_content->mouseDown(mouse);
        m_desktop.keyboard.pressHandled();
    }
    return true;
}

bool QtPanelWindow::handleKey(QKeyEvent &event)
{
    if (event.type() == QEvent::KeyPress) {
        KeyEvent key = keyEventFrom(event);
        key.isRepeat = m_repeats.isRepeat(event);
        if (!key.isRepeat)
            m_desktop.keyboard.keyPressed(m_number, NativeKey{event.nativeScanCode()},
                                          event.nativeModifiers());
        event.setAccepted(m_content->keyDown(key));
        return true;
    }
    m_repeats.released(event);
    if (!event.isAutoRepeat())
        m_desktop.keyboard.keyReleased(NativeKey{event.nativeScanCode()});
    return false;
}

void QtPanelWindow::handleWheel(QWheelEvent &event)
{
    const auto *device = event.pointingDevice();
    const bool isTouchpad = device && m_desktop.pointingDevices.isTouchpad(device->systemId());
    auto scroll = scrollEventFrom(event, m_queue.now(),
                                  isTouchpad ? ScrollDevice::Touchpad : ScrollDevice::Wheel);
    if (scroll)
        scroll = m_wheelSteps.add(*scroll);
    if (scroll)
        m_content->scrollWheel(*scroll);
}

bool QtPanelWindow::isOwnDrag(const QEvent &event) const
{
    // Qt takes what it did not begin itself for another program's.
    const bool isAboutDrag = event.type() == QEvent::DragEnter || event.type() == QEvent::DragMove
        || event.type() == QEvent::Drop;
    return isAboutDrag && m_desktop.dragCarrier && m_desktop.dragCarrier->isCarrying();
}

bool QtPanelWindow::handleDrag(QEvent &event)
{
    if (isOwnDrag(event)) {
        event.ignore();
        return true;
    }
    switch (event.type()) {
    case QEvent::DragEnter: {
        auto &entering = dynamic_cast<QDragEnterEvent &>(event);
        m_dropTarget.enter(entering, toPanel(entering.position()));
        return true;
    }
    case QEvent::DragMove: {
        auto &moving = dynamic_cast<QDragMoveEvent &>(event);
        m_dropTarget.move(moving, toPanel(moving.position()));
        return true;
    }
    case QEvent::Drop: {
        auto &drop = dynamic_cast<QDropEvent &>(event);
        m_dropTarget.drop(drop, toPanel(drop.position()));
        return true;
    }
    case QEvent::DragLeave:
        m_dropTarget.leave();
        return true;
    default:
        return false;
    }
}

} // namespace corvane
