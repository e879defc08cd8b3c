#include "platform/x11/base/x11_abilities.h"

#include "platform/x11/base/x11_connection.h"

namespace corvane {

Abilities abilitiesOf(const X11Connection &connection)
{
    constexpr Reason why = Reason::ServerLacksExtensions;
    Abilities abilities;
    // Motion and buttons are raw events of the one, the drag selection's owner is told by the
    // other.
    if (!connection.hasXInput() || !connection.hasXFixes())
        abilities.drags = {Drags::Unnoticed, why};
    if (!connection.hasPointerBarriers())
        abilities.topEdge = {TopEdge::Unwatched, why};
    if (!connection.hasXInput())
        abilities.clicksElsewhere = {ClicksElsewhere::Unnoticed, why};
    return abilities;
}

} // namespace corvane
