#pragma once

class QString;
class QWidget;

namespace corvane {

class MainQueue;

/// From now on screen readers are told that our windows are windows or dialogs, and that plain
/// widgets with a name and others inside are groups. Qt tells them so of its own kinds of widgets
/// only, and calls one that is a plain widget a filler. To be called once.
void installWindowRoles();

/// Has screen readers say a text at once, wherever the keyboard is, as news of the window that the
/// widget is in. Nothing is said of a window that is not shown, or whose role is Qt's own. The
/// queue must outlive the window.
void announceIn(const QWidget &widget, const QString &text, MainQueue &queue);

} // namespace corvane
