#pragma once

namespace corvane::session_bus {

/// Whether the session has a bus and we are connected to it. Never starts one: a bus of our own
/// would have nobody else on it.
bool isAvailable();

/// Keeps the toolkit, too, from starting a bus where the session has none, as its library does by
/// itself. To be called before the application object is made; programs that are started from here
/// find no bus either.
void keepFromStarting();

} // namespace corvane::session_bus
