#pragma once

#include <QIcon>

namespace corvane {

/// The program's own icon, for the title bars of ordinary windows and what lists them. Drawn when
/// it is first shown; empty where Qt's reader for SVG is not installed. Main thread only.
QIcon programIcon();

} // namespace corvane
