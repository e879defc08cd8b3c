#pragma once

#include <QRect>
#include <QSize>

namespace corvane::layer_space {

/// What a shown panel gets more than it needs, so that it may grow without its surface being
/// resized: a compositor answers that only a moment later, and some drop a drag that is over it.
inline constexpr int roomAside = 160;
inline constexpr int roomBelow = 64;

/// The part of a screen of that size that a panel's surface takes up: what it has taken up since it
/// was shown (empty before), as long as the panel fits in; otherwise that and the panel with room
/// around it, as far as the screen goes. All from the screen's top left.
QRect around(const QRect &panel, QSize screen, const QRect &taken);

} // namespace corvane::layer_space
