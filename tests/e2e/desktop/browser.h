#pragma once

#include "e2e/desktop/x_desktop.h"

namespace corvane::e2e {

/// A web browser's window on a page of ours with a link, a picture, and a text that can be edited.
class Browser {
public:
    enum class Kind { Chromium, Firefox };

    static bool isInstalled(Kind kind);
    /// What starts one that shows that page alone, with a fresh profile: a name and arguments. In a
    /// Wayland session one of Wayland's, unless it is to be one of X11's.
    static QStringList command(XDesktop &desktop, Kind kind, const QString &url,
                               bool isForX11 = false);

    /// `picture` is the PNG file that the page shows. A relative `link` leads to a file beside the
    /// page, in the folder `site`.
    Browser(XDesktop &desktop, Kind kind, const QString &link, const QByteArray &picture,
            const QRect &frame);

    static QString site(const XDesktop &desktop)
    {
        return desktop.path(QStringLiteral("home/site"));
    }

    QString problem() const { return m_problem; }
    QPoint link() const { return m_page.topLeft() + QPoint(60, 50); }
    QPoint picture() const { return m_page.topLeft() + QPoint(100, 200); }
    /// Places in the text: inside the first word, and below the last line.
    QPoint firstWord() const { return m_page.topLeft() + QPoint(250, 125); }
    QPoint belowText() const { return m_page.topLeft() + QPoint(400, 380); }
    void selectAllText();
    /// The text, read through the clipboard; waits until it is `expected`.
    QByteArray text(const QByteArray &expected);

    /// The text of a page that has just been loaded.
    static QByteArray initialText() { return "first\nsecond line\n\n  last \xc3\xa9 \xe2\x82\xac"; }

    /// The requests that the site's server has got, from any program.
    QByteArray requests() { return m_server->output(); }

private:
    /// Starts a server for the folder and gives its address; empty if that fails.
    QString serve(const QString &folder);

    XDesktop &m_desktop;
    std::unique_ptr<Program> m_server;
    std::unique_ptr<Program> m_program;
    QString m_problem;
    QRect m_page;
};

} // namespace corvane::e2e
