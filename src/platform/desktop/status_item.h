#pragma once

#include "platform/desktop/menu.h"

#include <QColor>
#include <QImage>
#include <QString>

#include <functional>

namespace corvane {

/// The program's icon in a panel, with a tool tip and a menu that opens on a click. Main thread
/// only.
class StatusItem {
public:
    /// Draws the icon into a square of `side` pixels, in the panel's foreground colour. Called for
    /// each size that a panel needs.
    using Icon = std::function<QImage(int side, const QColor &foreground)>;
    /// Returns the rows that the menu should have now.
    using Menu = std::function<MenuRows()>;

    virtual ~StatusItem() = default;

    /// Sets the icon. Drawings are kept by `shape`, so the same shape must always look the same,
    /// and there should be few.
    virtual void setIcon(int shape, Icon icon) = 0;
    virtual void setToolTip(const QString &toolTip) = 0;
    /// Sets the function that gives the menu's rows; called each time the menu opens.
    virtual void setMenu(Menu menu) = 0;
    /// Tells panels that keep a copy of the menu that theirs is out of date.
    virtual void menuChanged() = 0;
};

} // namespace corvane
