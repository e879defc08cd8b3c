#pragma once

#include "platform/preview/preview_content.h"

#include <QPointF>
#include <QRectF>
#include <QSizeF>

/// How large a preview is and where its picture lies. All in points, y downward.
namespace corvane::preview_geometry {

/// Of the screen's room, in either direction.
inline constexpr double largestPart = 0.8;
inline constexpr QSize smallestWindow{360, 200};
inline constexpr QSize detailsWindow{480, 208};
/// The line below the content.
inline constexpr int barHeight = 40;
/// Around and between pages.
inline constexpr int pageMargin = 16;

/// Of the font that a text is shown in, as far as its window depends on it.
struct TextMetrics {
    int lineHeight = 1;
    /// Of an average character, or of every one.
    int columnWidth = 1;
};

/// The window for what is shown, inside a screen that has `available` room and `scale` pixels per
/// point. A picture gets its own pixels where they fit, and code the columns that it begins with,
/// up to a hundred.
QSize windowSize(const PreviewContent &content, QSize available, double scale,
                 const TextMetrics &metrics);

/// A window of that size in the middle of the room.
QRect centred(QSize size, const QRect &available);

/// Page rectangles one below the other, as wide as the room lets the widest be, centred.
QList<QRectF> pageRects(const QList<QSize> &sizes, double roomWidth);

/// A picture in a view: fitted or at a scale of its own, and moved about.
class PictureZoom {
public:
    /// `natural` is the picture's size in points when each of its pixels is one of the screen's.
    /// A drawing has no pixels and grows with the view.
    void setPicture(QSizeF natural, bool growsToFit);
    /// A fitted picture stays fitted; another keeps its scale and its middle.
    void setView(QSizeF view);

    bool isFitted() const { return m_isFitted; }
    /// Points of the view for one of the natural size.
    double scale() const { return m_isFitted ? fittedScale() : m_scale; }
    /// Where the picture is drawn.
    QRectF rect() const;

    void fit();
    /// By a factor, with the point of the picture under `anchor` staying there. Between the fitted
    /// scale, or a tenth where that is more, and 16.
    void zoom(double factor, QPointF anchor);
    /// One pixel of the picture is one of the screen.
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
    /// The picture's middle, from the view's.
    QPointF m_offset;
};

} // namespace corvane::preview_geometry
