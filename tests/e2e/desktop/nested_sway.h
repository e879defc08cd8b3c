#pragma once

#include "e2e/desktop/nested_compositor.h"

#include <QTemporaryDir>

#include <optional>

namespace corvane::e2e {

/// The compositor sway.
///
/// It refuses to run as root; started by root it runs as the user "nobody", who is let in to that X
/// server, as root is to the one that sway keeps for X11's programs.
class NestedSway : public NestedCompositor {
public:
    NestedSway(XServer &screen, const QProcessEnvironment &environment, const Kind &kind);

    QList<WindowFacts> windows() override;
    void place(xcb_window_t window, const QRect &frame) override;
    /// What `swaymsg` does; none where it fails.
    std::optional<QByteArray> message(const QStringList &arguments) const;

    /// Plugs a further output in, which shows at `frame` of that screen; whether it is there.
    bool plug(XServer &screen, const QRect &frame) const;
    /// Has all outputs show the same part of the desktop. False if it does not come to that.
    bool layOutputsOverOneAnother() const;
    /// Unplugs the output that was plugged in last, or the one that was there from the start.
    void unplug(XServer &screen) const;

protected:
    QString socket() const override { return fileLike(QStringLiteral("wayland-?")); }
    QString desktopName() const override { return QStringLiteral("sway"); }
    void addOwnTo(QProcessEnvironment &environment) const override;

private:
    std::unique_ptr<Program> startAsUser(const QString &name, const QStringList &arguments);
    void writeConfiguration(const Kind &kind);
    void letUserIn(XServer &screen);
    /// Has the output that was plugged in last show there.
    bool fit(XServer &screen, const QRect &frame) const;
    void letRootIn();
    QString fileLike(const QString &pattern) const;

    QTemporaryDir m_home;
    QProcessEnvironment m_environment;
    double m_scale;
};

} // namespace corvane::e2e
