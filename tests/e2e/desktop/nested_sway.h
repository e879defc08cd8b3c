#pragma once

#include "e2e/desktop/program.h"
#include "e2e/desktop/x_server.h"

#include <QColor>
#include <QList>
#include <QProcessEnvironment>
#include <QRect>
#include <QString>
#include <QTemporaryDir>

#include <memory>
#include <optional>

namespace corvane::e2e {

/// The compositor sway, as the one window of an X server that nobody in its session knows of:
/// pointer and keys come from there, and its picture is the session's.
///
/// It refuses to run as root; started by root it runs as the user "nobody", who is let in to that X
/// server, as root is to the one that sway keeps for X11's programs.
class NestedSway {
public:
    static constexpr QRgb wallpaper = qRgb(0x33, 0x66, 0x99);

    struct Kind {
        /// Pixels per point.
        double scale = 1;
        /// Keeps an X server for X11's programs.
        bool hasXWayland = true;

        friend bool operator==(const Kind &, const Kind &) = default;
    };
    NestedSway(XServer &screen, const QProcessEnvironment &environment, const Kind &kind);

    QString problem() const { return m_problem; }
    /// What programs of this session are started with, beside what they are started with anyway.
    void addTo(QProcessEnvironment &environment) const;

    /// The programs' windows, in pixels of the screen.
    QList<WindowFacts> windows() const;
    void place(xcb_window_t window, const QRect &frame) const;
    /// What `swaymsg` does; none where it fails.
    std::optional<QByteArray> message(const QStringList &arguments) const;
    Program &program() { return *m_program; }

private:
    std::unique_ptr<Program> startAsUser(const QString &name, const QStringList &arguments);
    void writeConfiguration(const Kind &kind);
    void letUserIn(XServer &screen);
    bool fillScreen(XServer &screen) const;
    void letRootIn();
    QString fileLike(const QString &pattern) const;

    QTemporaryDir m_home;
    QProcessEnvironment m_environment;
    double m_scale;
    QString m_problem;
    QString m_display;
    std::unique_ptr<Program> m_program;
};

} // namespace corvane::e2e
