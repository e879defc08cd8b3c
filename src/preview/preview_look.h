#pragma once

#include <QColor>

class QPalette;

/// Colours of what the preview draws itself.
namespace corvane::preview_look {

/// For people who need more contrast, lines are strong and details are no paler than other texts.
/// Widgets have to be drawn anew after a change.
enum class Contrast { Usual, More };
void setContrast(Contrast contrast);
bool hasMoreContrast();

/// Of a text that is less important than another one.
QColor details(const QPalette &palette);
/// Of a line between things. `usual` is its colour unless contrast is wanted.
QColor line(const QPalette &palette, const QColor &usual);

} // namespace corvane::preview_look
