#include "app/welcome/welcome_step.h"

#include <QCoreApplication>
#include <QKeySequence>

namespace corvane::welcome_step {

QString title(WelcomeStep step)
{
    switch (step) {
    case WelcomeStep::DragIn:
        return QCoreApplication::translate("WelcomeStep", "Drag anything onto the notch");
    case WelcomeStep::DragOut:
        return QCoreApplication::translate("WelcomeStep", "Drag it back out when you arrive");
    case WelcomeStep::Keep:
        return QCoreApplication::translate("WelcomeStep", "Hold ⇧ to keep it on the shelf");
    }
    return {};
}

QString body(WelcomeStep step)
{
    switch (step) {
    case WelcomeStep::DragIn:
        return QCoreApplication::translate(
            "WelcomeStep",
            "Start dragging a file, image or link and a shelf slides down from the notch. Drop it "
            "there. It stays put while you switch apps, Spaces, or displays.");
    case WelcomeStep::DragOut:
        return QCoreApplication::translate(
            "WelcomeStep",
            "Move the pointer to the notch and the shelf reappears. Drag the item into whatever "
            "you are working in. Press Space to preview it, or ⌘C to copy its path.");
    case WelcomeStep::Keep:
        return QCoreApplication::translate(
            "WelcomeStep",
            "Normally an item leaves the shelf when you drop it. Hold Shift as you release and it "
            "stays, so you can drop the same thing into several places without collecting it "
            "again.");
    }
    return {};
}

QString keys(WelcomeStep step, const QString &shortcut)
{
    if (step != WelcomeStep::DragOut)
        return {};
    const auto shown
        = [](QKeyCombination key) { return QKeySequence(key).toString(QKeySequence::NativeText); };
    const QString paste = shown(QKeyCombination(Qt::ControlModifier, Qt::Key_V));
    const QString goThrough = shown(Qt::Key_Tab);
    if (shortcut.isEmpty())
        return QCoreApplication::translate(
                   "WelcomeStep",
                   "By keyboard: press the shelf's shortcut, then %1 to paste onto it and %2 to go "
                   "through it.")
            .arg(paste, goThrough);
    return QCoreApplication::translate(
               "WelcomeStep",
               "By keyboard: press %1, then %2 to paste onto the shelf and %3 to go through it.")
        .arg(shortcut, paste, goThrough);
}

} // namespace corvane::welcome_step
