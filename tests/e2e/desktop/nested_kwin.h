#pragma once

#include "e2e/desktop/nested_compositor.h"

#include <QTemporaryDir>

#include <map>

namespace corvane::e2e {

/// The compositor of KDE, which is its service for hot keys as well.
///
/// It runs from a copy: the installed file has a capability that not every place allows. Its
/// scripts tell which windows there are, and move them.
class NestedKwin : public NestedCompositor {
public:
    NestedKwin(XServer &screen, const QProcessEnvironment &environment, const Kind &kind);

    QList<WindowFacts> windows() override;
    void place(xcb_window_t window, const QRect &frame) override;

protected:
    QString socket() const override { return QStringLiteral("wayland-kwin"); }
    QString desktopName() const override { return QStringLiteral("KDE"); }
    void addOwnTo(QProcessEnvironment & /*environment*/) const override { }

private:
    static void placeOutputs(XServer &screen, QSize size);
    bool prepare(XServer &screen);
    bool writeFile(const QString &name, const QByteArray &contents) const;
    /// Runs a script within the compositor.
    bool run(const QByteArray &script);

    QTemporaryDir m_folder;
    QProcessEnvironment m_environment;
    double m_scale;
    int m_scripts = 0;
};

} // namespace corvane::e2e
