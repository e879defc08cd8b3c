#pragma once

#include <QByteArray>

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
    /// Also used in a Wayland session, through its X server.
    X11,
};

/// The variables of the environment that tell the kind of session, as bytes; empty if not set.
struct SessionEnvironment {
    /// DISPLAY
    QByteArray display;

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
};

/// Depends only on its argument. To be called before there is an application object.
SessionChoice chooseSession(const SessionEnvironment &environment);

} // namespace corvane
