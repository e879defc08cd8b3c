#pragma once

namespace corvane {

/// How soon an observer has to redraw after a publication. Observers are always called at once; the
/// pace lets them put their work off, so that ten thousand items do not make them redraw ten
/// thousand times.
enum class PublicationPace {
    /// A single change: redraw before the observer returns.
    AtOnce,
    /// Part of an operation that may publish more. `ShelfStore::observeEndOfOperation` tells its
    /// end, by which what is shown has to be up to date.
    WithinOperation,
    /// A detail of an item, such as its thumbnail or subtitle, arrived. Thousands may follow one by
    /// one; redrawing one frame later is soon enough.
    Detail,
};

} // namespace corvane
