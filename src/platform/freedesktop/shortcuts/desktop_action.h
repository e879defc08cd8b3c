#pragma once

#include <QString>

#include <cstdint>
#include <vector>

namespace corvane {

/// What a hot key does, as the desktop's settings list it.
struct DesktopAction {
    /// The number of the hot key.
    std::uint32_t id = 0;
    /// What the desktop keeps it by; never changes and is not shown.
    QString name;
    QString title;
    /// Does the same when it is run in a shell.
    QString command;
};

/// Null where there is none with that number.
inline const DesktopAction *actionWith(std::uint32_t id, const std::vector<DesktopAction> &actions)
{
    for (const DesktopAction &action : actions) {
        if (action.id == id)
            return &action;
    }
    return nullptr;
}

} // namespace corvane
