#pragma once

#include "platform/wayland/windows/layer_surface.h"

#include <QBackingStore>
#include <QWindow>

#include <memory>

namespace corvane {

/// A part of a screen where a compositor tells us of what comes there, with nothing to be seen.
class InvisibleWindow : public QWindow {
public:
    /// Shows it, if the compositor lets it. The connection must outlive it.
    InvisibleWindow(WaylandConnection &connection, const LayerSurface::Place &place,
                    LayerSurface::Keyboard keyboard);
    ~InvisibleWindow() override;

    /// For good.
    void takeAway();

protected:
    bool event(QEvent *event) override;

private:
    void paint();

    QBackingStore m_store;
    std::unique_ptr<LayerSurface> m_surface;
};

} // namespace corvane
