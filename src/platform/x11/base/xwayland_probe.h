#pragma once

namespace corvane {

/// Whether the X server that DISPLAY names is one that a Wayland compositor keeps for X11's
/// programs. Asked on a connection of its own that is closed again; waits as long as the toolkit
/// would for the same server. Needs no application object.
bool isXWayland();

} // namespace corvane
