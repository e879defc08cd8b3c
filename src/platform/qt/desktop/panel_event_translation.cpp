#include "platform/qt/desktop/panel_event_translation.h"

#include "platform/desktop/virtual_key_codes.h"
#include "platform/qt/desktop/qt_keyboard.h"

#include <QKeyEvent>
#include <QWheelEvent>

#include <algorithm>
#include <array>

namespace corvane {

namespace {

/// A wheel notch is 120 in Qt's angle units, and 4 in `ScrollEvent`.
constexpr double anglePerStep = 30;
/// Touchpads report a notch (120) for every 15 points of movement.
constexpr double anglePerPoint = 8;

struct NamedKey {
    int qtKey;
    TypedKey key;
};
constexpr std::array namedKeys = {NamedKey{Qt::Key_Space, TypedKey::Space},
                                  NamedKey{Qt::Key_Backspace, TypedKey::DeleteBackward},
                                  NamedKey{Qt::Key_Escape, TypedKey::Escape},
                                  NamedKey{Qt::Key_Delete, TypedKey::DeleteForward},
                                  NamedKey{Qt::Key_Left, TypedKey::LeftArrow},
                                  NamedKey{Qt::Key_Right, TypedKey::RightArrow},
                                  NamedKey{Qt::Key_Down, TypedKey::DownArrow},
                                  NamedKey{Qt::Key_Up, TypedKey::UpArrow},
                                  NamedKey{Qt::Key_Return, TypedKey::Return},
                                  NamedKey{Qt::Key_Enter, TypedKey::KeypadEnter},
                                  NamedKey{Qt::Key_Tab, TypedKey::Tab},
                                  NamedKey{Qt::Key_Backtab, TypedKey::Tab},
                                  NamedKey{Qt::Key_Home, TypedKey::Home},
                                  NamedKey{Qt::Key_End, TypedKey::End},
                                  NamedKey{Qt::Key_PageUp, TypedKey::PageUp},
                                  NamedKey{Qt::Key_PageDown, TypedKey::PageDown},
                                  NamedKey{Qt::Key_Insert, TypedKey::Insert}};

TypedKey typedKeyFrom(const QKeyEvent &event)
{
    if (event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z)
        return virtual_key_codes::forLatinLetter(static_cast<char32_t>(event.key()));
    const auto *named = std::ranges::find(namedKeys, event.key(), &NamedKey::qtKey);
    if (named != namedKeys.end())
        return named->key;
    return typedOnAnsiKeyboard(virtual_key_codes::fromNative(NativeKey{event.nativeScanCode()}));
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
    return {typedKeyFrom(event), modifiersFrom(event.modifiers()), event.isAutoRepeat()};
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
