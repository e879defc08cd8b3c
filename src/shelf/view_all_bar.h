#pragma once

#include "platform/desktop/screens.h"

#include <QRectF>

namespace corvane {

/// The bar below the shelf that shows every item, as the shelf's controller knows it.
class ViewAllBar {
public:
    virtual ~ViewAllBar() = default;

    /// Follows the shelf: `pillFrame` is the shelf's frame on `screen`; an empty rectangle and no
    /// screen while the shelf is closed.
    virtual void render(const QRectF &pillFrame, const ScreenPointer &screen) = 0;
    /// The user is opening or closing the shelf by hand: the keys are meant for what opens with it.
    virtual void shelfIsToggledByHand() = 0;
    /// The user has pressed the shelf: while the bar is shown, the keys are still meant for it.
    virtual void shelfWasPressed() = 0;
};

} // namespace corvane
