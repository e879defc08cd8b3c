#include "e2e/desktop/drag_peer.h"

#include "e2e/desktop/eventually.h"

#include <QColor>
#include <QImage>

#include <gtest/gtest.h>

#include <iostream>

namespace corvane::e2e {

using namespace Qt::StringLiterals;

namespace {

// Browsers take their time.
constexpr auto startOfAProgram = 4 * patience;

} // namespace

DragPeer::DragPeer(XDesktop &desktop, const Offer &offer, const QRect &frame)
    : m_desktop(desktop)
    , m_toolkit(offer.toolkit)
{
    // One of its own for each, so that it is found in pictures.
    static int count = 0;
    m_colour = qRgb(0xd0, 0xff, 0xc0 + ++count % 0x40);
    QStringList command = peerCommand(desktop,
                                      {.toolkit = m_toolkit,
                                       .isForX11 = offer.isForX11,
                                       .colour = QColor(m_colour).name(),
                                       .size = frame.size(),
                                       .text = offer.text,
                                       .habits = offer.habits,
                                       .files = offer.files});
    const QString name = command.takeFirst();
    m_program = std::make_unique<Program>(name, command, environment(offer), desktop.home());
    if (desktop.nested() && !desktop.nested()->tellsOfWindows())
        moveByHand(frame);
    else
        placeWindow(frame);
    if (m_problem.isEmpty() && isBrowser(m_toolkit))
        findPage();
}

QProcessEnvironment DragPeer::environment(const Offer &offer) const
{
    QProcessEnvironment environment = m_desktop.environment();
    if (offer.isForX11) {
        environment.insert(u"GDK_BACKEND"_s, u"x11"_s);
        environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
    }
    return environment;
}

void DragPeer::placeWindow(const QRect &frame)
{
    const auto window = m_desktop.waitForWindowOf(*m_program);
    const auto placed = window ? m_desktop.place(window->id, frame) : std::nullopt;
    if (!placed) {
        m_problem = u"the window does not come: "_s + QString::fromUtf8(m_program->output());
        return;
    }
    m_frame = placed->frame;
    // A compositor says where a window is to be before it is shown, and can be pressed, there.
    const auto isShown = [this] {
        return QColor(m_desktop.server().picture({source(), QSize(1, 1)}).pixel(0, 0)).rgb()
            == m_colour;
    };
    if (!isBrowser(m_toolkit) && !eventually(isShown))
        m_problem = u"the window does not show where it was put: "_s
            + QString::fromUtf8(m_program->output());
}

DragPeer::~DragPeer()
{
    if (testing::Test::HasFailure())
        std::cout << "a partner said:\n" << m_program->output().toStdString();
}

/// In a browser's window.
void DragPeer::findPage()
{
    QRect source;
    eventually([&] { return !(source = atRest([this] { return sourceInPicture(); })).isEmpty(); },
               startOfAProgram);
    if (source.isEmpty())
        m_problem = u"the browser does not show the page"_s;
    m_frame = QRect(source.topLeft(), QSize(2 * source.width(), source.height()));
}

QRect DragPeer::sourceInPicture() const
{
    const QImage picture = m_desktop.server().picture().convertToFormat(QImage::Format_RGB32);
    QRect found;
    for (int y = 0; y < picture.height(); ++y) {
        const auto *const line = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            if ((line[x] | 0xff000000U) == m_colour)
                found |= QRect(x, y, 1, 1);
        }
    }
    return found;
}

/// With the key that moves windows wherever they are held.
void DragPeer::moveByHand(const QRect &frame)
{
    QRect source;
    const auto isThere = [&] {
        source = sourceInPicture();
        return isBrowser(m_toolkit) ? !source.isEmpty()
                                    : source.size() == QSize(frame.width() / 2, frame.height());
    };
    // A compositor that is still busy with the window's arrival lets nobody take hold of it.
    if (eventually(isThere, startOfAProgram))
        eventually([&] { return isThere() && carry(source, frame.topLeft()); }, startOfAProgram);
    isThere();
    m_frame = QRect(source.topLeft(), frame.size());
    if (m_frame != frame)
        m_problem = u"the window is not where it should be, but at %1,%2: "_s.arg(source.x())
                        .arg(source.y())
            + QString::fromUtf8(m_program->output());
}

/// Whether its window hangs from the hand, and is then put there.
bool DragPeer::carry(const QRect &source, QPoint place)
{
    // A window follows when the compositor comes to it; one that has not moved for so long hangs
    // from nothing.
    constexpr auto aMoment = patience / 3;
    const auto now = [this] { return sourceInPicture().topLeft(); };
    Hands &hands = m_desktop.hands();
    hands.moveTo(source.center());
    hands.keyDown(keys::super);
    hands.press();
    hands.glideTo(source.center() + place - source.topLeft());
    QPoint before = source.topLeft();
    bool follows = true;
    eventually([&] {
        follows = before == place || eventually([&] { return now() != before; }, aMoment);
        m_desktop.pictureAtRest({{}, m_desktop.server().size()});
        // Newer versions of mutter take hold of it where the hand is a moment later.
        before = now();
        hands.moveBy(place - before);
        return !follows || before == place;
    });
    hands.release();
    hands.keyUp(keys::super);
    return follows;
}

QPoint DragPeer::source() const
{
    return {m_frame.left() + m_frame.width() / 4, m_frame.center().y()};
}

QPoint DragPeer::target() const
{
    return {m_frame.left() + m_frame.width() * 3 / 4, m_frame.center().y()};
}

QByteArray DragPeer::lastLine(const QByteArray &beginning)
{
    const QByteArray start = beginning + ' ';
    QByteArray last;
    // The last one may still be on its way.
    const QByteArray output = m_program->output();
    for (const QByteArray &line : output.left(output.lastIndexOf('\n')).split('\n')) {
        if (line.startsWith(start))
            last = line.mid(start.size());
    }
    return last;
}

QByteArray DragPeer::dropped(const QByteArray &type)
{
    QByteArray hexadecimal;
    eventually([&] { return !(hexadecimal = lastLine(type)).isEmpty(); });
    return QByteArray::fromHex(hexadecimal);
}

QByteArray DragPeer::endOfDrag()
{
    QByteArray end;
    eventually([&] { return !(end = lastLine("end")).isEmpty(); });
    return end;
}

QList<QByteArray> DragPeer::keys()
{
    QList<QByteArray> typed;
    for (const QByteArray &line : m_program->output().split('\n')) {
        if (line.startsWith("key "))
            typed << line.mid(4);
    }
    return typed;
}

bool DragPeer::isToldWhereItIsWelcome() const
{
    const bool isQt = m_toolkit == Toolkit::Qt5 || m_toolkit == Toolkit::Qt6;
    // Qt's programs hear nothing of that where the target is a window of the compositor's X server.
    const bool isForXWayland = m_desktop.nested() && m_desktop.nested()->panelServer();
    // GTK 4 takes a drag with a single action for welcome from the start where Wayland's compositor
    // does not say otherwise.
    const bool isSureTooEarly = m_toolkit == Toolkit::Gtk4 && m_desktop.nested();
    return !isBrowser(m_toolkit) && !isSureTooEarly && !(isQt && isForXWayland);
}

bool DragPeer::isSourceWelcome()
{
    return !isToldWhereItIsWelcome() || lastLine("action") == "copy";
}

bool DragPeer::isTargetReady()
{
    return lastLine("target") == "over";
}

QByteArray DragPeer::said(const QByteArray &word)
{
    return lastLine(word);
}

bool DragPeer::hasSaid(const QByteArray &word)
{
    return eventually([&] { return hasSaidNow(word); });
}

int DragPeer::losses()
{
    return static_cast<int>(m_program->output().count("keyboard lost\n"));
}

int DragPeer::presses()
{
    return static_cast<int>(m_program->output().count("press\n"));
}

} // namespace corvane::e2e
