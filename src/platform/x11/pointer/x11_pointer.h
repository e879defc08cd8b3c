#pragma once

#include "platform/desktop/screens.h"
#include "platform/reports/pointer.h"
#include "platform/x11/base/x11_connection.h"

#include <QPoint>

#include <vector>

namespace corvane {

/// The pointer's place, exact to the pixel, asked of the server. Qt rounds it to whole points;
/// where a point is several pixels the last pixels of a screen would be outside it. Both references
/// must outlive it.
class X11Pointer : public Pointer {
public:
    X11Pointer(X11Connection &connection, const Screens &screens);

    std::optional<QPointF> location() const override;

    /// The middle of a pixel in global points, inside the screen that shows it. A pixel that no
    /// screen shows is converted relative to the first screen; none without a screen.
    static std::optional<QPointF> locationOf(QPoint pixel,
                                             const std::vector<ScreenPointer> &screens);

private:
    X11Connection &m_connection;
    const Screens &m_screens;
};

} // namespace corvane
