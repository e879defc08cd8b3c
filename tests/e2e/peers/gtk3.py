"""A window of GTK 3: see desktop/peer_programs.h."""
import sys
import gi
gi.require_version("Gtk", "3.0")
from gi.repository import Gtk, Gdk, GLib

def tell(*words):
    print(*words, flush=True)

colour, width, height, text, habits, files = *sys.argv[1:6], sys.argv[6:]
window = Gtk.Window(title="peer")
# As one that draws its own decoration: KWin, which draws none here, and GTK would otherwise tell each
# other without end that it should be the other.
window.set_titlebar(Gtk.Box())
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
state = {"failed": False, "over": False, "asked": False}
# Its own target takes nothing on the way: who says that it is welcome is somebody else.
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

target = Gtk.EventBox(name="target")
def welcome():
    target.drag_dest_set(Gtk.DestDefaults.ALL, [], Gdk.DragAction.COPY)
    target.drag_dest_add_uri_targets()
    target.drag_dest_add_text_targets()
welcome()
def received(widget, context, x, y, data, info, time):
    if data.get_uris():
        tell("text/uri-list", bytes(data.get_data()).hex())
    elif data.get_text() is not None:
        tell("text", data.get_text().encode().hex())
target.connect("drag-data-received", received)
# Told once the display server knows that it would be taken.
def hovering():
    state["asked"] = False
    Gdk.Display.get_default().sync()
    if state["over"]:
        tell("target over")
def moved(*arguments):
    state["over"] = True
    if not state["asked"]:
        state["asked"] = True
        GLib.idle_add(hovering, priority=GLib.PRIORITY_HIGH)
    return False
def left(*arguments):
    state["over"] = False
    tell("target left")
target.connect("drag-motion", moved)
target.connect("drag-leave", left)

window.connect("focus-out-event", lambda w, e: tell("keyboard lost") or False)
window.connect("key-press-event", lambda w, e: tell("key", Gdk.keyval_name(e.keyval)) or False)
box.pack_start(source, True, True, 0)
box.pack_start(target, True, True, 0)
window.add(box)
window.set_default_size(int(width), int(height))
window.show_all()
exec(habits)
Gtk.main()
