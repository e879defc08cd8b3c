#include "app/sessions/choose_session.h"

#include <QtGlobal>

namespace corvane {

SessionEnvironment SessionEnvironment::ofThisProcess()
{
    return {.display = qgetenv("DISPLAY")};
}

SessionChoice chooseSession(const SessionEnvironment &environment)
{
    if (environment.display.isEmpty()) {
        return {.kind = std::nullopt,
                .platformPlugin = {},
                .refusal = "there is no X11 display to hang the shelf on (DISPLAY is not set)"};
    }
    return {.kind = SessionKind::X11, .platformPlugin = "xcb", .refusal = {}};
}

} // namespace corvane
