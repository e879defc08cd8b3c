#pragma once

#include <QByteArray>

#include <optional>

namespace corvane {

/// The kinds of desktop session that the program can run in. To add one: an enumerator here, a
/// struct beside `X11Session` that fills a `DesktopSession`, and a case in `startSession`.
enum class SessionKind {
    /// Also in a Wayland session, through its X server.
    X11,
};

/// What the environment says of the session, as bytes; empty where it says nothing.
struct SessionEnvironment {
    /// DISPLAY
    QByteArray display;

    static SessionEnvironment ofThisProcess();
};

/// Which session the program is to run in, or why it cannot run.
struct SessionChoice {
    /// None where there is no session that it could run in.
    std::optional<SessionKind> kind;
    /// The name of Qt's plug-in for that kind.
    QByteArray platformPlugin;
    /// One line for whoever has started the program in vain, without a line end.
    QByteArray refusal;
};

/// Looks at nothing but what it is given. Called before there is an application object.
SessionChoice chooseSession(const SessionEnvironment &environment);

} // namespace corvane
