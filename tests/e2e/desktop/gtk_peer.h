#pragma once

#include "e2e/desktop/program.h"
#include "e2e/desktop/x_desktop.h"

#include <QByteArray>
#include <QColor>
#include <QList>
#include <QRect>
#include <QString>

#include <memory>

namespace corvane::e2e {

/// A window of the GTK 3 toolkit, in the session's own window system: something to drag in its
/// left half, and in its right half a place to drop.
class GtkPeer {
public:
    struct Offer {
        /// Paths; as addresses.
        QStringList files = {};
        QString text = {};
        /// What is odd about it: statements in its own language, run once its window is there.
        QString habits = {};
        /// As a program of X11, in a Wayland session too.
        bool isForX11 = false;
    };
    GtkPeer(XDesktop &desktop, const Offer &offer, const QRect &frame);

    /// Empty when its window is there.
    QString problem() const { return m_problem; }
    QPoint source() const;
    QPoint target() const;
    /// What was dropped on it, by type: the last drop of several. Empty before.
    QByteArray droppedAddresses() { return dropped("text/uri-list"); }
    QByteArray droppedText() { return dropped("text"); }
    /// How the last drag out of it ended, as it was told: "done" or "failed"; empty before.
    QByteArray endOfDrag();
    /// What is dragged out of it would be taken where it is now.
    bool isSourceWelcome();
    /// Something is over its target, which would take it.
    bool isTargetReady();
    int presses();
    /// The names of the keys that were typed into it.
    QList<QByteArray> keys();
    /// Whether it has told that of its habits, before long or until now.
    bool hasSaid(const QByteArray &word);
    bool hasSaidNow(const QByteArray &word) { return !lastLine(word).isEmpty(); }

private:
    QByteArray dropped(const QByteArray &type);
    QRect sourceInPicture() const;
    void moveByHand(const QRect &frame);
    QByteArray lastLine(const QByteArray &beginning);

    XDesktop &m_desktop;
    QRgb m_colour = 0;
    std::unique_ptr<Program> m_program;
    QString m_problem;
    QRect m_frame;
};

} // namespace corvane::e2e
