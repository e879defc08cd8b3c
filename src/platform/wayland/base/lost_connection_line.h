#pragma once

namespace corvane {

/// The toolkit ends the process where its compositor is gone, and says so before. Two of its
/// threads may notice at once: from here on only the first of them is heard, and the other goes on
/// only then. What else is said goes to the handler that there was before.
void hearLostConnectionOnce();

} // namespace corvane
