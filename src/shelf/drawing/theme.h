#pragma once

#include "shelf/drawing/motion.h"

#include <QColor>
#include <QFont>

namespace corvane {

/// Colours, fonts and motion of the shelf and the view-all bar: black, and white at different
/// opacities.
struct Theme {
    struct Palette {
        QColor fill = Qt::black;
        QColor hairline = white(0.11);
        QColor primary = white(0.92);
        QColor secondary = white(0.5);
        QColor control = white(0.72);
        QColor controlPlate = white(0.12);
        QColor buttonFill = white(0.1);
        QColor buttonFillHover = white(0.2);
        QColor buttonFillOff = white(0.05);
        QColor divider = white(0.12);
        QColor thumbRing = white(0.16);
        QColor emphasis = white(0.92);
        QColor dropRingActive = white(0.34);
        /// Of items, buttons and the bar; only for more contrast.
        QColor border = Qt::transparent;

        /// For people who need more contrast: what is seen is as white as it can be, and has edges.
        static Palette ofMoreContrast();

        static QColor white(double opacity)
        {
            return QColor::fromRgbF(1, 1, 1, static_cast<float>(opacity));
        }
    };

    struct Typography {
        QFont primary;
        QFont secondary;
        QFont hint;
        QFont tile;
    };

    struct Motion {
        /// A spring with response 0.25 s and damping ratio 0.7: stiffness (2 pi / 0.25)^2, damping
        /// 2 x 0.7 x sqrt(stiffness).
        static constexpr Spring spring() { return {1, 631.6546816697189, 35.18583772020568}; }
        /// How long that spring takes to settle, in seconds.
        static double settlingDuration();
    };

    /// The fonts are `generalFont`, the desktop's general font, in sizes of device-independent
    /// pixels. `logicalDotsPerInch` is the density by which Qt converts font points to pixels.
    Theme(const QFont &generalFont, double logicalDotsPerInch);

    enum class Contrast { Usual, More };
    /// Those who draw with it have to be told.
    void setContrast(Contrast contrast);
    bool hasMoreContrast() const { return palette.border.alpha() > 0; }

    Palette palette;
    Typography typography;
    /// Which way people read. Where that is from right to left, shelf and bar are laid out
    /// mirrored; pictures are not.
    Qt::LayoutDirection direction = Qt::LeftToRight;

    /// How a text of other programs runs, such as a title: as its letters do, or, as described for
    /// people who read from left to right, from left to right.
    Qt::LayoutDirection titleDirection() const
    {
        return direction == Qt::RightToLeft ? Qt::LayoutDirectionAuto : direction;
    }
};

} // namespace corvane
