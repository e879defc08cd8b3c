#include "e2e/desktop/gtk_peer.h"

#include "e2e/desktop/eventually.h"

#include <QColor>
#include <QImage>

namespace corvane::e2e {

using namespace Qt::StringLiterals;

namespace {

constexpr auto python = "/usr/bin/python3";

// What it hears it prints, a line each: the type, and the bytes in hexadecimal.
constexpr auto program = R"(
import sys
import gi
gi.require_version("Gtk", "3.0")
from gi.repository import Gtk, Gdk, GLib

def tell(*words):
    print(*words, flush=True)

colour, width, height, text, habits, files = *sys.argv[1:6], sys.argv[6:]
window = Gtk.Window(title="peer")
window.set_decorated(False)
box = Gtk.Box(homogeneous=True)
style = Gtk.CssProvider()
style.load_from_data(
    f"#source {{ background: {colour}; }} #target {{ background: #ffffff; }}".encode())
Gtk.StyleContext.add_provider_for_screen(
    Gdk.Screen.get_default(), style, Gtk.STYLE_PROVIDER_PRIORITY_APPLICATION)

source = Gtk.EventBox(name="source")
source.drag_source_set(Gdk.ModifierType.BUTTON1_MASK, [], Gdk.DragAction.COPY)
if files:
    source.drag_source_add_uri_targets()
    source.connect("drag-data-get", lambda w, c, data, i, t: data.set_uris(
        [GLib.filename_to_uri(file, None) for file in files]))
else:
    source.drag_source_add_text_targets()
    source.connect("drag-data-get", lambda w, c, data, i, t: data.set_text(text, -1))
target = Gtk.EventBox(name="target")
def welcome():
    target.drag_dest_set(Gtk.DestDefaults.ALL, [], Gdk.DragAction.COPY)
    target.drag_dest_add_uri_targets()
    target.drag_dest_add_text_targets()
state = {"failed": False}
# What it drags itself it does not take on the way: whoever says that it is welcome is somebody else.
def begun(widget, context):
    target.drag_dest_unset()
    state["failed"] = False
    context.connect("action-changed", lambda c, action: tell("action", action.first_value_nick))
def failed(widget, context, result):
    state["failed"] = True
    return True
source.connect("drag-begin", begun)
source.connect("drag-failed", failed)
def ended(widget, context):
    welcome()
    tell("end", "failed" if state["failed"] else "done")
source.connect("drag-end", ended)
source.add_events(Gdk.EventMask.BUTTON_PRESS_MASK)
source.connect("button-press-event", lambda w, e: tell("press") or False)

welcome()
def received(widget, context, x, y, data, info, time):
    if data.get_uris():
        tell("text/uri-list", bytes(data.get_data()).hex())
    elif data.get_text() is not None:
        tell("text", data.get_text().encode().hex())
target.connect("drag-data-received", received)
# Told once the display server knows that it would be taken.
def hovering():
    Gdk.Display.get_default().sync()
    tell("target over")
target.connect("drag-motion", lambda w, c, x, y, t: bool(GLib.idle_add(hovering)) and False)
target.connect("drag-leave", lambda w, c, t: tell("target left"))

window.connect("key-press-event", lambda w, e: tell("key", Gdk.keyval_name(e.keyval)) or False)
box.pack_start(source, True, True, 0)
box.pack_start(target, True, True, 0)
window.add(box)
window.set_default_size(int(width), int(height))
window.show_all()
exec(habits)
Gtk.main()
)";

} // namespace

GtkPeer::GtkPeer(XDesktop &desktop, const Offer &offer, const QRect &frame)
    : m_desktop(desktop)
{
    // One of its own for each, so that it is found in pictures.
    static int count = 0;
    m_colour = qRgb(0xd0, 0xff, 0xc0 + ++count % 0x40);
    QProcessEnvironment environment = desktop.environment();
    if (offer.isForX11)
        environment.insert(u"GDK_BACKEND"_s, u"x11"_s);
    const QStringList arguments{u"-c"_s,
                                QString::fromLatin1(program),
                                QColor(m_colour).name(),
                                QString::number(frame.width()),
                                QString::number(frame.height()),
                                offer.text,
                                offer.habits};
    m_program = std::make_unique<Program>(QString::fromLatin1(python), arguments + offer.files,
                                          environment, desktop.home());
    if (desktop.nested() && !desktop.nested()->tellsOfWindows()) {
        moveByHand(frame);
        return;
    }
    const auto window = desktop.waitForWindowOf(*m_program);
    const auto placed = window ? desktop.place(window->id, frame) : std::nullopt;
    if (!placed)
        m_problem = u"the GTK window does not come: "_s + QString::fromUtf8(m_program->output());
    else
        m_frame = placed->frame;
}

QRect GtkPeer::sourceInPicture() const
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
void GtkPeer::moveByHand(const QRect &frame)
{
    QRect source;
    const auto hasSize = [&] {
        source = sourceInPicture();
        return source.size() == QSize(frame.width() / 2, frame.height());
    };
    constexpr auto startOfAProgram = 4 * patience;
    if (eventually(hasSize, startOfAProgram)) {
        Hands &hands = m_desktop.hands();
        const QPoint from = source.center();
        hands.moveTo(from);
        hands.keyDown(keys::super);
        hands.press();
        hands.glideTo(from + frame.topLeft() - source.topLeft());
        // Newer versions of mutter take hold of it where the hand is a moment later.
        eventually([&] {
            m_desktop.pictureAtRest({{}, m_desktop.server().size()});
            if (!hasSize())
                return false;
            const QPoint missing = frame.topLeft() - source.topLeft();
            if (!missing.isNull())
                hands.moveBy(missing);
            return missing.isNull();
        });
        hands.release();
        hands.keyUp(keys::super);
    }
    m_frame = QRect(source.topLeft(), frame.size());
    if (m_frame != frame)
        m_problem = u"the GTK window is not where it should be: "_s
            + QString::fromUtf8(m_program->output());
}

QPoint GtkPeer::source() const
{
    return {m_frame.left() + m_frame.width() / 4, m_frame.center().y()};
}

QPoint GtkPeer::target() const
{
    return {m_frame.left() + m_frame.width() * 3 / 4, m_frame.center().y()};
}

QByteArray GtkPeer::lastLine(const QByteArray &beginning)
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

QByteArray GtkPeer::dropped(const QByteArray &type)
{
    QByteArray hexadecimal;
    eventually([&] { return !(hexadecimal = lastLine(type)).isEmpty(); });
    return QByteArray::fromHex(hexadecimal);
}

QByteArray GtkPeer::endOfDrag()
{
    QByteArray end;
    eventually([&] { return !(end = lastLine("end")).isEmpty(); });
    return end;
}

QList<QByteArray> GtkPeer::keys()
{
    QList<QByteArray> typed;
    for (const QByteArray &line : m_program->output().split('\n')) {
        if (line.startsWith("key "))
            typed << line.mid(4);
    }
    return typed;
}

bool GtkPeer::isSourceWelcome()
{
    return lastLine("action") == "copy";
}

bool GtkPeer::isTargetReady()
{
    return lastLine("target") == "over";
}

bool GtkPeer::hasSaid(const QByteArray &word)
{
    return eventually([&] { return hasSaidNow(word); });
}

int GtkPeer::presses()
{
    return static_cast<int>(m_program->output().count("press\n"));
}

} // namespace corvane::e2e
