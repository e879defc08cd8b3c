#pragma once

#include <QRect>
#include <QRectF>
#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace corvane {

/// In points: how far windows should stay away from a screen's edges, for example for a camera
/// housing.
struct EdgeInsets {
    double top = 0;
    double left = 0;
    double bottom = 0;
    double right = 0;
};

/// One attached display. There is one object for each display as long as it is attached; its values
/// may change meanwhile.
struct Screen {
    /// In global points, origin at the bottom left of the primary display.
    QRectF frame;
    /// The part of it that docks and panels leave free.
    QRectF availableFrame;
    /// In pixels as the window system counts them, y downward; a fractional scale may leave its
    /// size one pixel off. For back ends.
    QRect nativeFrame;
    /// The window system's name for it: mirrored displays stand in the same place. May be empty.
    /// For back ends.
    QString name;
    /// Pixels per point.
    double backingScaleFactor = 1;
    /// Frames per second.
    double refreshRate = 60;
    EdgeInsets safeAreaInsets;
    /// The strips left and right of a camera housing, where the display has one.
    std::optional<QRectF> auxiliaryTopLeftArea;
    std::optional<QRectF> auxiliaryTopRightArea;
};

using ScreenPointer = std::shared_ptr<const Screen>;

/// The attached displays. Main thread only.
class Screens {
public:
    virtual ~Screens() = default;

    /// In the system's order; empty when nothing is attached.
    virtual std::vector<ScreenPointer> screens() const = 0;
    /// The display of the active window, else the primary one, else none.
    virtual ScreenPointer mainScreen() const = 0;
    /// Calls back after displays came, went or changed; one call for a burst of changes.
    virtual void observeChanges(std::function<void()> callback) = 0;
};

} // namespace corvane
