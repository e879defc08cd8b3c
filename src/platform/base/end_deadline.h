#pragma once

#include <chrono>

/// A time limit for the end of the process: when it is reached the process exits with status 0,
/// whatever its threads are waiting for. Uses SIGALRM.
namespace corvane::end_deadline {

/// For the orderly steps of the end, which the main thread does and which are short.
inline constexpr std::chrono::milliseconds forSteps{2'000};
/// The same while what is on the shelf is written to disk.
inline constexpr std::chrono::milliseconds forKeeping{5'000};
/// For what follows: threads end, and the clipboard is handed over.
inline constexpr std::chrono::milliseconds forRest{400};
/// The same if the clipboard holds contents of ours: they may be large, and exist nowhere else.
inline constexpr std::chrono::milliseconds forClipboard{2'000};

/// Installs the signal handler. Sets no limit yet.
void prepare();

/// Sets the limit to `patience` from now, replacing an earlier one. Any thread, also in a signal
/// handler. Does nothing before `prepare`.
void set(std::chrono::milliseconds patience);

} // namespace corvane::end_deadline
