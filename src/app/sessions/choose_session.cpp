#include "app/sessions/choose_session.h"

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

QString refusal(const SessionEnvironment &environment, const CompositorRegistry &compositor)
{
    if (compositor.hasLayerShell)
        return QCoreApplication::translate(
            "SessionChoice",
            "this Wayland session takes Qt's plug-in for Wayland, which is not installed "
            "(the package qt6-wayland)");
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

} // namespace

SessionEnvironment SessionEnvironment::ofThisProcess()
{
    SessionEnvironment environment{.display = qgetenv("DISPLAY"),
                                   .waylandDisplay = qgetenv("WAYLAND_DISPLAY"),
                                   .platformWish = qgetenv("QT_QPA_PLATFORM")};
    // An X11 session is not kept waiting for the disk.
    environment.hasWaylandPlugin
        = !environment.waylandDisplay.isEmpty() && isWaylandPluginInstalled();
    return environment;
}

SessionChoice chooseSession(const SessionEnvironment &environment,
                            const CompositorRegistry &compositor)
{
    const bool hasX = !environment.display.isEmpty();
    const bool wantsX = hasX && environment.platformWish == "xcb";
    if (compositor.hasLayerShell && environment.hasWaylandPlugin && !wantsX)
        return {.kind = SessionKind::Layer, .platformPlugin = "wayland", .refusal = {}};
    if (hasX && compositor.answers)
        return {.kind = SessionKind::XWayland, .platformPlugin = "xcb", .refusal = {}};
    if (hasX)
        return {.kind = SessionKind::X11, .platformPlugin = "xcb", .refusal = {}};
    return {.kind = std::nullopt,
            .platformPlugin = {},
            .refusal = refusal(environment, compositor).toLocal8Bit()};
}

} // namespace corvane
