#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

namespace corvane::e2e {

class XDesktop;

/// What other programs are made with.
enum class Toolkit { Gtk3, Gtk4, Qt5, Qt6, Chromium, Firefox };

/// A browser's window has a frame of its own around the page.
constexpr bool isBrowser(Toolkit toolkit)
{
    return toolkit == Toolkit::Chromium || toolkit == Toolkit::Firefox;
}

/// What a peer is started with.
struct PeerWish {
    Toolkit toolkit = Toolkit::Gtk3;
    bool isForX11 = false;
    /// Of its left half.
    QString colour;
    QSize size;
    QString text;
    QString habits;
    QStringList files;
};

/// The name of a program and its arguments. It prints what it hears, a line each: "target over",
/// "target left", "action copy", "end done", "end failed", and what was dropped on it as the type
/// and its bytes in hexadecimal.
QStringList peerCommand(XDesktop &desktop, const PeerWish &wish);

} // namespace corvane::e2e
