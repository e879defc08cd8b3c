#pragma once

#include "platform/desktop/keys.h"

#include <QString>

#include <functional>

namespace corvane {

/// A key by what it does in the user's layout, for services of the desktop that know keys by that.
struct KeyName {
    /// What it types; empty where that is nothing.
    QString text = {};
    /// The name of its symbol, as desktops' settings write it: "d", "Return". Empty where there is
    /// none.
    QString symbol = {};
};

/// Names the key in a position, alone or with Shift.
using KeyNaming = std::function<KeyName(KeyPosition key, bool isShifted)>;

} // namespace corvane
