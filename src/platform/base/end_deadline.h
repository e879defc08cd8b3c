#pragma once

#include <chrono>

/// A limit to the end of the process: once it is over the process ends with status 0, whatever its
/// threads are waiting for. It uses the alarm signal.
namespace corvane::end_deadline {

/// What putting everything in order may take, which is done by the main thread and is short.
inline constexpr std::chrono::milliseconds forSteps{2'000};
/// What may follow: threads come back, and the clipboard is handed over.
inline constexpr std::chrono::milliseconds forRest{400};
/// The same where the clipboard holds contents of ours: they can be large, and are nowhere else.
inline constexpr std::chrono::milliseconds forClipboard{2'000};

/// Makes everything ready. Nothing is limited yet.
void prepare();

/// Ends the process that much later. A further call counts from then. Any thread, also in a signal
/// handler; nothing before `prepare`.
void set(std::chrono::milliseconds patience);

} // namespace corvane::end_deadline
