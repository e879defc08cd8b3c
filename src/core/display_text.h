#pragma once

#include <QString>

namespace corvane {

/// A stranger's text made fit to be shown on one line.
///
/// Control characters, line ends among them, become spaces; characters that change the direction of
/// what follows, or that cannot be seen, become U+FFFD, so that "exe.gpj" cannot pose as "jpg.exe".
/// Letters of right-to-left scripts stay as they are. Bounded: what is far beyond any line is cut.
QString displayText(const QString &text);

} // namespace corvane
