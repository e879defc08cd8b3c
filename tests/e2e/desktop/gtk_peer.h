#pragma once

#include "e2e/desktop/drag_peer.h"

namespace corvane::e2e {

/// Most stories are content with the toolkit that a peer has where none is named.
using GtkPeer = DragPeer;

} // namespace corvane::e2e
