#pragma once

#include "platform/desktop/menu.h"

#include <QColor>
#include <QImage>
#include <QString>

#include <functional>

namespace corvane {

/// The program's place among the small icons of a panel: an icon, a tool tip, and a menu that opens
/// on a click. Main thread only.
class StatusItem {
public:
    /// Draws the icon into a square of that many pixels, in the panel's foreground colour. Asked
    /// whenever a panel wants a size.
    using Icon = std::function<QImage(int side, const QColor &foreground)>;
    /// Gives the menu as it should be now.
    using Menu = std::function<MenuRows()>;

    virtual ~StatusItem() = default;

    /// What was drawn for a shape is kept: the same shape always looks the same. There are to be
    /// few.
    virtual void setIcon(int shape, Icon icon) = 0;
    virtual void setToolTip(const QString &toolTip) = 0;
    /// Asked each time the menu opens.
    virtual void setMenu(Menu menu) = 0;
    /// Tells panels that keep a copy of the menu that theirs is out of date.
    virtual void menuChanged() = 0;
};

} // namespace corvane
