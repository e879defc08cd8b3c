#pragma once

#include "e2e/desktop/program.h"
#include "e2e/desktop/x_server.h"

#include <QColor>
#include <QList>
#include <QProcessEnvironment>
#include <QRect>
#include <QString>

#include <memory>

namespace corvane::e2e {

/// A Wayland compositor as the one window of an X server that nobody in its session knows of:
/// pointer and keys come from there, and its picture is the session's.
class NestedCompositor {
public:
    static constexpr QRgb wallpaper = qRgb(0x33, 0x66, 0x99);

    struct Kind {
        /// Pixels per point.
        double scale = 1;
        /// Keeps an X server for X11's programs.
        bool hasXWayland = true;
        /// Side by side, of one size; sway has one, and others that are plugged in.
        int outputs = 1;

        friend bool operator==(const Kind &, const Kind &) = default;
    };

    NestedCompositor() = default;
    NestedCompositor(const NestedCompositor &) = delete;
    NestedCompositor &operator=(const NestedCompositor &) = delete;
    virtual ~NestedCompositor() = default;

    /// Empty when it has started, else what went wrong.
    QString problem() const { return m_problem; }
    /// What programs of this session are started with, beside what they are started with anyway.
    void addTo(QProcessEnvironment &environment) const;
    Program &program() { return *m_program; }

    /// The programs' windows, in pixels of the screen.
    virtual QList<WindowFacts> windows() = 0;
    virtual void place(xcb_window_t window, const QRect &frame) = 0;
    /// False where nobody tells of the windows of Wayland's programs, nor places them.
    virtual bool tellsOfWindows() const { return true; }
    /// The X server that the panels of the program under test are windows of; null where they are
    /// surfaces of the compositor.
    virtual XServer *panelServer() { return nullptr; }

    /// Unplugs the output whose window is there, and has those to the right of it take its place,
    /// as they do within the session; whether it has gone. Sway and KWin are told so by whoever
    /// closes the window; KWin ends with its last one.
    static bool unplug(XServer &screen, const QRect &output);

protected:
    /// The name or the path of its Wayland socket.
    virtual QString socket() const = 0;
    /// As desktops call themselves.
    virtual QString desktopName() const = 0;
    virtual void addOwnTo(QProcessEnvironment &environment) const = 0;
    /// Waits until the wallpaper covers that part of the screen.
    static bool showsWallpaper(XServer &screen, const QRect &area);

    QString m_problem;
    /// The X server's for X11's programs; empty without one.
    QString m_display;
    std::unique_ptr<Program> m_program;
};

/// Points as pixels, or the other way round.
QRect scaled(const QRect &rect, double scale);

} // namespace corvane::e2e
