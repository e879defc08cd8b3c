#include "app/sessions/desktop_session.h"

#include "app/sessions/x11_session.h"

#include <QtGlobal>

namespace corvane {

std::unique_ptr<RunningSession> startSession(SessionKind kind, const SessionNeeds &needs)
{
    switch (kind) {
    case SessionKind::X11:
        return std::make_unique<X11Session>(needs);
    }
    Q_UNREACHABLE();
}

} // namespace corvane
