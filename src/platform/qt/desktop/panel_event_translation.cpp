#include "platform/qt/desktop/panel_event_translation.h"

#include "platform/desktop/virtual_key_codes.h"
#include "platform/qt/desktop/qt_keyboard.h"

#include <QKeyEvent>
#include <QWheelEvent>

#include <algorithm>
#include <array>

namespace corvane {

namespace {

/// A notch is 120 in Qt and 4 here.
constexpr double anglePerStep = 30;
/// The distance for which touchpads announce a notch is 15 points.
constexpr double anglePerPoint = 8;

struct NamedKey {
    int qtKey;
    std::uint32_t keyCode;
};
constexpr std::array namedKeys = {NamedKey{Qt::Key_Space, key_code::space},
                                  NamedKey{Qt::Key_Backspace, key_code::deleteBackward},
                                  NamedKey{Qt::Key_Escape, key_code::escape},
                                  NamedKey{Qt::Key_Delete, key_code::deleteForward},
                                  NamedKey{Qt::Key_Left, key_code::leftArrow},
                                  NamedKey{Qt::Key_Right, key_code::rightArrow},
                                  NamedKey{Qt::Key_Down, key_code::downArrow},
                                  NamedKey{Qt::Key_Up, 126},
                                  NamedKey{Qt::Key_Return, 36},
                                  NamedKey{Qt::Key_Enter, 76},
                                  NamedKey{Qt::Key_Tab, 48},
                                  NamedKey{Qt::Key_Backtab, 48},
                                  NamedKey{Qt::Key_Home, 115},
                                  NamedKey{Qt::Key_End, 119},
                                  NamedKey{Qt::Key_PageUp, 116},
                                  NamedKey{Qt::Key_PageDown, 121},
                                  NamedKey{Qt::Key_Insert, 114}};

std::uint32_t keyCodeFrom(const QKeyEvent &event)
{
    if (event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z)
        return virtual_key_codes::forLatinLetter(static_cast<char32_t>(event.key()));
    const auto *named = std::ranges::find(namedKeys, event.key(), &NamedKey::qtKey);
    if (named != namedKeys.end())
        return named->keyCode;
    const std::uint32_t scanCode = event.nativeScanCode();
    return scanCode < virtual_key_codes::x11Offset
        ? key_code::unknown
        : virtual_key_codes::fromEvdev(scanCode - virtual_key_codes::x11Offset);
}

/// A vertical wheel counts as horizontal while Shift is held.
int horizontal(QPoint delta, bool isShifted)
{
    return delta.x() != 0 || !isShifted ? delta.x() : delta.y();
}

ScrollEvent::Phase phaseFrom(Qt::ScrollPhase phase)
{
    switch (phase) {
    case Qt::NoScrollPhase:
        return ScrollEvent::Phase::None;
    case Qt::ScrollEnd:
        return ScrollEvent::Phase::Ended;
    case Qt::ScrollBegin:
    case Qt::ScrollUpdate:
    case Qt::ScrollMomentum:
        break;
    }
    return ScrollEvent::Phase::Changed;
}

double pointsOf(const QWheelEvent &event, bool isShifted)
{
    const bool hasPixels = event.phase() != Qt::NoScrollPhase && !event.pixelDelta().isNull();
    return hasPixels ? horizontal(event.pixelDelta(), isShifted)
                     : horizontal(event.angleDelta(), isShifted) / anglePerPoint;
}

} // namespace

KeyEvent keyEventFrom(const QKeyEvent &event)
{
    return {keyCodeFrom(event), modifiersFrom(event.modifiers()), event.isAutoRepeat()};
}

std::optional<ScrollEvent> scrollEventFrom(const QWheelEvent &event, double time,
                                           ScrollDevice device)
{
    const bool isShifted = event.modifiers().testFlag(Qt::ShiftModifier);
    ScrollEvent scroll;
    scroll.phase = phaseFrom(event.phase());
    scroll.hasPreciseDeltas
        = device == ScrollDevice::Touchpad || scroll.phase != ScrollEvent::Phase::None;
    scroll.deltaX = scroll.hasPreciseDeltas
        ? pointsOf(event, isShifted)
        : horizontal(event.angleDelta(), isShifted) / anglePerStep;
    scroll.time = time;
    if (scroll.deltaX == 0 && scroll.phase != ScrollEvent::Phase::Ended)
        return std::nullopt;
    return scroll;
}

} // namespace corvane
