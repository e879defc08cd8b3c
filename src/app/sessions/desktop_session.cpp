#include "app/sessions/desktop_session.h"

#include "app/sessions/layer_session.h"
#include "app/sessions/x11_session.h"
#include "app/sessions/xwayland_session.h"

#include <QtGlobal>

namespace corvane {

void prepareSession(SessionKind kind)
{
    if (kind == SessionKind::Layer)
        LayerSession::prepare();
}

std::unique_ptr<RunningSession> startSession(SessionKind kind, const SessionNeeds &needs)
{
    switch (kind) {
    case SessionKind::Layer:
        return std::make_unique<LayerSession>(needs);
    case SessionKind::XWayland:
        return std::make_unique<XWaylandSession>(needs);
    case SessionKind::X11:
        return std::make_unique<X11Session>(needs);
    }
    Q_UNREACHABLE();
}

} // namespace corvane
