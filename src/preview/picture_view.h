#pragma once

#include "platform/base/lifetime.h"
#include "platform/preview/preview_content.h"
#include "preview/preview_geometry.h"

#include <QWidget>

namespace corvane {

class MainQueue;

/// Shows a picture, which the user can zoom and move, or plays an animation. What is given must
/// outlive it.
///
/// It shows the fitted picture at once, and has it rendered again when it is shown with other
/// pixels, but not for a single one. The next frame of an animation is made while the present one
/// is shown; while the view is not painted none is made.
class PictureView : public QWidget {
public:
    PictureView(const PreviewContent::Picture &picture, PreviewLoading &loading, MainQueue &queue,
                QWidget *parent = nullptr);
    ~PictureView() override;

    /// Handles the keys that zoom and move; false for other keys.
    bool handleKey(int key);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    bool event(QEvent *event) override;

private:
    void changed();
    void zoom(double factor, QPointF anchor);
    QPointF middle() const;
    QSize shownPixels() const;
    QRectF alignedRect() const;
    void askForPixels();
    void askForFrame();
    void showFrame(const PreviewDocument::Frame &frame);

    PreviewContent::Picture m_picture;
    PreviewLoading &m_loading;
    MainQueue &m_queue;
    preview_geometry::PictureZoom m_zoom;
    /// The last rendering.
    QImage m_best;
    QSize m_asked;
    bool m_isRendering = false;
    bool m_isAnimating;
    /// The next frame is being made, or waits until the present one has been shown long enough.
    bool m_isFrameDue = false;
    /// When the present frame ends, on the queue's clock.
    double m_frameEnd = 0;
    QPointF m_grip;
    Lifetime m_lifetime;
};

} // namespace corvane
