#pragma once

#include <QFont>
#include <QStringList>

namespace corvane {

class TextMeasurer;

/// Breaks a text into lines of at most `width` points: between words, and between letters where a
/// word alone is too wide. The last one of at most `maximum` lines has all the rest, however wide.
/// Spaces at the ends of lines are left out; no lines for a text without anything else.
QStringList wrappedLines(const QString &text, const QFont &font, double width, int maximum,
                         const TextMeasurer &measurer);

} // namespace corvane
