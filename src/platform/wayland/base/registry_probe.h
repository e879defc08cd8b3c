#pragma once

namespace corvane {

/// What a compositor says of itself.
struct CompositorRegistry {
    /// It can be connected to, and answers.
    bool answers = false;
    /// Panels can be hung from its screens' edges.
    bool hasLayerShell = false;

    friend bool operator==(const CompositorRegistry &, const CompositorRegistry &) = default;
};

/// Milliseconds that a compositor may take to answer.
inline constexpr int probePatience = 2000;

/// Asks the compositor that WAYLAND_DISPLAY names, on a connection of its own that is closed again.
/// Without that variable nobody is asked: the usual name may be that of another session of the same
/// user. A connection that was passed on as WAYLAND_SOCKET can be used once, and is left to the
/// toolkit. Needs no application object.
CompositorRegistry probeRegistry();

} // namespace corvane
