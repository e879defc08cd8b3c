#pragma once

#include <QColor>
#include <QFont>
#include <QPen>
#include <QRect>
#include <QRectF>
#include <QSize>
#include <QString>

class QPainter;
class QPalette;

namespace corvane {

/// Sizes and colours of our windows. Lengths are given for a general font of the usual size; with a
/// larger font everything is scaled up.
class WindowLook {
public:
    /// In points.
    static constexpr double scrollBarWidth = 10;

    /// For the desktop's present general font.
    WindowLook();

    /// For people who need more contrast, groups and controls have visible edges, and secondary
    /// texts are as strong as others; in previews, too. Windows that are shown follow at once.
    enum class Contrast { Usual, More };
    static void setContrast(Contrast contrast);
    static bool hasMoreContrast();

    /// Converts points to device-independent pixels.
    int length(double points) const;
    QSize length(QSize points) const { return {length(points.width()), length(points.height())}; }
    /// The desktop's general font in a size of that many points.
    QFont font(double points, QFont::Weight weight = QFont::Normal) const;

    /// Style sheets: for a scroll bar that shows only its handle, and for a progress bar.
    QString scrollBarStyle() const;
    QString progressBarStyle() const;

    /// Draws the background of a group.
    void drawCard(QPainter &painter, const QPalette &palette, const QRect &rect) const;

    /// The colour of secondary texts.
    static QColor secondary(const QPalette &palette);
    /// The text colour at an opacity, for backgrounds, lines and controls on any palette.
    static QColor tint(const QPalette &palette, double opacity);
    /// The line around a control or a group, which has that opacity unless contrast is wanted.
    static QColor edge(const QPalette &palette, double usualOpacity);
    /// The same for what has no line otherwise.
    static QPen edgeOfContrast(const QPalette &palette);
    /// Where that line, if there is one, lies inside `rect`.
    static QRectF insideEdge(const QRectF &rect);
    static QColor accent(const QPalette &palette);

private:
    double m_scale;
};

} // namespace corvane
