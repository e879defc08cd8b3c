#pragma once

#include "e2e/desktop/x_desktop.h"

#include <QByteArray>
#include <QPoint>
#include <QRect>

#include <memory>

namespace corvane::e2e {

/// A panel at the lower left of the screen that has only an X11 tray.
class X11Tray {
public:
    explicit X11Tray(XDesktop &desktop);

    bool waitUntilReady();
    /// Where the first icon is.
    QRect icon() const;
    /// Waits until an icon is drawn, that is, something other than the panel's colour.
    bool waitForIcon();
    /// Waits until no icon is drawn.
    bool waitUntilEmpty();

private:
    bool isEmpty() const;

    XDesktop &m_desktop;
    std::unique_ptr<Program> m_program;
};

/// A panel at the upper left that shows the status items of the session bus.
class NotifierPanel {
public:
    explicit NotifierPanel(XDesktop &desktop);
    ~NotifierPanel();
    NotifierPanel(const NotifierPanel &) = delete;
    NotifierPanel &operator=(const NotifierPanel &) = delete;

    bool waitUntilReady();
    /// Waits until that process has registered an item.
    bool waitForItemOf(qint64 pid);
    /// Where the first icon is.
    static QRect iconFrame();

private:
    XDesktop &m_desktop;
    std::unique_ptr<Program> m_program;
};

/// The status item that a process has registered, read as a panel does.
class NotifierFacts {
public:
    NotifierFacts(XDesktop &desktop, qint64 pid);

    /// A property, as the command-line tool prints it.
    QByteArray property(const QString &name) const;
    /// The labels of the menu from top to bottom; a separator is a dash. Tells the program first
    /// that the menu opens, as panels do.
    QStringList menu() const;
    /// The keys that are shown beside the row of that label, "Super+Shift+D"; empty for none.
    QString keys(const QString &label) const;
    /// Chooses the row of that label; false if there is none.
    bool choose(const QString &label) const;
    /// Tells of a click on the icon, as panels do that leave it to the program what comes then.
    void click() const;

private:
    QByteArray menuLayout() const;
    QByteArray call(const QString &path, const QString &method, const QStringList &arguments) const;

    XDesktop &m_desktop;
    QString m_service;
};

} // namespace corvane::e2e
