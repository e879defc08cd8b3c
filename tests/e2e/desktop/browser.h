#pragma once

#include "e2e/desktop/x_desktop.h"

namespace corvane::e2e {

/// A web browser's window on a page of ours with a link, a picture, and a text that can be edited.
class Browser {
public:
    enum class Kind { Chromium, Firefox };

    static bool isInstalled(Kind kind);

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
    /// In the first line's first word of the text, and below its last line.
    QPoint firstWord() const { return m_page.topLeft() + QPoint(250, 125); }
    QPoint belowText() const { return m_page.topLeft() + QPoint(400, 380); }
    void selectAllText();
    /// What stands in it, by way of the clipboard.
    QByteArray text(const QByteArray &expected);

    /// What the text is when a page is shown.
    static QByteArray initialText() { return "first\nsecond line\n\n  last \xc3\xa9 \xe2\x82\xac"; }

    /// What the site has been asked for, by whomever.
    QByteArray requests() { return m_server->output(); }

private:
    QStringList command(Kind kind, const QString &url) const;

    /// The address under which the folder's files can be fetched; empty where that fails.
    QString serve(const QString &folder);

    XDesktop &m_desktop;
    std::unique_ptr<Program> m_server;
    std::unique_ptr<Program> m_program;
    QString m_problem;
    QRect m_page;
};

} // namespace corvane::e2e
