#include "e2e/desktop/peer_programs.h"

#include "e2e/desktop/browser.h"

namespace corvane::e2e {

using namespace Qt::StringLiterals;

namespace {

QString fileOf(Toolkit toolkit)
{
    switch (toolkit) {
    case Toolkit::Gtk3:
        return u"gtk3.py"_s;
    case Toolkit::Gtk4:
        return u"gtk4.py"_s;
    case Toolkit::Qt5:
    case Toolkit::Qt6:
        return u"qt.py"_s;
    case Toolkit::Chromium:
    case Toolkit::Firefox:
        return u"browser.py"_s;
    }
    return {};
}

QStringList browserCommand(XDesktop &desktop, const PeerWish &wish)
{
    // The page's server puts the page's address there.
    const QString address = u"{address}"_s;
    if (wish.toolkit == Toolkit::Chromium)
        return Browser::command(desktop, Browser::Kind::Chromium, address, wish.isForX11)
            << u"--window-size=%1,%2"_s.arg(wish.size.width()).arg(wish.size.height());
    return Browser::command(desktop, Browser::Kind::Firefox, address, wish.isForX11)
        << u"-width"_s << QString::number(wish.size.width()) << u"-height"_s
        << QString::number(wish.size.height());
}

} // namespace

QStringList peerCommand(XDesktop &desktop, const PeerWish &wish)
{
    QStringList command{u"/usr/bin/python3"_s,
                        QStringLiteral(CORVANE_PEERS "/") + fileOf(wish.toolkit)};
    if (isBrowser(wish.toolkit))
        return command + QStringList{wish.colour, wish.text} + browserCommand(desktop, wish);
    if (wish.toolkit == Toolkit::Qt5)
        command << u"PyQt5"_s;
    else if (wish.toolkit == Toolkit::Qt6)
        command << u"PyQt6"_s;
    return command
        + QStringList{wish.colour, QString::number(wish.size.width()),
                      QString::number(wish.size.height()), wish.text, wish.habits}
    + wish.files;
}

} // namespace corvane::e2e
