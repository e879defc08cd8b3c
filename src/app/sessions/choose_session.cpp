#include "app/sessions/choose_session.h"

#include "platform/x11/base/xwayland_probe.h"

#include <QCoreApplication>
#include <QDir>
#include <QtGlobal>

#include <algorithm>

namespace corvane {

namespace {

/// Looked for by its file: before there is an application object Qt tells of none.
bool isWaylandPluginInstalled()
{
    const QStringList folders = QCoreApplication::libraryPaths();
    return std::ranges::any_of(folders, [](const QString &folder) {
        const QDir plugins(folder + QStringLiteral("/platforms"));
        return !plugins.entryList({QStringLiteral("libqwayland*.so")}, QDir::Files).isEmpty();
    });
}

QString lackOfPlugin()
{
    return QCoreApplication::translate(
        "SessionChoice",
        "this Wayland session takes Qt's plug-in for Wayland, which is not installed "
        "(the package qt6-wayland)");
}

QString refusal(const SessionEnvironment &environment, const CompositorRegistry &compositor)
{
    if (compositor.hasLayerShell)
        return lackOfPlugin();
    if (compositor.answers)
        return QCoreApplication::translate(
            "SessionChoice",
            "this Wayland session lets no program hang a shelf from its screen's edge, and there "
            "is no X11 display either (DISPLAY is not set)");
    if (!environment.waylandDisplay.isEmpty())
        return QCoreApplication::translate(
            "SessionChoice",
            "there is no Wayland session where WAYLAND_DISPLAY says, and no X11 display either "
            "(DISPLAY is not set)");
    return QCoreApplication::translate(
        "SessionChoice",
        "there is no display to hang the shelf on (neither WAYLAND_DISPLAY nor DISPLAY is set)");
}

/// Of a Wayland session whose compositor cannot be found.
QString lackOfCompositor(const SessionEnvironment &environment)
{
    if (environment.waylandDisplay.isEmpty())
        return QCoreApplication::translate("SessionChoice",
                                           "WAYLAND_DISPLAY is not set in this Wayland session, so "
                                           "the shelf uses the session's X11 "
                                           "display, where some drags may not reach it");
    return QCoreApplication::translate(
        "SessionChoice",
        "WAYLAND_DISPLAY names no compositor that answers, so the shelf uses this session's X11 "
        "display, where some drags may not reach it");
}

SessionChoice throughXServer(SessionKind kind, const QString &warning = {})
{
    return {.kind = kind, .platformPlugin = "xcb", .refusal = {}, .warning = warning.toLocal8Bit()};
}

} // namespace

SessionEnvironment SessionEnvironment::ofThisProcess()
{
    SessionEnvironment environment{.display = qgetenv("DISPLAY"),
                                   .waylandDisplay = qgetenv("WAYLAND_DISPLAY"),
                                   .sessionType = qgetenv("XDG_SESSION_TYPE"),
                                   .platformWish = qgetenv("QT_QPA_PLATFORM")};
    // An X11 session is not kept waiting for the disk.
    environment.hasWaylandPlugin
        = !environment.waylandDisplay.isEmpty() && isWaylandPluginInstalled();
    return environment;
}

SessionChoice chooseSession(const SessionEnvironment &environment,
                            const CompositorRegistry &compositor,
                            const std::function<bool()> &isXServerOfCompositor)
{
    const bool hasX = !environment.display.isEmpty();
    const bool wantsX = hasX && environment.platformWish == "xcb";
    if (compositor.hasLayerShell && environment.hasWaylandPlugin && !wantsX)
        return {.kind = SessionKind::Layer, .platformPlugin = "wayland", .refusal = {}};
    if (!hasX)
        return {.kind = std::nullopt,
                .platformPlugin = {},
                .refusal = refusal(environment, compositor).toLocal8Bit()};
    if (compositor.answers) {
        const bool lacksPlugin = compositor.hasLayerShell && !wantsX;
        return throughXServer(SessionKind::XWayland, lacksPlugin ? lackOfPlugin() : QString());
    }
    if (environment.sessionType != "x11" && isXServerOfCompositor())
        return throughXServer(SessionKind::XWayland,
                              wantsX ? QString() : lackOfCompositor(environment));
    return throughXServer(SessionKind::X11);
}

SessionChoice chooseSession()
{
    return chooseSession(SessionEnvironment::ofThisProcess(), probeRegistry(), isXWayland);
}

} // namespace corvane
