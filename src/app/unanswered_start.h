#pragma once

#include <QtGlobal>

#include <optional>

namespace corvane {

/// Tells the user that the program runs already, as `process`, but did not answer. The message goes
/// to standard error. If that is no terminal it also goes to the desktop's notifications, or, where
/// there are none, to a window, until whose closing this blocks. Needs the application object.
void tellOfUnansweredStart(std::optional<qint64> process);

} // namespace corvane
