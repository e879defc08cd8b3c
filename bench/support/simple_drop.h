#pragma once

#include <string>

namespace corvane::bench {

class XDesk;

/// Drags a short text from a window of its own to the panel that opens at the top edge, and drops
/// it there. Throws if no panel accepts it within two seconds.
void dropText(XDesk &desk);
/// The same with files: their addresses, each with the end of a line.
void dropFiles(XDesk &desk, const std::string &addresses);

} // namespace corvane::bench
