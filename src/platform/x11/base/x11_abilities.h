#pragma once

#include "platform/desktop/abilities.h"

namespace corvane {

class X11Connection;

/// What a session on that server is able to do. The same as long as the connection lives.
Abilities abilitiesOf(const X11Connection &connection);

} // namespace corvane
