#pragma once

namespace corvane::bench {

class XDesk;

/// Drags a short text from a window of its own to the panel that opens for it at the middle of the
/// upper edge, and drops it there. Throws when no panel takes it within two seconds.
void dropText(XDesk &desk);

} // namespace corvane::bench
