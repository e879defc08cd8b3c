#pragma once

namespace corvane {

enum class ShelfState {
    /// Closed.
    Idle,
    /// Open and empty, waiting for a drop.
    Expanded,
    /// Open and holding items.
    Occupied,
};

} // namespace corvane
