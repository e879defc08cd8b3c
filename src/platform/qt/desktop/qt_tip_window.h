#pragma once

#include "platform/desktop/panel_desktop.h"
#include "platform/desktop/tip_window.h"
#include "platform/qt/desktop/panel_canvas.h"

#include <QPoint>
#include <QSizeF>

namespace corvane {

/// A tip with a Qt window of its own, on the surface of a panel. The desktop must outlive it. Main
/// thread only.
class QtTipWindow : public TipWindow {
public:
    explicit QtTipWindow(const PanelDesktop &desktop);
    ~QtTipWindow() override;

    void show(const PanelPlacement &placement, const Content &content) override;
    void raise() override;
    void hide() override;

    /// The window, for tests of the back end.
    PanelCanvas &window() { return m_canvas; }

private:
    void place(const PanelPlacement &placement);
    void cutToOutline();
    void paint(QPainter &painter) const;
    /// How far below the window's top edge the tip ends.
    double bottom() const { return m_origin.y() + m_size.height(); }

    PanelDesktop m_desktop;
    PanelCanvas m_canvas;
    Content m_content;
    QSizeF m_size;
    double m_contentScale = 1;
    /// Where the tip's top left is in its window.
    QPoint m_origin;
};

} // namespace corvane
