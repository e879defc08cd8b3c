#pragma once

#include <QtGlobal>

#include <optional>

namespace corvane {

/// Tells the user that the program runs already, as `process`, and did not answer: on the standard
/// error, and where that is no terminal also in the desktop's notifications, or else in a window
/// that is waited for. Needs the application object.
void tellOfUnansweredStart(std::optional<qint64> process);

} // namespace corvane
