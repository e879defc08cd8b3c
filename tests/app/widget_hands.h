#pragma once

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

namespace corvane::test {

/// Gives a window the keyboard, as a user does who clicks it.
inline bool activate(QWidget &window)
{
    window.activateWindow();
    QCoreApplication::processEvents();
    return window.isActiveWindow();
}

/// Types a key into a window: whatever has the keyboard in it gets it first.
inline void typeKey(QWidget &window, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    QWidget *target = window.focusWidget() ? window.focusWidget() : &window;
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, modifiers);
        QCoreApplication::sendEvent(target, &event);
    }
}

/// Clicks into the middle of a part of a window.
inline void clickInto(QWidget &widget)
{
    const QPointF point = QRectF(widget.rect()).center();
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, point, widget.mapToGlobal(point), Qt::LeftButton,
                          type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(&widget, &event);
    }
}

/// The control of a window that screen readers call by this name.
template<typename Control>
Control *named(QWidget &window, const QString &name)
{
    for (Control *control : window.findChildren<Control *>()) {
        if (control->accessibleName() == name)
            return control;
    }
    return nullptr;
}

/// What is deleted later is deleted now.
inline void deletePending()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace corvane::test
