#pragma once

#include "platform/desktop/menu.h"

#include <QString>

namespace corvane {

/// Keys as people see them everywhere, in the user's language and as the desktop's own settings
/// write them: "Super+Shift+D". Empty for none.
QString shownKeys(const KeyEquivalent &keys);

} // namespace corvane
