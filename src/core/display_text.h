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

/// A line whose parts stand between middle dots, "PNG · 2 KB", for a reader of that direction: from
/// right to left its parts keep their order. A number would otherwise go to the Latin letters
/// before it, away from a unit in letters of its own script.
QString withPartsInOrder(QString line, Qt::LayoutDirection direction);

} // namespace corvane
