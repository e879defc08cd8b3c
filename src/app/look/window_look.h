#pragma once

#include <QColor>
#include <QFont>
#include <QRect>
#include <QSize>
#include <QString>

class QPainter;
class QPalette;

namespace corvane {

/// Sizes and colours of our windows. Lengths are written as they are on a desktop whose general
/// font is of the usual size; where the user chose a larger one, everything grows with it.
class WindowLook {
public:
    /// In points.
    static constexpr double scrollBarWidth = 10;

    /// Of the desktop's general font as it is now.
    WindowLook();

    /// Points to device-independent pixels.
    int length(double points) const;
    QSize length(QSize points) const { return {length(points.width()), length(points.height())}; }
    /// The desktop's general font at that many points.
    QFont font(double points, QFont::Weight weight = QFont::Normal) const;

    /// Style sheets for a scroll bar, a thumb and nothing else, and for a progress bar.
    QString scrollBarStyle() const;
    QString progressBarStyle() const;

    /// The ground of things that belong together.
    void drawCard(QPainter &painter, const QPalette &palette, const QRect &rect) const;

    /// What is there to be read after the rest.
    static QColor secondary(const QPalette &palette);
    /// The colour of texts at an opacity: grounds, lines and controls on any palette.
    static QColor tint(const QPalette &palette, double opacity);
    static QColor accent(const QPalette &palette);

private:
    double m_scale;
};

} // namespace corvane
