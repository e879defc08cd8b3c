#pragma once

namespace corvane {

class Compositing;
class KeyboardLoan;
class PanelSurface;
class PointingDevices;

/// What a session has for panels. The same for all of them, which it must outlive.
struct PanelDesktop {
    PanelSurface &surface;
    KeyboardLoan &keyboard;
    Compositing &compositing;
    PointingDevices &pointingDevices;
};

} // namespace corvane
