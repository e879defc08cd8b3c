#pragma once

#include "fakes/fake_panel_window.h"

#include <QImage>
#include <QPainter>
#include <QRegion>

#include <utility>

namespace corvane::test {

/// A panel that keeps its picture. Like a window it paints only areas for which a repaint was
/// requested, and everything when it is shown, resized, or comes to a screen with another scale.
class CanvasPanel : public FakePanelWindow {
public:
    void setFrame(const QRectF &frame) override
    {
        if (frame.size() != this->frame().size())
            m_dirty = everything(frame.size());
        FakePanelWindow::setFrame(frame);
    }
    void orderFrontRegardless() override
    {
        if (!visible)
            m_dirty = everything(frame().size());
        FakePanelWindow::orderFrontRegardless();
    }
    void setNeedsDisplay(const QRectF &rect) override
    {
        FakePanelWindow::setNeedsDisplay(rect);
        const double height = frame().height();
        const QRectF seen(rect.x(), height - rect.y() - rect.height(), rect.width(), rect.height());
        m_dirty |= seen.toAlignedRect();
    }
    void setScale(double scale)
    {
        if (std::exchange(m_scale, scale) != scale)
            m_dirty = everything(frame().size());
    }
    double scale() const { return m_scale; }

    /// Paints the requested areas, as a window does in its next frame.
    void repaint()
    {
        const QSize pixels = (frame().size() * m_scale).toSize();
        if (m_canvas.size() != pixels || m_canvas.devicePixelRatio() != m_scale) {
            m_canvas = QImage(pixels, QImage::Format_ARGB32_Premultiplied);
            m_canvas.setDevicePixelRatio(m_scale);
            m_dirty = everything(frame().size());
        }
        const QRegion region = std::exchange(m_dirty, {});
        if (visible && content && !region.isEmpty())
            paint(m_canvas, region);
    }
    const QImage &canvas() const { return m_canvas; }
    /// The whole panel, painted now.
    QImage whole() const
    {
        QImage image(m_canvas.size(), m_canvas.format());
        image.setDevicePixelRatio(m_scale);
        paint(image, everything(frame().size()));
        return image;
    }

private:
    static QRegion everything(QSizeF size) { return QRectF({0, 0}, size).toAlignedRect(); }

    void paint(QImage &image, const QRegion &region) const
    {
        QPainter painter(&image);
        painter.setClipRegion(region);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.fillRect(region.boundingRect(), Qt::transparent);
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
        painter.translate(0, frame().height());
        painter.scale(1, -1);
        content->paint(painter, frame().size(), m_scale);
    }

    double m_scale = 1;
    QRegion m_dirty;
    QImage m_canvas;
};

} // namespace corvane::test
