#pragma once

#include "e2e/desktop/peer_programs.h"
#include "e2e/desktop/program.h"
#include "e2e/desktop/x_desktop.h"

#include <QByteArray>
#include <QColor>
#include <QList>
#include <QRect>
#include <QString>

#include <memory>
#include <string>

namespace corvane::e2e {

/// A window of some toolkit, in the session's own window system: something to drag in its left
/// half, and in its right half a place to drop. In a browser's it is the page that has these.
class DragPeer {
public:
    struct Offer {
        /// Paths; as addresses. Browsers have none.
        QStringList files = {};
        /// A browser offers one that begins with "http" as a link.
        QString text = {};
        /// What is odd about it: statements in its own language, run once its window is there.
        /// Browsers have none.
        QString habits = {};
        /// As a program of X11, in a Wayland session too.
        bool isForX11 = false;
        Toolkit toolkit = Toolkit::Gtk3;
    };
    DragPeer(XDesktop &desktop, const Offer &offer, const QRect &frame);
    /// Where a test has failed, prints what it said.
    ~DragPeer();
    DragPeer(const DragPeer &) = delete;
    DragPeer &operator=(const DragPeer &) = delete;

    /// Empty when its window is there.
    QString problem() const { return m_problem; }
    QPoint source() const;
    QPoint target() const;
    /// What was dropped on it, by type: the last drop of several. Empty before.
    QByteArray droppedAddresses() { return dropped("text/uri-list"); }
    QByteArray droppedText() { return dropped("text"); }
    /// What a browser's page read of a file that was dropped on it: pages learn no addresses.
    QByteArray droppedBytes() { return dropped("bytes"); }
    /// How the last drag out of it ended, as it was told: "done" or "failed"; empty before.
    QByteArray endOfDrag();
    /// What is dragged out of it would be taken where it is now; true as well where it is not told
    /// of that, as pages never are.
    bool isSourceWelcome();
    /// Something is over its target, which would take it.
    bool isTargetReady();
    /// Of GTK 3's window alone.
    int presses();
    /// How often it has lost the keyboard; GTK 3's programs count it.
    int losses();
    /// The names of the keys that were typed into GTK 3's window.
    QList<QByteArray> keys();
    /// Whether it has told that of its habits, before long or until now.
    bool hasSaid(const QByteArray &word);
    /// What stood behind that word when it was told last.
    QByteArray said(const QByteArray &word);
    bool hasSaidNow(const QByteArray &word) { return !lastLine(word).isEmpty(); }
    /// All that it has told.
    std::string output() { return m_program->output().toStdString(); }

private:
    QProcessEnvironment environment(const Offer &offer) const;
    bool isToldWhereItIsWelcome() const;
    QByteArray dropped(const QByteArray &type);
    QRect sourceInPicture() const;
    void placeWindow(const QRect &frame);
    void moveByHand(const QRect &frame);
    bool carry(const QRect &source, QPoint place);
    void findPage();
    QByteArray lastLine(const QByteArray &beginning);

    XDesktop &m_desktop;
    Toolkit m_toolkit;
    QRgb m_colour = 0;
    std::unique_ptr<Program> m_program;
    QString m_problem;
    QRect m_frame;
};

} // namespace corvane::e2e
