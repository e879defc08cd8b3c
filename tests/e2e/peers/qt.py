"""A window of Qt 5 or 6, by the name of its bindings: see desktop/peer_programs.h."""
import importlib
import sys

def tell(*words):
    print(*words, flush=True)

bindings, colour, width, height, text, habits, files = *sys.argv[1:7], sys.argv[7:]
QtCore, QtGui, QtWidgets = (importlib.import_module(f"{bindings}.{name}")
                            for name in ("QtCore", "QtGui", "QtWidgets"))
Copy = QtCore.Qt.DropAction.CopyAction

class Half(QtWidgets.QWidget):
    def __init__(self, colour):
        super().__init__()
        palette = self.palette()
        palette.setColor(QtGui.QPalette.ColorRole.Window, QtGui.QColor(colour))
        self.setPalette(palette)
        self.setAutoFillBackground(True)

class Source(Half):
    def mousePressEvent(self, event):
        self.pressed = event.pos()
        tell("press")
    def mouseMoveEvent(self, event):
        way = (event.pos() - self.pressed).manhattanLength()
        if way < QtWidgets.QApplication.startDragDistance():
            return
        data = QtCore.QMimeData()
        if files:
            data.setUrls([QtCore.QUrl.fromLocalFile(file) for file in files])
        else:
            data.setText(text)
        drag = QtGui.QDrag(self)
        drag.setMimeData(data)
        drag.actionChanged.connect(
            lambda action: tell("action", "copy" if action == Copy else "none"))
        # Its own target takes nothing on the way: who says that it is welcome is somebody else.
        target.setAcceptDrops(False)
        tell("begin")
        taken = drag.exec(Copy) == Copy
        target.setAcceptDrops(True)
        tell("end", "done" if taken else "failed")

class Target(Half):
    def __init__(self, colour):
        super().__init__(colour)
        self.over = self.asked = False
        self.answers = 0
        self.setAcceptDrops(True)
    def dragEnterEvent(self, event):
        self.welcome(event)
    def dragMoveEvent(self, event):
        self.welcome(event)
    def welcome(self, event):
        event.setDropAction(Copy)
        event.accept()
        self.over = True
        self.answers += 1
        # Where the drag is one of X11's the display server hands the answer on with the next move.
        if self.answers > 3 and not self.asked:
            self.asked = True
            QtCore.QTimer.singleShot(0, self.hovering)
    # Told once the display server knows that it would be taken.
    def hovering(self):
        self.asked = False
        QtGui.QGuiApplication.sync()
        if self.over:
            tell("target over")
    def dragLeaveEvent(self, event):
        self.over = False
        self.answers = 0
        tell("target left")
    def dropEvent(self, event):
        self.dragLeaveEvent(event)
        data = event.mimeData()
        if data.hasUrls():
            tell("text/uri-list", bytes(data.data("text/uri-list")).hex())
        else:
            tell("text", data.text().encode().hex())
        event.setDropAction(Copy)
        event.accept()

app = QtWidgets.QApplication([])
window = QtWidgets.QWidget()
window.setWindowFlag(QtCore.Qt.WindowType.FramelessWindowHint)
window.resize(int(width), int(height))
layout = QtWidgets.QHBoxLayout(window)
layout.setContentsMargins(0, 0, 0, 0)
layout.setSpacing(0)
source, target = Source(colour), Target("#ffffff")
layout.addWidget(source)
layout.addWidget(target)
window.show()
exec(habits)
app.exec()
