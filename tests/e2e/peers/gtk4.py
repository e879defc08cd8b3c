"""A window of GTK 4: see desktop/peer_programs.h."""
import sys
import gi
gi.require_version("Gtk", "4.0")
from gi.repository import Gtk, Gdk, Gio, GLib, GObject

def tell(*words):
    print(*words, flush=True)

colour, width, height, text, habits, files = *sys.argv[1:6], sys.argv[6:]
Gtk.init()
display = Gdk.Display.get_default()
style = Gtk.CssProvider()
style.load_from_data(
    f"#source {{ background: {colour}; }} #target {{ background: #ffffff; }}".encode())
Gtk.StyleContext.add_provider_for_display(display, style, Gtk.STYLE_PROVIDER_PRIORITY_APPLICATION)

source = Gtk.Box(name="source", hexpand=True, vexpand=True)
drags = Gtk.DragSource(actions=Gdk.DragAction.COPY)
def offer(*arguments):
    if not files:
        return Gdk.ContentProvider.new_for_value(text)
    chosen = Gdk.FileList.new_from_list([Gio.File.new_for_path(file) for file in files])
    return Gdk.ContentProvider.new_for_value(GObject.Value(Gdk.FileList, chosen))
state = {"failed": False, "over": False, "asked": False}
def chosen(drag, *arguments):
    tell("action", "copy" if drag.get_selected_action() & Gdk.DragAction.COPY else "none")
# Its own target takes nothing on the way: who says that it is welcome is somebody else.
def begun(drags, drag):
    target.remove_controller(drops)
    state["failed"] = False
    drag.connect("notify::selected-action", chosen)
def failed(*arguments):
    state["failed"] = True
    return False
drags.connect("prepare", offer)
drags.connect("drag-begin", begun)
drags.connect("drag-cancel", failed)
def ended(*arguments):
    target.add_controller(drops)
    tell("end", "failed" if state["failed"] else "done")
drags.connect("drag-end", ended)
source.add_controller(drags)

target = Gtk.Box(name="target", hexpand=True, vexpand=True)
drops = Gtk.DropTarget(actions=Gdk.DragAction.COPY)
drops.set_gtypes([Gdk.FileList, GObject.TYPE_STRING])
# Told once the display server knows that it would be taken.
def hovering():
    state["asked"] = False
    display.sync()
    if state["over"]:
        tell("target over")
def moved(*arguments):
    state["over"] = True
    if not state["asked"]:
        state["asked"] = True
        GLib.idle_add(hovering, priority=GLib.PRIORITY_HIGH)
    return Gdk.DragAction.COPY
def left(*arguments):
    state["over"] = False
    tell("target left")
def dropped(drops, value, x, y):
    left()
    if isinstance(value, Gdk.FileList):
        addresses = "".join(file.get_uri() + "\r\n" for file in value.get_files())
        tell("text/uri-list", addresses.encode().hex())
    else:
        tell("text", value.encode().hex())
    return True
drops.connect("motion", moved)
drops.connect("leave", left)
drops.connect("drop", dropped)
target.add_controller(drops)

box = Gtk.Box(homogeneous=True)
box.append(source)
box.append(target)
window = Gtk.Window(title="peer", decorated=False, child=box)
window.set_default_size(int(width), int(height))
window.present()
exec(habits)
GLib.MainLoop().run()
