#pragma once

#include "platform/preview/preview_content.h"

#include <QPointF>
#include <QRectF>
#include <QSizeF>

/// Sizes of the preview's window and places inside it. In points, y downward.
namespace corvane::preview_geometry {

/// The largest part of the screen's available width and height that a window takes.
inline constexpr double largestPart = 0.8;
/// The smallest window, and the window for a file without a preview.
inline constexpr QSize smallestWindow{360, 200};
inline constexpr QSize detailsWindow{480, 208};
/// The height of the line below the content.
inline constexpr int barHeight = 40;
/// Around and between pages.
inline constexpr int pageMargin = 16;

/// The measures of a text's font that its window's size depends on.
struct TextMetrics {
    int lineHeight = 1;
    /// The width of an average character; of every character in a monospaced font.
    int columnWidth = 1;
};

/// The window's size for a content, on a screen with `available` points of room and `scale` pixels
/// per point. A picture is shown with its own pixels if they fit. For code it is as wide as its
/// first lines, up to 100 columns.
QSize windowSize(const PreviewContent &content, QSize available, double scale,
                 const TextMetrics &metrics);

/// What a picture may take of the screen, in points; a larger one is scaled into it.
QSize pictureRoom(QSize available);

/// A rectangle of that size in the middle of `available`.
QRect centred(QSize size, const QRect &available);

/// Rectangles of pages one below the other, centred, so that the widest page fills the room's
/// width.
QList<QRectF> pageRects(const QList<QSize> &sizes, double roomWidth);

/// The place of a picture in a view: fitted, or zoomed and moved.
class PictureZoom {
public:
    /// `natural` is the size, in points, in which each pixel of the picture is one of the screen's.
    /// With `growsToFit`, for vector graphics, fitting may enlarge it.
    void setPicture(QSizeF natural, bool growsToFit);
    /// Sets the view's size, in points. A fitted picture stays fitted; another keeps its scale and
    /// its middle.
    void setView(QSizeF view);

    bool isFitted() const { return m_isFitted; }
    /// The scale relative to the natural size.
    double scale() const { return m_isFitted ? fittedScale() : m_scale; }
    /// Where the picture is drawn.
    QRectF rect() const;
    /// The pixels that it covers there, with `scale` of them per point. For a picture that was
    /// fitted into what its room has of them, these or one more or less each way.
    QSize pixels(double scale) const;

    void fit();
    /// Changes the scale by a factor; the point of the picture under `anchor` stays there. The
    /// scale stays between the fitted one and 16; a picture that comes down to the fitted scale is
    /// fitted again.
    void zoom(double factor, QPointF anchor);
    /// Sets scale 1, at which one pixel of the picture is one of the screen; the point under
    /// `anchor` stays there.
    void actualSize(QPointF anchor);
    void moveBy(QPointF delta);

private:
    double fittedScale() const;
    void keepInside();

    QSizeF m_natural;
    QSizeF m_view;
    bool m_growsToFit = false;
    bool m_isFitted = true;
    double m_scale = 1;
    /// The picture's middle relative to the view's.
    QPointF m_offset;
};

} // namespace corvane::preview_geometry
