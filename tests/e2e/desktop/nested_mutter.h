#pragma once

#include "e2e/desktop/nested_compositor.h"

#include <QTemporaryDir>

namespace corvane::e2e {

/// The compositor of GNOME, without its shell. It hangs no panels from its screen's edges, so that
/// the program uses the X server that it keeps, and tells nobody of its windows: those of Wayland's
/// programs are found in the picture, and moved by hand.
///
/// Before a button was pressed for the first time it passes no moves of the pointer on. And what it
/// passes on of a hand that the X test extension moves lacks something: its X server does not
/// notice that the pointer leaves a window for one of Wayland's.
class NestedMutter : public NestedCompositor {
public:
    NestedMutter(XServer &screen, QProcessEnvironment environment, const Kind &kind);

    QList<WindowFacts> windows() override;
    void place(xcb_window_t window, const QRect &frame) override;
    bool tellsOfWindows() const override { return false; }
    XServer *panelServer() override { return m_server.get(); }

protected:
    QString socket() const override { return QStringLiteral("wayland-mutter"); }
    QString desktopName() const override { return QStringLiteral("GNOME"); }
    void addOwnTo(QProcessEnvironment &environment) const override;

private:
    bool readDisplay();

    QTemporaryDir m_folder;
    /// The key to its X server.
    QString m_authority;
    std::unique_ptr<XServer> m_server;
};

} // namespace corvane::e2e
