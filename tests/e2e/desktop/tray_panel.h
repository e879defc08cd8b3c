#pragma once

#include "e2e/desktop/x_desktop.h"

#include <QByteArray>
#include <QPoint>
#include <QRect>

#include <memory>

namespace corvane::e2e {

/// A panel at the lower left of the screen with nothing in it but an X11 tray.
class X11Tray {
public:
    explicit X11Tray(XDesktop &desktop);

    bool waitUntilReady();
    /// Where the first icon is.
    QRect icon() const;
    /// Waits until something is drawn there that stands out from the panel.
    bool waitForIcon();
    /// Waits until nothing is.
    bool waitUntilEmpty();

private:
    bool isEmpty() const;

    XDesktop &m_desktop;
    std::unique_ptr<Program> m_program;
};

/// A panel that shows the status items of the session bus, at the upper left.
class NotifierPanel {
public:
    explicit NotifierPanel(XDesktop &desktop);
    ~NotifierPanel();
    NotifierPanel(const NotifierPanel &) = delete;
    NotifierPanel &operator=(const NotifierPanel &) = delete;

    bool waitUntilReady();
    /// Waits until an item of that process has been handed in.
    bool waitForItemOf(qint64 pid);
    /// Where the first icon is.
    static QRect iconFrame();

private:
    XDesktop &m_desktop;
    std::unique_ptr<Program> m_program;
};

/// The status item that a process has handed in, asked as a panel asks.
class NotifierFacts {
public:
    NotifierFacts(XDesktop &desktop, qint64 pid);

    /// As the tool prints it.
    QByteArray property(const QString &name) const;
    /// The labels of the menu from top to bottom; a separator is a dash. Announces first that the
    /// menu opens.
    QStringList menu() const;
    /// The keys that are shown beside the row of that label, "Super+Shift+D"; empty for none.
    QString keys(const QString &label) const;
    /// Chooses the row of that label; false if there is none.
    bool choose(const QString &label) const;

private:
    QByteArray menuLayout() const;
    QByteArray call(const QString &path, const QString &method, const QStringList &arguments) const;

    XDesktop &m_desktop;
    QString m_service;
};

} // namespace corvane::e2e
