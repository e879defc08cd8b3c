#pragma once

#include "shelf/drawing/layer.h"

#include <QFont>
#include <QImage>
#include <QString>

namespace corvane {

/// A layer that shows one line of text, cut with an ellipsis where it does not fit. The text is
/// plain, without markup, and passes through `displayText`, which replaces characters that could
/// change the order of what is read.
class TextLayer : public Layer {
public:
    using Layer::Layer;

    QString string() const { return m_string; }
    void setString(const QString &string);
    QFont font() const { return m_font; }
    void setFont(const QFont &font);
    QColor color() const { return m_color; }
    void setColor(const QColor &color);
    Qt::Alignment alignment() const { return m_alignment; }
    void setAlignment(Qt::Alignment alignment);
    Qt::LayoutDirection textDirection() const { return m_direction; }
    /// How a line runs that has letters from right to left: as its first letter does for
    /// `LayoutDirectionAuto`. Others run from left to right, so that the dots and brackets of names
    /// stay at their ends.
    void setTextDirection(Qt::LayoutDirection direction);
    /// Where a line that does not fit is cut; its end unless set.
    Qt::TextElideMode elideMode() const { return m_elideMode; }
    void setElideMode(Qt::TextElideMode mode);

protected:
    void draw(QPainter &painter, QSizeF size, double scale) const override;

private:
    void invalidate();
    QImage rasterized(double width, double height, double scale) const;

    QString m_string;
    QFont m_font;
    QColor m_color = Qt::white;
    Qt::Alignment m_alignment = Qt::AlignLeft;
    Qt::LayoutDirection m_direction = Qt::LeftToRight;
    Qt::TextElideMode m_elideMode = Qt::ElideRight;
    // The text is drawn once to a bitmap, which is then moved by whole pixels and so stays sharp.
    mutable QImage m_bitmap;
    mutable QSizeF m_bitmapBounds;
    mutable double m_bitmapScale = 0;
};

} // namespace corvane
