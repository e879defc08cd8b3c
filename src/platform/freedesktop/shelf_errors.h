#pragma once

/// The names of errors on the session bus by which the process that runs refuses a call. A caller
/// tells them apart by their names and never shows the texts that go with them: those are for
/// programmers, in English.
namespace corvane::shelf_errors {

/// It has just been started, or is about to end.
inline constexpr auto notReady = "example.corvane.Error.NotReady";
/// Nothing was taken that could be confirmed.
inline constexpr auto nothingTaken = "example.corvane.Error.NothingTaken";
inline constexpr auto tooMuch = "org.freedesktop.DBus.Error.LimitsExceeded";
inline constexpr auto noMemory = "org.freedesktop.DBus.Error.NoMemory";
/// There is no such thing to be done, or not with these arguments.
inline constexpr auto badArguments = "org.freedesktop.DBus.Error.InvalidArgs";

} // namespace corvane::shelf_errors
