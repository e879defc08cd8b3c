#pragma once

namespace corvane {

class ClipboardSource;
class Compositing;
class DragCarrier;
class KeyboardLoan;
class PanelSurface;
class PointingDevices;

/// What a session offers for panels; the same for all of them. It must outlive them.
struct PanelDesktop {
    PanelSurface &surface;
    KeyboardLoan &keyboard;
    Compositing &compositing;
    PointingDevices &pointingDevices;
    /// Null where Qt carries what is dragged out of them.
    DragCarrier *dragCarrier = nullptr;
    /// Null where only Qt reads what another program has put on the clipboard.
    ClipboardSource *clipboard = nullptr;
};

} // namespace corvane
