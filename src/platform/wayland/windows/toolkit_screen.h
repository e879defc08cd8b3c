#pragma once

class QScreen;

namespace corvane {

struct Screen;

/// Qt's screen, which stands where the same screen of ours does and has its name; null where it is
/// just gone.
QScreen *toolkitScreen(const Screen &screen);

} // namespace corvane
