#include "e2e/desktop/gtk_peer.h"

#include "e2e/desktop/eventually.h"

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

text, habits, files = sys.argv[1], sys.argv[2], sys.argv[3:]
window = Gtk.Window(title="peer")
window.set_decorated(False)
box = Gtk.Box(homogeneous=True)
style = Gtk.CssProvider()
style.load_from_data(b"#source { background: #d0ffd0; } #target { background: #ffffff; }")
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
state = {"failed": False}
def begun(widget, context):
    state["failed"] = False
    context.connect("action-changed", lambda c, action: tell("action", action.first_value_nick))
def failed(widget, context, result):
    state["failed"] = True
    return True
source.connect("drag-begin", begun)
source.connect("drag-failed", failed)
source.connect("drag-end", lambda w, c: tell("end", "failed" if state["failed"] else "done"))
source.add_events(Gdk.EventMask.BUTTON_PRESS_MASK)
source.connect("button-press-event", lambda w, e: tell("press") or False)

target = Gtk.EventBox(name="target")
target.drag_dest_set(Gtk.DestDefaults.ALL, [], Gdk.DragAction.COPY)
target.drag_dest_add_uri_targets()
target.drag_dest_add_text_targets()
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
window.set_default_size(400, 200)
window.show_all()
exec(habits)
Gtk.main()
)";

} // namespace

GtkPeer::GtkPeer(XDesktop &desktop, const Offer &offer, const QRect &frame)
    : m_program(desktop.start(
        QString::fromLatin1(python),
        QStringList{u"-c"_s, QString::fromLatin1(program), offer.text, offer.habits} + offer.files))
{
    const auto window = desktop.waitForWindowOf(*m_program);
    const auto placed = window ? desktop.place(window->id, frame) : std::nullopt;
    if (!placed)
        m_problem = u"the GTK window does not come: "_s + QString::fromUtf8(m_program->output());
    else
        m_frame = placed->frame;
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
