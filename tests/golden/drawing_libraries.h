#pragma once

#include <QString>

namespace corvane::test {

/// What decides, apart from our own code, how every pixel comes out: the version of Qt, and a sum
/// over a small drawing of text, curves and a scaled picture that Qt makes with the fonts, the
/// letter renderer and the processor that are here. Equal texts mean equal pixels.
QString drawingLibraries();

} // namespace corvane::test
