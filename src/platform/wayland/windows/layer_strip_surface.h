#pragma once

#include "platform/desktop/strip_surface.h"

namespace corvane {

class WaylandConnection;

/// Strips as surfaces of a screen, below windows that fill it. The connection must outlive it and
/// the windows.
class LayerStripSurface : public StripSurface {
public:
    explicit LayerStripSurface(WaylandConnection &connection)
        : m_connection(connection)
    {
    }

    std::unique_ptr<QWindow> show(const Screen &screen, const QRect &area) override;

private:
    WaylandConnection &m_connection;
};

} // namespace corvane
