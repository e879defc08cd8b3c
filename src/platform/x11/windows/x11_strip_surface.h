#pragma once

#include "platform/desktop/strip_surface.h"
#include "platform/x11/base/x11_connection.h"

namespace corvane {

/// Strips as docks, which window managers keep above windows, but below those that fill the screen,
/// where they are placed and on every workspace. The connection must outlive it.
///
/// An X server that belongs to a compositor believes that the pointer is where it last was over one
/// of its windows, and says that it enters a window that comes up there.
class X11StripSurface : public StripSurface {
public:
    explicit X11StripSurface(X11Connection &connection)
        : m_connection(connection)
    {
    }

    bool tellsTrulyWhatEnters() const override { return false; }
    std::unique_ptr<QWindow> show(const Screen &screen, const QRect &area) override;

private:
    X11Connection &m_connection;
};

} // namespace corvane
