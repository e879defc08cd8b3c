#include "platform/qt/desktop/qt_keyboard.h"

#include <QGuiApplication>

namespace corvane {

Modifiers modifiersFrom(Qt::KeyboardModifiers modifiers)
{
    Modifiers result;
    result.setFlag(Modifier::Shift, modifiers.testFlag(Qt::ShiftModifier));
    result.setFlag(Modifier::Control, modifiers.testFlag(Qt::ControlModifier));
    result.setFlag(Modifier::Option, modifiers.testFlag(Qt::AltModifier));
    result.setFlag(Modifier::Command, (modifiers & (Qt::ControlModifier | Qt::MetaModifier)) != 0);
    return result;
}

Modifiers QtKeyboard::currentModifiers() const
{
    return modifiersFrom(QGuiApplication::queryKeyboardModifiers());
}

Modifiers QtLastModifiers::currentModifiers() const
{
    return modifiersFrom(QGuiApplication::keyboardModifiers());
}

} // namespace corvane
