#pragma once

namespace corvane::session_bus {

/// Whether the session has a bus and we are connected to it. Never starts one: a bus of our own
/// would have nobody else on it.
bool isAvailable();

} // namespace corvane::session_bus
