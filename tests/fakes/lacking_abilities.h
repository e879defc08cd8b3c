#pragma once

#include "platform/desktop/abilities.h"

namespace corvane::test {

/// The abilities of a session that can do as little as there are words for.
inline Abilities lackingAbilities(Reason why)
{
    return {.drags = {Drags::Unnoticed, why},
            .topEdge = {TopEdge::Unwatched, why},
            .clicksElsewhere = {ClicksElsewhere::Unnoticed, why},
            .shortcutChoice = {ShortcutChoice::InTheDesktop, why},
            .keepingKey = {KeepingKey::BeforeTheDrag, why}};
}

} // namespace corvane::test
