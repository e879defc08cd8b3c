#pragma once

namespace corvane {

/// How soon whoever redraws after a publication has to do so. What is published is published at
/// once whatever this says; it only spares observers the same work for each of ten thousand items.
enum class PublicationPace {
    /// A change of its own, to be followed before the publication returns.
    AtOnce,
    /// More of the same operation may follow; its end is told, and what is shown has to be up to
    /// date then.
    WithinOperation,
    /// Something was learned about an item that stays what and where it is. Thousands may follow
    /// one by one, and a frame later is soon enough.
    Detail,
};

} // namespace corvane
