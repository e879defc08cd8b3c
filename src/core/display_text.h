#pragma once

#include <QString>

namespace corvane {

/// Text that comes from other programs or web pages, made fit to be shown on one line.
///
/// Control characters, line ends among them, become spaces. Characters that are invisible or that
/// change the writing direction of what follows become U+FFFD, so that "exe.gpj" cannot be shown as
/// "jpg.exe". Letters of right-to-left scripts stay as they are. Text beyond 512 characters, far
/// more than any line has, is cut off.
QString displayText(const QString &text);

} // namespace corvane
