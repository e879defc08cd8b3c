#pragma once

#include "platform/screens.h"

#include <QRectF>

namespace corvane {

/// The bar below the shelf that shows every item, as the shelf's controller knows it.
class ViewAllBar {
public:
    virtual ~ViewAllBar() = default;

    /// Follows the shelf: `pillFrame` is the shelf's frame on `screen`; an empty rectangle and no
    /// screen while the shelf is closed.
    virtual void render(const QRectF &pillFrame, const ScreenPointer &screen) = 0;
};

} // namespace corvane
