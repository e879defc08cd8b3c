#pragma once

#include <QString>

/// What a feed says about a version, as a text to be shown.
namespace corvane::release_notes {

/// Longer notes are cut.
inline constexpr qsizetype maximumCharacters = 65'536;

/// The text alone of a piece of HTML: tags, comments, scripts and styles go, what begins a line
/// there begins one here, entries of lists have a dot. Takes time linear in the text.
QString withoutMarkup(const QString &html);

/// Trimmed, with no more than one empty line in a row, and nothing in it that could forge what it
/// says.
QString shown(const QString &text);

} // namespace corvane::release_notes
