#pragma once

#include "platform/wayland/base/registry_probe.h"

#include <QByteArray>

#include <functional>
#include <optional>

namespace corvane {

/// The kinds of desktop session that the program can run in. To add one:
///
/// - here an enumerator and what of the environment tells it; in the .cpp the rule, which has to
///   come before that of X11 where both are there;
/// - beside `X11Session` a struct that fills a `DesktopSession`, and in `startSession` its case;
/// - its window system's room in src/platform, a library in src/CMakeLists.txt, and the order of
///   its rooms in tools/check-includes;
/// - its `Abilities`; what it lacks that has no words yet, in `session_texts`;
/// - the test of the choice, and the README's table of what works where.
enum class SessionKind {
    /// A Wayland session whose compositor hangs panels from its screens' edges.
    Layer,
    /// Other Wayland sessions, through the X server that their compositor keeps.
    XWayland,
    X11,
};

/// The variables of the environment that tell the kind of session, as bytes; empty if not set.
struct SessionEnvironment {
    /// DISPLAY
    QByteArray display = {};
    /// WAYLAND_DISPLAY
    QByteArray waylandDisplay = {};
    /// XDG_SESSION_TYPE, which only "x11" is believed of: a desktop of X11 may run within a window
    /// of a compositor, on an X server of the kind that compositors keep. It is often wrong
    /// otherwise: sway that was started from a terminal says "tty", Xvfb within a Wayland session
    /// "wayland".
    QByteArray sessionType = {};
    /// QT_QPA_PLATFORM: somebody who asks for "xcb" alone gets it where it can be had.
    QByteArray platformWish = {};
    /// Qt's plug-in for Wayland is installed: many distributions have a package of its own for it.
    /// Looked for only where there is something to use it with.
    bool hasWaylandPlugin = false;

    static SessionEnvironment ofThisProcess();
};

/// Which session the program is to run in, or why it cannot run.
struct SessionChoice {
    /// None if there is no session that the program can run in.
    std::optional<SessionKind> kind;
    /// The name of Qt's platform plug-in for that kind.
    QByteArray platformPlugin;
    /// If `kind` is none: one line that tells the user why, without a line end.
    QByteArray refusal;
    /// Where a better session was to be had, if not for what is missing or wrong: one line that
    /// tells the user so, without a line end. Empty elsewhere.
    QByteArray warning = {};
};

/// Depends only on its arguments. `isXServerOfCompositor` is called where nothing else tells
/// whether the X server that DISPLAY names is one that a compositor keeps for X11's programs. To be
/// called before there is an application object.
SessionChoice chooseSession(const SessionEnvironment &environment,
                            const CompositorRegistry &compositor,
                            const std::function<bool()> &isXServerOfCompositor);
/// The same for this process, which asks compositor and X server.
SessionChoice chooseSession();

} // namespace corvane
