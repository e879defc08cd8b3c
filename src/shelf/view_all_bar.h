#pragma once

#include "platform/desktop/screens.h"

#include <QRectF>

#include <functional>

namespace corvane {

/// What the shelf's controller tells the view-all bar, which shows every item below the shelf.
class ViewAllBar {
public:
    virtual ~ViewAllBar() = default;

    /// To be called on every change: `pillFrame` is the shelf's frame on `screen`, in global
    /// points; an empty rectangle and null while the shelf is closed. `scale` is how much larger
    /// than usual the shelf is, and the bar is to be (`PanelPlacement::scale`).
    virtual void render(const QRectF &pillFrame, const ScreenPointer &screen, double scale) = 0;
    virtual bool isShown() const = 0;
    /// To be called after the theme has changed, and before `render`.
    virtual void themeChanged() = 0;
    /// The user opens or closes the shelf by a hot key or a menu, so keys are meant for the bar if
    /// it opens, too.
    virtual void shelfIsToggledByHand() = 0;
    /// Something is being dragged anywhere, also where the store is not told of it, or no more. A
    /// bar that opens meanwhile leaves the keyboard where it is: the drag's source may give up when
    /// it loses it.
    virtual void dragChanged(bool isGoingOn) = 0;
    /// The user wants the clipboard on the shelf while the bar has the keyboard.
    std::function<void()> onPaste;
    /// The user has pressed the shelf; if the bar is shown, it takes the keyboard back.
    virtual void shelfWasPressed() = 0;
};

} // namespace corvane
